// Utterance segmentation: an utterance line cut into the record the analysis
// counts (words with roots, bound morphemes, clitics and flags; codes; mazes;
// parenthetical remarks; pauses; terminator). The checker runs the very same
// code with a problem sink, so the notation's rules live in one place.
#pragma once

#include <string>
#include <string_view>

#include "transcript/problems.h"
#include "transcript/segmented_transcript.h"
#include "transcript/tran_line.h"
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

// Cuts one utterance line. `speakerGroup` is the group of its identifier (the
// caller looks it up; 2 when unknown). Problems go to `sink` when given.
Utterance segmentUtterance(std::string_view line, int lineNumber, int speakerGroup,
                           ProblemSink* sink = nullptr);

// The same, looking the identifier up in `speakers` (unknown identifiers: group 2).
Utterance segmentUtterance(std::string_view line, int lineNumber, const SpeakerTable& speakers);

// Cuts a whole transcript: the speaker table, header lines, utterances, timing
// and pause lines and sections, in line order.
SegmentedTranscript segmentTranscript(const TranLines& lines);

// Reusable segmenter: keeps its scratch buffers between lines, so cutting many
// lines allocates little. `out` is overwritten.
class UtteranceSegmenter {
public:
    void segment(std::string_view line, int lineNumber, int speakerGroup, Utterance& out,
                 ProblemSink* sink = nullptr);

    // Checking only: the same rules and problems, but the words are checked
    // without being kept (`out.words` stays empty), which makes checking a
    // large transcript much faster.
    void check(std::string_view line, int lineNumber, int speakerGroup, Utterance& out,
               ProblemSink& sink);

private:
    void run(std::string_view line, int lineNumber, int speakerGroup, Utterance& out,
             ProblemSink* sink, bool keepWords);

    std::u32string buf_;
    std::u32string scratch_;
    Word wordScratch_;
};

} // namespace tavi
