// Computes the measure record of each main speaker.
#include "analysis/measures.h"

namespace tavi {

const Value* SpeakerMeasures::find(std::string_view name) const {
    auto id = measureIdByName(name);
    return id ? &values[static_cast<int>(*id)] : nullptr;
}

std::string SpeakerMeasures::formatted(MeasureId id) const {
    return formatValue((*this)[id], measureFormat(id));
}

MeasureResult computeMeasures(const SegmentedTranscript& transcript,
                              const MeasureOptions& options) {
    MeasureResult result;
    result.selection = selectUtterances(transcript, options.analysisSet, options.cut, {});
    result.speakers[1].speaker = 1;
    return result;
}

} // namespace tavi
