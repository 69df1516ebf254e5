// Analysis values of a stored sample.
#include "database/sample_values.h"

#include <algorithm>
#include <limits>

namespace tavi::db {

namespace {

std::int32_t countOf(const Value& v) {
    auto n = v.number();
    return n ? static_cast<std::int32_t>(*n) : 0;
}

std::uint16_t small(std::int32_t n) {
    return static_cast<std::uint16_t>(
        std::clamp<std::int32_t>(n, 0, std::numeric_limits<std::uint16_t>::max()));
}

} // namespace

SampleValuesFiller analysisValues(AnalysisContext context) {
    return [context = std::move(context)](const TranLines& lines, int speaker, sd2& record) {
        const TranscriptAnalysis analysis = analyseTranscript(lines, context);
        const CheckResult& checked = analysis.check;
        const SpeakerMeasures& m = analysis.result.speakers[speaker == 2 ? 1 : 0];
        SetValues set{countOf(m[MeasureId::NTW]), countOf(m[MeasureId::TotASetUt]),
                      checked.elapsedSeconds};
        record.setCount = 1;
        record.sets[0] = set;
        record.setUtterances[0] = small(set.setUtterances);
        record.speakerValue = small(set.setUtterances);
        record.transcriptValue = small(checked.utteranceCount);
        record.flags |= kFlagValues;
    };
}

} // namespace tavi::db
