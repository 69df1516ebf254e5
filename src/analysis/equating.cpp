// Texts that name the equating method and the transcript's own amount.
#include "analysis/equating.h"

#include "base/format.h"

namespace tavi {

std::string_view equatingLabel(EquatingMethod method) {
    switch (method) {
    case EquatingMethod::AnalysisSetUtterances:
        return "Same number of analysis-set utterances";
    case EquatingMethod::ElapsedTime:
        return "Same amount of elapsed time";
    case EquatingMethod::TotalWords:
        return "Same number of total words";
    case EquatingMethod::EntireTranscript:
        break;
    }
    return "Entire transcript (regardless of length)";
}

std::string equatingHeader(EquatingMethod method, std::string_view setName) {
    switch (method) {
    case EquatingMethod::AnalysisSetUtterances:
        return format("Same Number of %s", std::string(setName).c_str());
    case EquatingMethod::ElapsedTime:
        return format("Same Amount of %s", "Elapsed Time");
    case EquatingMethod::TotalWords:
        return format("Same %s", "NTW");
    case EquatingMethod::EntireTranscript:
        break;
    }
    return "Entire transcript (regardless of length)";
}

std::string equatingAmountText(EquatingMethod method, const TranscriptAmount& amount,
                               std::string_view setName) {
    switch (method) {
    case EquatingMethod::AnalysisSetUtterances:
        return format("Same number of analysis-set utterances (%d %s)",
                      amount.analysisSetUtterances, std::string(setName).c_str());
    case EquatingMethod::TotalWords:
        if (amount.totalWords <= 0)
            return "Same number of total words - NOT AVAILABLE (0 NTW in transcript)";
        return format("Same number of total words (%d NTW)", amount.totalWords);
    case EquatingMethod::ElapsedTime: {
        if (!amount.elapsedSeconds)
            return "Same amount of elapsed time - NOT AVAILABLE (timing not marked in transcript)";
        int m = *amount.elapsedSeconds / 60, s = *amount.elapsedSeconds % 60;
        return s < 10 ? format("Same amount of elapsed time (%d:0%d)", m, s)
                      : format("Same amount of elapsed time (%d:%d)", m, s);
    }
    case EquatingMethod::EntireTranscript:
        break;
    }
    return "Entire transcript (regardless of length)";
}

std::string analysisSetName(const AnalysisSet& set) {
    return set == AnalysisSet{} ? "C&I Verbal Utts" : "Analysis Set Utts";
}

} // namespace tavi
