// Equating by length: how much of a comparison sample is used, and the texts
// that name the method and the transcript's own amount in report headers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "analysis/analysis_set.h"

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
