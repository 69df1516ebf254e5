// Line classification by first character.
#include "transcript/line_kind.h"

#include "base/text.h"
#include "transcript/char_class.h"

namespace tavi {

namespace {

// cls::cannotBeginUtterance of each ASCII character.
struct AsciiStarts {
    bool cannotBegin[128] = {};
    constexpr AsciiStarts() {
        for (char32_t c = 0; c < 128; ++c)
            cannotBegin[c] = cls::cannotBeginUtterance(c);
    }
};
constexpr AsciiStarts kAsciiStarts;

} // namespace

LineKind classifyLine(std::string_view text) {
    // A line that begins with other than white space is not blank.
    if ((text.empty() || isBlank(text[0])) && trim(text).empty())
        return LineKind::Blank;
    char32_t first = static_cast<unsigned char>(text[0]);
    if (first >= 0x80) {
        size_t pos = 0;
        first = nextCodePoint(text, pos);
    }
    switch (first) {
    case U'$':
        return LineKind::SpeakerLabels;
    case U'+':
        return LineKind::Header;
    case U'=':
        return LineKind::Comment;
    case U'-':
        return LineKind::Timing;
    case U':':
    case U';':
        return LineKind::Pause;
    case U'@':
        return LineKind::Section;
    default:
        break;
    }
    const bool cannotBegin =
        first < 128 ? kAsciiStarts.cannotBegin[first] : cls::cannotBeginUtterance(first);
    return cannotBegin ? LineKind::Invalid : LineKind::Utterance;
}

} // namespace tavi
