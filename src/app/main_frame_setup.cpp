// The Setup menu's dialogs.
#include <QFileDialog>
#include <QInputDialog>

#include "app/main_frame.h"
#include "app/tavi_app.h"

namespace tavi::app {

void CMainFrame::setupBackups() {
    bool ok = false;
    const int n = QInputDialog::getInt(
        this, QStringLiteral("Automatic Backups"),
        QStringLiteral("Number of edits between automatic backups (50 to 5000, 0 for none):"),
        app_.settings().backupInterval, 0, 5000, 1, &ok);
    if (!ok)
        return;
    app_.settings().backupInterval = (n >= 50 && n <= 5000) ? n : 0;
}

void CMainFrame::setupFolder(const QString&) {}

} // namespace tavi::app
