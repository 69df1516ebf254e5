// The desktop program: the application state and its main frame.
#include <QApplication>
#include <QIcon>

#include "app/main_frame.h"
#include "app/tavi_app.h"

int main(int argc, char** argv) {
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("TAVI"));
    QApplication::setApplicationVersion(QStringLiteral(TAVI_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tavi"));
    tavi::app::CTAVIApp app;
    if (!app.ok())
        return 1;
    tavi::app::CMainFrame frame(app);
    frame.show();
    const QStringList args = QApplication::arguments();
    for (qsizetype i = 1; i < args.size(); ++i)
        frame.openTranscript(args[i]);
    return QApplication::exec();
}
