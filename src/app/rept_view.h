// The report view: a read-only rich-text view of a finished report.
#pragma once

#include <QTextEdit>

namespace tavi::app {

class CReptDoc;

class CReptView final : public QTextEdit {
    Q_OBJECT
public:
    explicit CReptView(CReptDoc& doc, QWidget* parent = nullptr);
    CReptDoc& doc() { return doc_; }
    // What a double-click on text block `block` does: hands the document's
    // line handler that block's text and the texts of the blocks above it,
    // nearest first. Nothing when the report has no line handler.
    void activateBlock(int block);

Q_SIGNALS:
    void contextMenuWanted(QPoint globalPos);

protected:
    void contextMenuEvent(QContextMenuEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;

private:
    CReptDoc& doc_;
};

} // namespace tavi::app
