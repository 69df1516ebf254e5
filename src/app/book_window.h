// The TAVI Reference Book window: every user document in one book with
// contents and index, shown in a help window, with buttons to print it or
// save it as a PDF file.
#pragma once

#include <QWidget>

class QPagedPaintDevice;

namespace tavi::app {

class CHelpWindow;

// The book's Markdown made from the documents in `docsFolder` ("*.md", the
// documentation index first); empty when the folder holds none.
QString referenceBookMarkdown(const QString& docsFolder);

class CBookWindow final : public QWidget {
    Q_OBJECT
public:
    explicit CBookWindow(QWidget* parent = nullptr);
    // Builds and shows the book; false when the folder holds no document.
    bool showBook(const QString& docsFolder);
    CHelpWindow& browser() const { return *browser_; }
    // Whether the rendered book has an anchor of that name.
    bool hasAnchor(const QString& name) const;
    // Writes the book as a PDF file; false when it cannot be written.
    bool saveAsPdf(const QString& path) const;

private:
    void nameHeadings();
    void print();
    void savePdf();

    CHelpWindow* browser_;
};

} // namespace tavi::app
