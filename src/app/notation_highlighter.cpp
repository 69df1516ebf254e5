// The notation's colours, decided per line from its first character and,
// inside utterances, from the brackets and pause marks.
#include "app/notation_highlighter.h"

#include <QGuiApplication>
#include <QRegularExpression>

#include "app/palette_colours.h"

namespace tavi::app {
namespace {

// The colours are chosen for a light background; `readableOn` brightens
// them on a dark one.
QTextCharFormat makeFormat(const QColor& base, const char* colour, bool bold = false,
                           bool italic = false) {
    QTextCharFormat f;
    f.setForeground(readableOn(QColor(QLatin1String(colour)), base));
    if (bold)
        f.setFontWeight(QFont::Bold);
    f.setFontItalic(italic);
    return f;
}

} // namespace

NotationHighlighter::NotationHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {
    setPalette(QGuiApplication::palette());
}

void NotationHighlighter::setPalette(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    auto set = [this, &base](Role r, const char* colour, bool bold = false, bool italic = false) {
        formats_[static_cast<int>(r)] = makeFormat(base, colour, bold, italic);
    };
    set(Role::Speaker, "#1f4e9c", true);
    set(Role::Code, "#b03a00");
    set(Role::Maze, "#7b3fa0");
    set(Role::Parenthetical, "#5d6b7a", false, true);
    set(Role::Comment, "#2e7d32", false, true);
    set(Role::Pause, "#c77700", true);
    set(Role::Overlap, "#00796b");
    set(Role::SpeakerLine, "#1f4e9c", true);
    set(Role::HeaderLine, "#00695c");
    set(Role::CommentLine, "#6d6d6d", false, true);
    set(Role::TimingLine, "#ad1457", true);
    set(Role::PauseLine, "#c77700", true);
    set(Role::SectionLine, "#4527a0", true);
    rehighlight();
}

void NotationHighlighter::highlightBlock(const QString& text) {
    if (text.isEmpty())
        return;
    const int n = static_cast<int>(text.size());
    switch (text.front().unicode()) {
    case '$':
        return apply(0, n, Role::SpeakerLine);
    case '+':
        return apply(0, n, Role::HeaderLine);
    case '=':
        return apply(0, n, Role::CommentLine);
    case '-':
        return apply(0, n, Role::TimingLine);
    case ':':
    case ';':
        return apply(0, n, Role::PauseLine);
    case '@':
        return apply(0, n, Role::SectionLine);
    default:
        if (!text.front().isSpace())
            highlightUtterance(text);
    }
}

void NotationHighlighter::highlightUtterance(const QString& text) {
    apply(0, 1, Role::Speaker);
    paintBracketed(text, QLatin1Char('('), QLatin1Char(')'), Role::Maze);
    static const QRegularExpression parenthetical(QStringLiteral(R"(\(\([^)]*\)\))"));
    for (auto it = parenthetical.globalMatch(text); it.hasNext();) {
        const auto m = it.next();
        apply(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()),
              Role::Parenthetical);
    }
    paintBracketed(text, QLatin1Char('<'), QLatin1Char('>'), Role::Overlap);
    static const QRegularExpression pause(QStringLiteral(R"((?<=\s|^)[:;][0-9:.]*(?=\s|$))"));
    for (auto it = pause.globalMatch(text, 1); it.hasNext();) {
        const auto m = it.next();
        apply(static_cast<int>(m.capturedStart()), static_cast<int>(m.capturedLength()),
              Role::Pause);
    }
    paintBracketed(text, QLatin1Char('['), QLatin1Char(']'), Role::Code);
    paintBracketed(text, QLatin1Char('{'), QLatin1Char('}'), Role::Comment);
}

// Paints every stretch from `open` to its `close` (or the line's end). A
// closing ">" that is the line's terminator is left alone.
void NotationHighlighter::paintBracketed(const QString& text, QChar open, QChar close, Role role) {
    qsizetype from = text.indexOf(open, 1);
    while (from >= 0) {
        qsizetype to = text.indexOf(close, from + 1);
        if (to < 0)
            to = text.size() - 1;
        apply(static_cast<int>(from), static_cast<int>(to - from + 1), role);
        from = text.indexOf(open, to + 1);
    }
}

} // namespace tavi::app
