// Editing, colouring and live problem marks of a transcript.
#include "app/tavi_view.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QTextBlock>
#include <QToolTip>

#include "app/notation_highlighter.h"
#include "app/palette_colours.h"
#include "app/tavi_doc.h"

namespace tavi::app {

CTAVIView::CTAVIView(CTAVIDoc& doc, QWidget* parent)
    : QPlainTextEdit(parent), doc_(doc), highlighter_(new NotationHighlighter(doc.document())) {
    setDocument(doc.document());
    highlighter_->setPalette(palette());
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
        const QColor tint = e.isWarning() ? QColor(0xd8, 0x90, 0x00) : QColor(Qt::red);
        mark.format.setUnderlineColor(readableOn(tint, palette().color(QPalette::Base), 3));
        mark.format.setBackground(tintedBase(palette(), tint, e.isWarning() ? 0.15 : 0.12));
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

void CTAVIView::changeEvent(QEvent* e) {
    QPlainTextEdit::changeEvent(e);
    if (e->type() == QEvent::PaletteChange) {
        highlighter_->setPalette(palette());
        markProblemLines();
    }
}

void CTAVIView::contextMenuEvent(QContextMenuEvent* e) {
    Q_EMIT contextMenuWanted(e->globalPos());
}

} // namespace tavi::app
