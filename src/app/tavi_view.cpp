// Editing, colouring and live problem marks of a transcript.
#include "app/tavi_view.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QTextBlock>
#include <QToolTip>

#include "app/core_bridge.h"
#include "app/notation_highlighter.h"
#include "app/tavi_doc.h"

namespace tavi::app {

CTAVIView::CTAVIView(CTAVIDoc& doc, QWidget* parent)
    : QPlainTextEdit(parent), doc_(doc), highlighter_(new NotationHighlighter(doc.document())) {
    setDocument(doc.document());
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    checkTimer_.setSingleShot(true);
    checkTimer_.setInterval(kCheckDelayMs);
    connect(document(), &QTextDocument::contentsChanged, &checkTimer_, qOverload<>(&QTimer::start));
    connect(&checkTimer_, &QTimer::timeout, this, &CTAVIView::checkNow);
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

void CTAVIView::setProblems(std::vector<err> problems) {
    problems_ = std::move(problems);
    markProblemLines();
}

QString CTAVIView::problemText(int line) const {
    QStringList rows;
    for (const err& e : problems_)
        if (e.line == line)
            rows << QString::fromStdString(e.message);
    return rows.join(QLatin1Char('\n'));
}

void CTAVIView::markProblemLines() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const err& e : problems_) {
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
        const QString text = problemText(line);
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

void CTAVIView::checkNow() {
    checkTimer_.stop();
    if (checkerAvailable())
        setProblems(checkTranscript(doc_.app(), doc_.lines()));
}

} // namespace tavi::app
