// The Help menu: the bundled documents and the about box.
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>

#include "app/help_window.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"

namespace tavi::app {

QString findHelpDocument(const CTAVIApp& app, const QString& relativePath) {
    const QString shared = app.sharedDataDir();
    const QStringList roots = {shared + QStringLiteral("/.."),
                               shared + QStringLiteral("/../doc/tavi"),
                               QStringLiteral(TAVI_SOURCE_DATA_DIR "/..")};
    for (const QString& root : roots) {
        const QString candidate = QDir(root).filePath(relativePath);
        if (QFileInfo::exists(candidate))
            return QDir::cleanPath(candidate);
    }
    return QString();
}

bool openHelpWindow(const CTAVIApp& app, const QString& document, QWidget* parent) {
    const qsizetype hash = document.indexOf(QLatin1Char('#'));
    const QString path = findHelpDocument(app, document.left(hash));
    auto* help = new CHelpWindow(parent);
    help->setWindowFlag(Qt::Window);
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->setObjectName(QStringLiteral("CHelpWindow"));
    if (path.isEmpty() || !help->showDocument(path)) {
        delete help;
        return false;
    }
    if (hash >= 0)
        help->scrollToAnchor(document.mid(hash + 1));
    help->setWindowTitle(QStringLiteral("TAVI Help"));
    help->resize(720, 600);
    help->show();
    return true;
}

void CMainFrame::showHelpDocument(const QString& relativePath) {
    const QString path = findHelpDocument(app_, relativePath);
    auto* help = new CHelpWindow;
    if (path.isEmpty() || !help->showDocument(path)) {
        delete help;
        app_.prompter().inform("Cannot open " + relativePath.toStdString());
        return;
    }
    QMdiSubWindow* frame = mdi_->addSubWindow(help);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setObjectName(QStringLiteral("CHelpFrame"));
    placeNewWindow(frame);
    frame->show();
    mdi_->setActiveSubWindow(frame);
}

// "Get Acrobat Reader" on Linux: which program the desktop opens PDF reports
// with (the system's choice for application/pdf), and a PDF report opened
// with it on request. Nothing is fetched from the network.
void CMainFrame::showPdfViewer() {
    QProcess query;
    query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                             QStringLiteral("application/pdf")});
    QString viewer;
    if (query.waitForFinished(3000) && query.exitStatus() == QProcess::NormalExit)
        viewer = QString::fromLocal8Bit(query.readAllStandardOutput()).trimmed();
    viewer.remove(QStringLiteral(".desktop"));
    if (viewer.isEmpty()) {
        app_.prompter().inform("No program is set up to open PDF files on this computer. Install "
                               "a PDF viewer (for example the Debian package evince or okular); "
                               "TAVI's PDF reports open in it.");
        return;
    }
    const std::string question =
        "PDF reports open with " + viewer.toStdString() + ". Open a PDF report with it now?";
    if (!app_.prompter().confirm(question))
        return;
    const QString file =
        QFileDialog::getOpenFileName(this, QStringLiteral("Open PDF Report"), app_.reportDir(),
                                     QStringLiteral("PDF file (*.pdf *.PDF)"));
    if (!file.isEmpty())
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

void CMainFrame::showAbout() {
    QMessageBox::about(this, QStringLiteral("About TAVI"),
                       QStringLiteral("<h3>TAVI %1</h3>"
                                      "<p>Language sample analysis: transcripts, measures and "
                                      "reports.</p>")
                           .arg(QStringLiteral(TAVI_VERSION)));
}

} // namespace tavi::app
