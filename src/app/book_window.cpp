// Building, showing, printing and saving the reference book.
#include "app/book_window.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

#include "app/help_window.h"
#include "reports/reference_book.h"

namespace tavi::app {

QString referenceBookMarkdown(const QString& docsFolder) {
    const QDir dir(docsFolder);
    std::vector<std::string> files;
    for (const QString& name : dir.entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name))
        files.push_back(name.toStdString());
    if (files.empty())
        return QString();
    auto read = [&dir](const std::string& name) {
        QFile file(dir.filePath(QString::fromStdString(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    };
    std::vector<BookChapter> chapters;
    for (const std::string& name : bookOrder(read("index.md"), files))
        chapters.push_back({name, read(name)});
    return QString::fromStdString(buildReferenceBook(chapters, "TAVI Reference Book").markdown);
}

CBookWindow::CBookWindow(QWidget* parent) : QWidget(parent), browser_(new CHelpWindow) {
    setObjectName(QStringLiteral("CBookWindow"));
    setWindowTitle(QStringLiteral("TAVI Reference Book"));
    auto* print = new QPushButton(QStringLiteral("&Print..."));
    print->setObjectName(QStringLiteral("printBook"));
    auto* pdf = new QPushButton(QStringLiteral("Save as P&DF..."));
    pdf->setObjectName(QStringLiteral("saveBookPdf"));
    connect(print, &QPushButton::clicked, this, &CBookWindow::print);
    connect(pdf, &QPushButton::clicked, this, &CBookWindow::savePdf);
    auto* row = new QHBoxLayout;
    row->addWidget(print);
    row->addWidget(pdf);
    row->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(row);
    layout->addWidget(browser_, 1);
}

bool CBookWindow::showBook(const QString& docsFolder) {
    const QString markdown = referenceBookMarkdown(docsFolder);
    if (markdown.isEmpty())
        return false;
    browser_->document()->setBaseUrl(QUrl::fromLocalFile(QDir(docsFolder).absolutePath() + '/'));
    browser_->setSearchPaths({docsFolder});
    browser_->setMarkdown(markdown);
    nameHeadings();
    return true;
}

// Gives every heading the name the book's contents and index link to, and
// starts each chapter on a new page when printed.
void CBookWindow::nameHeadings() {
    QTextDocument* doc = browser_->document();
    AnchorNamer namer;
    bool first = true;
    for (QTextBlock block = doc->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0)
            continue;
        const QString name = QString::fromStdString(namer.next(block.text().toStdString()));
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QTextCharFormat anchor;
        anchor.setAnchor(true);
        anchor.setAnchorNames({name});
        cursor.mergeCharFormat(anchor);
        if (level == 1 && !first) {
            QTextBlockFormat format = block.blockFormat();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            QTextCursor(block).setBlockFormat(format);
        }
        first = false;
    }
}

bool CBookWindow::hasAnchor(const QString& name) const {
    const QTextDocument* doc = browser_->document();
    for (QTextBlock block = doc->begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            if (it.fragment().charFormat().anchorNames().contains(name))
                return true;
    return false;
}

bool CBookWindow::saveAsPdf(const QString& path) const {
    QPdfWriter writer(path);
    writer.setTitle(QStringLiteral("TAVI Reference Book"));
    writer.setCreator(QStringLiteral("TAVI"));
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                     QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter));
    browser_->document()->print(&writer);
    return QFile(path).size() > 0;
}

void CBookWindow::print() {
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(QStringLiteral("Print the TAVI Reference Book"));
    if (dialog.exec() == QDialog::Accepted)
        browser_->document()->print(&printer);
}

void CBookWindow::savePdf() {
    const QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save the Reference Book as PDF"),
        QDir::home().filePath(QStringLiteral("TAVI Reference Book.pdf")),
        QStringLiteral("PDF file (*.pdf)"));
    if (!path.isEmpty())
        saveAsPdf(path);
}

} // namespace tavi::app
