// Showing a report.
#include "app/rept_view.h"

#include <QContextMenuEvent>
#include <QTextBlock>

#include "app/rept_doc.h"

namespace tavi::app {

CReptView::CReptView(CReptDoc& doc, QWidget* parent) : QTextEdit(parent), doc_(doc) {
    setReadOnly(true);
    setHtml(doc.content().html);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // Text can be selected and copied, but nothing can be typed: no caret.
    setCursorWidth(0);
}

void CReptView::contextMenuEvent(QContextMenuEvent* e) {
    Q_EMIT contextMenuWanted(e->globalPos());
}

void CReptView::mouseDoubleClickEvent(QMouseEvent* e) {
    QTextEdit::mouseDoubleClickEvent(e);
    activateBlock(cursorForPosition(e->position().toPoint()).blockNumber());
}

void CReptView::activateBlock(int block) {
    if (!doc_.lineActivated)
        return;
    QStringList texts;
    for (QTextBlock b = document()->findBlockByNumber(block); b.isValid(); b = b.previous())
        texts << b.text();
    if (!texts.isEmpty())
        doc_.lineActivated(texts);
}

} // namespace tavi::app
