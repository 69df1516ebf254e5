// A window that shows one of the bundled documents (README, the documentation index)
// rendered from Markdown.
#pragma once

#include <QTextBrowser>

namespace tavi::app {

class CTAVIApp;

// Where a bundled document is: beside the data folder (the source tree when
// run from a build, share/doc/tavi when installed). Empty when not found.
QString findHelpDocument(const CTAVIApp& app, const QString& relativePath);

class CHelpWindow final : public QTextBrowser {
    Q_OBJECT
public:
    explicit CHelpWindow(QWidget* parent = nullptr);
    // False when the document cannot be read.
    bool showDocument(const QString& path);
};

// Opens a document ("docs/measures.md", optionally "#anchor") in a window of
// its own beside `parent`, so a modal dialog's Help can be read while the
// dialog stays open. False (nothing opened) when it cannot be read.
bool openHelpWindow(const CTAVIApp& app, const QString& document, QWidget* parent);

} // namespace tavi::app
