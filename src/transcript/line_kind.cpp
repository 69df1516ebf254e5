// Line classification by first character.
#include "transcript/line_kind.h"

#include "base/text.h"
#include "transcript/char_class.h"

namespace tavi {

LineKind classifyLine(std::string_view text) {
    if (trim(text).empty())
        return LineKind::Blank;
    size_t pos = 0;
    char32_t first = nextCodePoint(text, pos);
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
    return cls::cannotBeginUtterance(first) ? LineKind::Invalid : LineKind::Utterance;
}

} // namespace tavi
