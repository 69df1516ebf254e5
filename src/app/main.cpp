// The desktop program: the application state and its main frame. With
// "--screenshot DIR [--database FILE]" it opens the transcripts given,
// renders the picture gallery of the first one into DIR, and ends with 1
// when a window lay outside its area (tools/screenshots.sh runs it under
// Xvfb for the documentation). With
// "--commands" it lists the menu commands and ends, before any window system
// is needed.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "app/command_table.h"

#include "app/main_frame.h"
#include "app/screenshot_gallery.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--commands") == 0) {
            std::fputs(tavi::app::commandInventoryText().c_str(), stdout);
            return std::fflush(stdout) == 0 ? 0 : 1;
        }
    QApplication qapp(argc, argv);
    QApplication::setApplicationName(QStringLiteral("TAVI"));
    QApplication::setApplicationVersion(QStringLiteral(TAVI_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tavi"));
    Q_INIT_RESOURCE(tavi); // the resources live in the desktop program's static library
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tavi.svg")));
    tavi::app::CTAVIApp app;
    if (!app.ok())
        return 1;
    tavi::app::CMainFrame frame(app);
    QStringList args = QApplication::arguments();
    args.removeFirst();
    QString screenshotDir;
    QString galleryDatabase;
    if (args.size() >= 2 && args.front() == QLatin1String("--screenshot")) {
        args.removeFirst();
        screenshotDir = args.takeFirst();
        if (args.size() >= 2 && args.front() == QLatin1String("--database")) {
            args.removeFirst();
            galleryDatabase = args.takeFirst();
        }
    }
    // The last run's window layout, except for pictures, which start afresh.
    const QStringList reopen = screenshotDir.isEmpty() ? frame.restoreLayout() : QStringList();
    frame.show();
    for (const QString& file : reopen)
        frame.openTranscript(file);
    for (const QString& file : args)
        frame.openTranscript(file);
    if (!screenshotDir.isEmpty()) {
        QTimer::singleShot(500, &frame, [&] {
            QApplication::exit(tavi::app::renderGallery(frame, screenshotDir, galleryDatabase));
        });
    }
    return QApplication::exec();
}
