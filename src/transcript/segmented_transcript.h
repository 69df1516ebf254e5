// A whole transcript cut into its pieces, in line order: what the analysis
// walks. Utterances carry their segmentation; the other lines that matter to
// selection and measures (timing, pauses between utterances, sections, codes
// on identifier lines) are kept as entries beside them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "transcript/atbeginend.h"
#include "transcript/utterance.h"

namespace tavi {

// The three speaker groups of the "$" line: groups 0 and 1 are the main
// speakers, group 2 holds every other speaker.
struct SpeakerGroup {
    std::vector<std::string> labels; // as written, e.g. "Child"
};

struct SpeakerTable {
    std::array<SpeakerGroup, 3> groups;
    bool hasSecondSpeaker() const { return !groups[1].labels.empty(); }
};

enum class EntryKind {
    Utterance, // `utterance` indexes SegmentedTranscript::utterances
    Timing,    // "-" line; `seconds` is the elapsed time, -1 when unreadable or missing
    Pause,     // ":" (pauseKind 0) or ";" (pauseKind 1) line; `seconds` 0 when untimed
    Begin,     // "@begin"
    End,       // "@end"
};

struct Entry {
    EntryKind kind = EntryKind::Utterance;
    int line = 0;
    int utterance = -1;
    int seconds = -1;
    int pauseKind = 0;
    std::vector<std::string> codes; // codes written on a timing or pause line
};

struct HeaderLine {
    std::string keyword; // text between "+" and ":", trimmed
    std::string value;   // text after ":", trimmed
    int line = 0;
};

struct SegmentedTranscript {
    SpeakerTable speakers;
    std::vector<HeaderLine> headers;
    std::vector<Utterance> utterances;
    std::vector<Entry> entries; // in line order
    std::vector<atbeginend> sections;
};

} // namespace tavi
