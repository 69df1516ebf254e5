// Colours the transcript notation as it is typed: the speaker identifier,
// codes, mazes, parenthetical remarks, comments, pauses, and the header,
// speaker, timing, pause, section and comment lines.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

namespace tavi::app {

class NotationHighlighter final : public QSyntaxHighlighter {
    Q_OBJECT
public:
    // The colours suit the application's palette until `setPalette`.
    explicit NotationHighlighter(QTextDocument* document);
    // Colours readable on this palette's text background; the text is
    // coloured anew.
    void setPalette(const QPalette& palette);

    enum class Role {
        Speaker,
        Code,
        Maze,
        Parenthetical,
        Comment,
        Pause,
        Overlap,
        SpeakerLine,
        HeaderLine,
        CommentLine,
        TimingLine,
        PauseLine,
        SectionLine,
        Count
    };
    const QTextCharFormat& format(Role role) const { return formats_[static_cast<int>(role)]; }

protected:
    void highlightBlock(const QString& text) override;

private:
    void highlightUtterance(const QString& text);
    void paintBracketed(const QString& text, QChar open, QChar close, Role role);
    void apply(int start, int length, Role role) { setFormat(start, length, format(role)); }

    QTextCharFormat formats_[static_cast<int>(Role::Count)];
};

} // namespace tavi::app
