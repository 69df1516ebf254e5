// Every transcript line is one kind, decided by its first character.
#pragma once

#include <string_view>

namespace tavi {

enum class LineKind {
    Blank,         // empty or only white space: ignored
    SpeakerLabels, // "$"
    Header,        // "+"
    Comment,       // "="
    Timing,        // "-"
    Pause,         // ":" or ";"
    Section,       // "@"
    Utterance,     // any other character that may begin an utterance
    Invalid,       // a notation character that may not begin an utterance line
};

LineKind classifyLine(std::string_view text);

// True for the kinds that pass the identifier check ("$", ":", ";", "-", "@").
constexpr bool isIdentifierLine(LineKind kind) {
    return kind == LineKind::SpeakerLabels || kind == LineKind::Timing || kind == LineKind::Pause ||
           kind == LineKind::Section;
}

} // namespace tavi
