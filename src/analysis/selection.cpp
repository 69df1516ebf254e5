// Response types, the analysis set test and the transcript cut.
#include "analysis/selection.h"

namespace tavi {

std::string_view cutOutcomeMessage(CutOutcome outcome) {
    switch (outcome) {
    case CutOutcome::NoMarkers:
        return "No cut markers found - no utterances included";
    case CutOutcome::BeginNotFound:
        return "Beginning cut marker not found - no utterances included";
    case CutOutcome::NoTiming:
        return "Timing markers not found - no utterances included";
    case CutOutcome::EndBeforeFinal:
        return "@end encountered before final cut marker";
    case CutOutcome::FinalNotFound:
        return "Final cut marker not found - end of transcript used";
    case CutOutcome::Complete:
        break;
    }
    return {};
}

Selection selectUtterances(const SegmentedTranscript& t, const AnalysisSet&, const TranscriptCut&,
                           const YesNoTest&) {
    Selection s;
    s.responses.resize(t.utterances.size());
    s.analysisSetFlags.resize(t.utterances.size());
    return s;
}

} // namespace tavi
