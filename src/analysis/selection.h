// Which utterances an analysis reads: the transcript cut chooses a stretch of
// the transcript, the analysis set the utterances within it that enter the
// analysis-set counts. Response types (Q, Y, P, I, O) are decided here too,
// because the analysis set can exclude them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_set.h"
#include "analysis/transcript_cut.h"
#include "analysis/word_lists.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

// Response types of one utterance, decided from the utterance just before it.
// One bit each: a record is kept for every utterance.
struct ResponseType {
    bool question : 1 = false;         // Q: first utterance after the other main speaker's "?"
    bool yesNo : 1 = false;            // Y: a Q utterance whose first word is a yes/no word
    bool prompt : 1 = false;           // P: first utterance after the other main speaker's "~"
    bool imitation : 1 = false;        // I: exact or reduced imitation of the other's utterance
    bool exactImitation : 1 = false;   // same words as the other's preceding utterance
    bool reducedImitation : 1 = false; // fewer of its words, in the same order
    bool oneWord : 1 = false;          // O: exactly one main-body word

    bool operator==(const ResponseType&) const = default;
};

// Shown by the utterance lists when no yes/no word list is at hand.
inline constexpr std::string_view kYesNoListMissing =
    "Yes/no responses not determined - list not available.";

// Tells whether a word (lower case, marks removed) is on the yes/no word list.
// An empty test means the list is not available: no utterance is type Y.
using YesNoTest = WordTest;

// One entry per utterance of the transcript, in the same order.
std::vector<ResponseType> classifyResponses(const SegmentedTranscript& t, const YesNoTest& yesNo);

// Whether one utterance passes every test of the analysis set.
bool inAnalysisSet(const Utterance& u, const ResponseType& r, const AnalysisSet& set);

// What happened at the cut's start and end points.
enum class CutOutcome {
    Complete,       // both points found (or no cut)
    NoMarkers,      // "No cut markers found - no utterances included"
    BeginNotFound,  // "Beginning cut marker not found - no utterances included"
    NoTiming,       // "Timing markers not found - no utterances included"
    EndBeforeFinal, // "@end encountered before final cut marker"
    FinalNotFound,  // "Final cut marker not found - end of transcript used"
};

// The message the user is shown for an outcome; empty for Complete.
std::string_view cutOutcomeMessage(CutOutcome outcome);

struct SpeakerSelection {
    std::vector<int> total;       // indices into SegmentedTranscript::utterances, in order
    std::vector<int> analysisSet; // the subset that passes the analysis set
};

struct Selection {
    std::array<SpeakerSelection, 2> speakers; // the two main speakers
    std::vector<int> utterances;         // every utterance inside the cut, any speaker, in order
    std::vector<ResponseType> responses; // per utterance of the transcript
    std::vector<bool> analysisSetFlags;  // per utterance: passes the analysis set
    std::size_t firstEntry = 0;          // entries [firstEntry, endEntry) lie inside the cut
    // The words (main body and mazes) and remark words of the utterances
    // inside the cut, and how many of them have codes: room the measures make
    // for them at once.
    std::size_t words = 0, remarkWords = 0, withCodes = 0;
    std::size_t endEntry = 0;
    CutOutcome outcome = CutOutcome::Complete;
    // Elapsed time of the cut from its timing lines; empty when it has none.
    std::optional<int> elapsedSeconds;
    // The time of the timing line in force before the cut's first utterance
    // (0 when there is none), which elapsedSeconds has subtracted.
    int elapsedStart = 0;
};

// Applies the cut and the analysis set. Never shows anything: the caller shows
// cutOutcomeMessage(result.outcome) when it is not empty.
Selection selectUtterances(const SegmentedTranscript& t, const AnalysisSet& set,
                           const TranscriptCut& cut, const YesNoTest& yesNo);

// The cut as text for report headers and batch output, cut to `maxLength`
// characters keeping its beginning. `setWord` names analysis-set utterances
// in start and end points ("Anal. Set Utt" by default); the plural adds "s".
std::string describeCut(const TranscriptCut& cut, std::size_t maxLength,
                        std::string_view setWord = "Anal. Set Utt");

} // namespace tavi
