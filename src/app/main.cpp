// The desktop program: the application state and its main frame. With
// "--screenshot DIR" it opens the transcripts given, makes the Standard
// Measures Report of the first one, writes pictures of the windows to DIR
// and ends (tools/screenshots.sh runs it under Xvfb for the README). With
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
#include "app/report_runner.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

namespace {

void takeScreenshots(tavi::app::CMainFrame& frame, tavi::app::CTAVIApp& app, const QString& dir) {
    QDir().mkpath(dir);
    const QList<tavi::app::CTAVIFrame*> transcripts = frame.transcriptFrames();
    if (transcripts.isEmpty())
        return;
    tavi::app::CTAVIDoc& doc = transcripts.front()->doc();
    frame.grab().save(QDir(dir).filePath(QStringLiteral("transcript.png")));
    const tavi::TranscriptAnalysis analysis = analyseForReport(app, doc.lines(), 0);
    tavi::app::ReportSource source;
    source.name = doc.title().toStdString();
    source.choices.smrVariables = app.smrVariables;
    frame.showReport(makeReport(app, "smr", analysis, source), &doc);
    frame.mdiArea().tileSubWindows();
    QApplication::processEvents();
    frame.grab().save(QDir(dir).filePath(QStringLiteral("report.png")));
}

} // namespace

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
    frame.show();
    QStringList args = QApplication::arguments();
    args.removeFirst();
    QString screenshotDir;
    if (args.size() >= 2 && args.front() == QLatin1String("--screenshot")) {
        args.removeFirst();
        screenshotDir = args.takeFirst();
    }
    for (const QString& file : args)
        frame.openTranscript(file);
    if (!screenshotDir.isEmpty()) {
        QTimer::singleShot(500, &frame, [&] {
            takeScreenshots(frame, app, screenshotDir);
            QApplication::quit();
        });
    }
    return QApplication::exec();
}
