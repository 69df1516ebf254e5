// The Help menu: the bundled documents and the about box.
#include <QDir>
#include <QFileInfo>
#include <QMdiSubWindow>
#include <QMessageBox>

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

void CMainFrame::showAbout() {
    QMessageBox::about(this, QStringLiteral("About TAVI"),
                       QStringLiteral("<h3>TAVI %1</h3>"
                                      "<p>Language sample analysis: transcripts, measures and "
                                      "reports.</p>")
                           .arg(QStringLiteral(TAVI_VERSION)));
}

} // namespace tavi::app
