// Rendering a bundled Markdown document.
#include "app/help_window.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace tavi::app {

CHelpWindow::CHelpWindow(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("CHelpWindow"));
    setOpenExternalLinks(true);
    setOpenLinks(true);
}

bool CHelpWindow::showDocument(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    document()->setBaseUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath() + QLatin1Char('/')));
    setSearchPaths({QFileInfo(path).absolutePath()});
    setMarkdown(QString::fromUtf8(file.readAll()));
    setWindowTitle(QFileInfo(path).fileName());
    return true;
}

} // namespace tavi::app
