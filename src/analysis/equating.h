// Equating by length: how much of a comparison sample is used, and the texts
// that name the method and the transcript's own amount in report headers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis_set.h"
#include "analysis/transcript_cut.h"

namespace tavi {

enum class EquatingMethod { AnalysisSetUtterances, ElapsedTime, TotalWords, EntireTranscript };

// "Same number of analysis-set utterances", "Same amount of elapsed time",
// "Same number of total words", "Entire transcript (regardless of length)".
std::string_view equatingLabel(EquatingMethod method);

// The header form: "Same Number of %s" (with the analysis set's name),
// "Same %s" (with "NTW"), "Same Amount of %s" (with "Elapsed Time"), or the
// entire-transcript label.
std::string equatingHeader(EquatingMethod method, std::string_view analysisSetName);

// The transcript's own amount: "Same number of analysis-set utterances (%d %s)",
// "Same number of total words (%d NTW)", "Same amount of elapsed time (%d:%d)";
// or the "NOT AVAILABLE" forms when the transcript has no words or no timing.
struct TranscriptAmount {
    int analysisSetUtterances = 0;
    int totalWords = 0;
    std::optional<int> elapsedSeconds; // empty when timing is not marked
};
std::string equatingAmountText(EquatingMethod method, const TranscriptAmount& amount,
                               std::string_view analysisSetName);

// The analysis set's short name: "C&I Verbal Utts" for the defaults.
std::string analysisSetName(const AnalysisSet& set);

} // namespace tavi

namespace tavi {

// Whether the samples a transcript is compared with mark their timing.
enum class DatabaseTiming { All, Some, None };

// The option as the selection shows it: the transcript's amount, or the
// method with the reason it cannot be used ("Same number of total words -
// NOT AVAILABLE (0 NTW in transcript)", "... (timing not marked in
// database)"); the entire-transcript label for EntireTranscript.
std::string equatingOptionText(EquatingMethod method, const TranscriptAmount& amount,
                               DatabaseTiming timing, std::string_view analysisSetName);

// Whether the method can equate this transcript with these samples.
bool equatingAvailable(EquatingMethod method, const TranscriptAmount& amount,
                       DatabaseTiming timing);

// What is said when a chosen elapsed-time equating has become impossible and
// is reset ("Timing information is not provided for the transcript. ..."); empty
// otherwise.
std::string_view equatingResetMessage(EquatingMethod method, const TranscriptAmount& amount,
                                      DatabaseTiming timing);

inline constexpr std::string_view kSomeSamplesUntimed =
    "Note: timing information is missing for some transcripts in this database.";
inline constexpr std::string_view kNoEquatingMethods =
    "No methods available - using all matched samples";

// The cut a comparison sample is analysed with: from the transcript cut's
// start when `applyCut` (else from the beginning) up to the transcript's
// amount of total words, analysis-set utterances or elapsed time of the
// sample's `speaker` (0 the 1st, 1 the 2nd). With EntireTranscript the
// sample is read whole, or through the transcript's cut when `applyCut`.
TranscriptCut equatingCut(EquatingMethod method, const TranscriptAmount& amount,
                          const TranscriptCut& transcriptCut, bool applyCut, int speaker);

} // namespace tavi
