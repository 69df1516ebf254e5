// A whole transcript cut into its pieces, in line order: what the analysis
// walks. Utterances carry their segmentation; the other lines that matter to
// selection and measures (timing, pauses between utterances, sections, codes
// on identifier lines) are kept as entries beside them.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/atbeginend.h"
#include "transcript/transcript_store.h"
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

enum class EntryKind : std::int8_t {
    Utterance, // `utterance` indexes SegmentedTranscript::utterances
    Timing,    // "-" line; `seconds` is the elapsed time, -1 when unreadable or missing
    Pause,     // ":" (pauseKind 0) or ";" (pauseKind 1) line; `seconds` 0 when untimed
    Begin,     // "@begin"
    End,       // "@end"
};

// The codes written on a timing or pause line: one pointer to a run kept in
// the transcript's store, as most lines have none.
class EntryCodes {
public:
    EntryCodes() = default;
    explicit EntryCodes(const std::span<const std::string_view>* run) : run_(run) {}

    std::span<const std::string_view> view() const {
        return run_ ? *run_ : std::span<const std::string_view>();
    }
    auto begin() const { return view().begin(); }
    auto end() const { return view().end(); }
    bool empty() const { return view().empty(); }
    size_t size() const { return view().size(); }

private:
    const std::span<const std::string_view>* run_ = nullptr;
};

struct Entry {
    EntryKind kind = EntryKind::Utterance;
    std::int8_t pauseKind = 0;
    int line = 0;
    int utterance = -1;
    int seconds = -1;
    EntryCodes codes; // codes written on a timing or pause line (in the store)
};

static_assert(sizeof(Entry) <= 24, "an entry is kept for every line of a transcript");

struct HeaderLine {
    std::string keyword; // text between "+" and ":", trimmed
    std::string value;   // text after ":", trimmed
    int line = 0;
};

// The utterances' words, codes and other pieces are views into `store`,
// which the transcript owns (its copies share it): a segmented transcript
// stands alone, whatever became of the text it was cut from.
struct SegmentedTranscript {
    std::shared_ptr<TranscriptStore> store = std::make_shared<TranscriptStore>();
    SpeakerTable speakers;
    std::vector<HeaderLine> headers;
    std::vector<Utterance> utterances;
    std::vector<Entry> entries; // in line order
    std::vector<atbeginend> sections;
};

} // namespace tavi
