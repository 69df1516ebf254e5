// The Help menu: the bundled documents and the about box.
#include <QDir>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <QMessageBox>

#include "app/help_window.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"

namespace tavi::app {
namespace {

// The documents live beside the data folder: the source tree when run from a
// build, share/doc/tavi when installed.
QString findDocument(const CTAVIApp& app, const QString& relativePath) {
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

} // namespace

void CMainFrame::showHelpDocument(const QString& relativePath) {
    const QString path = findDocument(app_, relativePath);
    auto* help = new CHelpWindow;
    if (path.isEmpty() || !help->showDocument(path)) {
        delete help;
        app_.prompter().inform("Cannot open " + relativePath.toStdString());
        return;
    }
    QMdiSubWindow* frame = mdi_->addSubWindow(help);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setObjectName(QStringLiteral("CHelpFrame"));
    frame->resize(mdi_->size() * 0.8);
    frame->show();
    mdi_->setActiveSubWindow(frame);
}

void CMainFrame::showAbout() {
    QMessageBox::about(this, QStringLiteral("About TAVI"),
                       QStringLiteral("<h3>TAVI %1</h3>"
                                      "<p>Language sample analysis: transcripts, measures and "
                                      "reports.</p>")
                           .arg(QStringLiteral(TAVI_VERSION)));
}

} // namespace tavi::app
