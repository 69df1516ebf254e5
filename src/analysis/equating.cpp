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

namespace tavi {

namespace {

constexpr std::string_view kTranscriptUntimedReset =
    "Timing information is not provided for the transcript. Comparison cannot be based on "
    "elapsed time and has been reset.";
constexpr std::string_view kDatabaseUntimedReset =
    "Timing information is not provided for transcripts in this database. Comparison cannot be "
    "based on elapsed time and has been reset.";

} // namespace

bool equatingAvailable(EquatingMethod method, const TranscriptAmount& amount,
                       DatabaseTiming timing) {
    switch (method) {
    case EquatingMethod::AnalysisSetUtterances:
        return amount.analysisSetUtterances > 0;
    case EquatingMethod::TotalWords:
        return amount.totalWords > 0;
    case EquatingMethod::ElapsedTime:
        return amount.elapsedSeconds.has_value() && *amount.elapsedSeconds > 0 &&
               timing != DatabaseTiming::None;
    case EquatingMethod::EntireTranscript:
        break;
    }
    return true;
}

std::string equatingOptionText(EquatingMethod method, const TranscriptAmount& amount,
                               DatabaseTiming timing, std::string_view setName) {
    switch (method) {
    case EquatingMethod::AnalysisSetUtterances:
        if (amount.analysisSetUtterances <= 0)
            return "Same number of analysis-set utterances - NOT AVAILABLE (0 utts in "
                   "transcript)";
        break;
    case EquatingMethod::ElapsedTime:
        if (!amount.elapsedSeconds || *amount.elapsedSeconds <= 0)
            return "Same amount of elapsed time - NOT AVAILABLE (timing not marked in transcript)";
        if (timing == DatabaseTiming::None)
            return "Same amount of elapsed time - NOT AVAILABLE (timing not marked in database)";
        break;
    case EquatingMethod::TotalWords:
    case EquatingMethod::EntireTranscript:
        break;
    }
    return equatingAmountText(method, amount, setName);
}

std::string_view equatingResetMessage(EquatingMethod method, const TranscriptAmount& amount,
                                      DatabaseTiming timing) {
    if (method != EquatingMethod::ElapsedTime)
        return {};
    if (!amount.elapsedSeconds || *amount.elapsedSeconds <= 0)
        return kTranscriptUntimedReset;
    if (timing == DatabaseTiming::None)
        return kDatabaseUntimedReset;
    return {};
}

TranscriptCut equatingCut(EquatingMethod method, const TranscriptAmount& amount,
                          const TranscriptCut& transcriptCut, bool applyCut, int speaker) {
    TranscriptCut cut = applyCut ? transcriptCut : TranscriptCut{};
    if (method == EquatingMethod::EntireTranscript)
        return cut;
    cut.endSpeaker = speaker == 1 ? 1 : 0;
    cut.endBase = 0; // analysis-set utterances
    cut.wordArea = 0;
    switch (method) {
    case EquatingMethod::TotalWords:
        cut.endType = TranscriptCut::ToWordCount;
        cut.endValue = amount.totalWords;
        break;
    case EquatingMethod::AnalysisSetUtterances:
        cut.endType = TranscriptCut::ToUtteranceCount;
        cut.endValue = amount.analysisSetUtterances;
        break;
    case EquatingMethod::ElapsedTime:
        cut.endType = TranscriptCut::ToElapsedTime;
        cut.endTime = amount.elapsedSeconds.value_or(0);
        break;
    case EquatingMethod::EntireTranscript:
        break;
    }
    return cut;
}

} // namespace tavi
