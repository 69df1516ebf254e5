// Utterance segmentation: an utterance line cut into the record the analysis
// counts (words with roots, bound morphemes, clitics and flags; codes; mazes;
// parenthetical remarks; pauses; terminator). The checker runs the very same
// code with a problem sink, so the notation's rules live in one place.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "transcript/problems.h"
#include "transcript/segmented_transcript.h"
#include "transcript/tran_line.h"
#include "transcript/transcript_store.h"
#include "transcript/utterance.h"

namespace tavi {

// Receives what segmentation finds while it cuts a line. The checker turns the
// problems into `err` records; segmentation alone passes no sink.
class ProblemSink {
public:
    virtual ~ProblemSink() = default;
    virtual void problem(Problem id, std::string message) = 0;
    template <class... A> void report(ProblemRef<A...> p, const A&... args) {
        problem(p.id, problemText(p, args...));
    }
    // A within-utterance pause, at the moment it is read (the checker tallies it).
    virtual void pause(const Pause&) {}
};

// Cuts one utterance line, keeping its pieces in `store` (the line too).
// `speakerGroup` is the group of its identifier (the caller looks it up; 2
// when unknown). Problems go to `sink` when given.
Utterance segmentUtterance(std::string_view line, int lineNumber, int speakerGroup,
                           TranscriptStore& store, ProblemSink* sink = nullptr);

// The same, looking the identifier up in `speakers` (unknown identifiers: group 2).
Utterance segmentUtterance(std::string_view line, int lineNumber, const SpeakerTable& speakers,
                           TranscriptStore& store);

// Cuts a whole transcript: the speaker table, header lines, utterances, timing
// and pause lines and sections, in line order.
SegmentedTranscript segmentTranscript(const TranLines& lines);

// Reusable segmenter: keeps its scratch buffers between lines, so cutting many
// lines allocates little.
class UtteranceSegmenter {
public:
    UtteranceSegmenter();
    ~UtteranceSegmenter();
    UtteranceSegmenter(const UtteranceSegmenter&) = delete;
    UtteranceSegmenter& operator=(const UtteranceSegmenter&) = delete;

    // Cuts `line` into `out`, keeping its words, codes and other pieces in
    // `store`. Views into `line` are kept as they are: the line must live as
    // long as the store (e.g. be kept in it).
    void segment(std::string_view line, int lineNumber, int speakerGroup, TranscriptStore& store,
                 Utterance& out, ProblemSink* sink = nullptr);

    // Checking only: the same rules and problems, but nothing is kept, which
    // makes checking a large transcript much faster.
    void check(std::string_view line, int lineNumber, int speakerGroup, ProblemSink& sink);

    // Cuts every line from its decoded code points, also the all-ASCII lines
    // that are otherwise cut straight from their bytes: for tests that compare
    // the two ways of cutting.
    void setCodePointsOnly(bool on);

    struct Scratch;

private:
    std::unique_ptr<Scratch> scratch_;
};

} // namespace tavi
