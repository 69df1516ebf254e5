// Editing, colouring and live problem marks of a transcript.
#include "app/tavi_view.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QTextBlock>
#include <QToolTip>

#include "app/notation_highlighter.h"
#include "app/tavi_doc.h"

namespace tavi::app {

CTAVIView::CTAVIView(CTAVIDoc& doc, QWidget* parent)
    : QPlainTextEdit(parent), doc_(doc), highlighter_(new NotationHighlighter(doc.document())) {
    setDocument(doc.document());
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    connect(&doc_, &CTAVIDoc::problemsChanged, this, &CTAVIView::markProblemLines);
    markProblemLines();
}

void CTAVIView::goToLine(int line) {
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    setTextCursor(cursor);
    centerCursor();
    setFocus();
}

void CTAVIView::markProblemLines() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const err& e : doc_.problems()) {
        const QTextBlock block = document()->findBlockByNumber(e.line - 1);
        if (!block.isValid())
            continue;
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(block);
        mark.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        mark.format.setUnderlineColor(e.isWarning() ? QColor(0xd8, 0x90, 0x00) : Qt::red);
        mark.format.setBackground(e.isWarning() ? QColor(0xff, 0xf6, 0xd8)
                                                : QColor(0xff, 0xe8, 0xe8));
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks << mark;
    }
    setExtraSelections(marks);
}

bool CTAVIView::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(e);
        const QPoint inViewport = viewport()->mapFromGlobal(help->globalPos());
        const int line = cursorForPosition(inViewport).blockNumber() + 1;
        const QString text = doc_.problemText(line);
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this);
        return true;
    }
    return QPlainTextEdit::event(e);
}

void CTAVIView::contextMenuEvent(QContextMenuEvent* e) {
    Q_EMIT contextMenuWanted(e->globalPos());
}

} // namespace tavi::app
