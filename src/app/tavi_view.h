// The transcript view: an editable text view that colours the notation and
// marks the lines that have checker problems (kept by the document), with
// each problem's message as the line's tooltip.
#pragma once

#include <QPlainTextEdit>

namespace tavi::app {

class CTAVIDoc;
class NotationHighlighter;

class CTAVIView final : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit CTAVIView(CTAVIDoc& doc, QWidget* parent = nullptr);

    CTAVIDoc& doc() { return doc_; }
    // Moves the caret to the start of a 1-based line and shows it.
    void goToLine(int line);
    const NotationHighlighter& highlighter() const { return *highlighter_; }

Q_SIGNALS:
    void contextMenuWanted(QPoint globalPos);

protected:
    bool event(QEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;
    // A new colour scheme: the notation colours and problem marks follow it.
    void changeEvent(QEvent* e) override;

private:
    void markProblemLines();

    CTAVIDoc& doc_;
    NotationHighlighter* highlighter_;
};

} // namespace tavi::app
