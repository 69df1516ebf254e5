// The "$" speaker label line: up to three groups of labels separated by commas
// (without a comma, the first blank between labels counts as one). The first
// letter of each label is that speaker's identifier.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transcript/problems.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

struct SpeakerLineProblem {
    Problem id;
    std::string message;
};

struct ParsedSpeakerLine {
    SpeakerTable table;                       // the first three groups
    std::vector<SpeakerLineProblem> problems; // in the order found
};

// `labels` is the text after "$", with any comments and codes already blanked.
ParsedSpeakerLine parseSpeakerLine(std::string_view labels);

// The group (0, 1 or 2) whose labels have `id` as first letter, compared
// without regard to case; -1 when none has.
int speakerGroupOf(const SpeakerTable& table, char32_t id);

} // namespace tavi
