// A window that shows one of the bundled documents (README, the documentation index)
// rendered from Markdown.
#pragma once

#include <QTextBrowser>

namespace tavi::app {

class CHelpWindow final : public QTextBrowser {
    Q_OBJECT
public:
    explicit CHelpWindow(QWidget* parent = nullptr);
    // False when the document cannot be read.
    bool showDocument(const QString& path);
};

} // namespace tavi::app
