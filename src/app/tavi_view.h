// The transcript view: an editable text view that colours the notation and,
// a moment after typing stops, marks the lines that have checker problems,
// with each problem's message as the line's tooltip.
#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <vector>

#include "transcript/err.h"

namespace tavi::app {

class CTAVIDoc;
class NotationHighlighter;

class CTAVIView final : public QPlainTextEdit {
    Q_OBJECT
public:
    static constexpr int kCheckDelayMs = 800;

    explicit CTAVIView(CTAVIDoc& doc, QWidget* parent = nullptr);

    CTAVIDoc& doc() { return doc_; }
    // Moves the caret to the start of a 1-based line and shows it.
    void goToLine(int line);
    // Shows these problems as line marks (replacing the previous ones).
    void setProblems(std::vector<err> problems);
    const std::vector<err>& problems() const { return problems_; }
    // The messages of the problems on a 1-based line, one per row.
    QString problemText(int line) const;
    // Runs the checker now instead of waiting for the pause in typing.
    void checkNow();

Q_SIGNALS:
    void contextMenuWanted(QPoint globalPos);

protected:
    bool event(QEvent* e) override;
    void contextMenuEvent(QContextMenuEvent* e) override;

private:
    void markProblemLines();

    CTAVIDoc& doc_;
    NotationHighlighter* highlighter_;
    QTimer checkTimer_;
    std::vector<err> problems_;
};

} // namespace tavi::app
