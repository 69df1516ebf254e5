// Measures, header and report for one transcript.
#include "reports/transcript_report.h"

#include <cmath>

#include "analysis/selection.h"
#include "reports/utterance_types_report.h"

namespace tavi {

namespace {

constexpr size_t kCutDescriptionLength = 80;

std::string speakerLabel(const SegmentedTranscript& transcript, int speaker) {
    std::string label;
    for (const auto& name : transcript.speakers.groups[static_cast<size_t>(speaker)].labels)
        label += (label.empty() ? "" : ", ") + name;
    return label;
}

} // namespace

LabelSource labelSource(const LabelTable& table, LanguageSlot slot) {
    return [&table, slot](std::string_view key) { return table.get(slot, key); };
}

MeasureSource measureSource(const SpeakerMeasures& measures) {
    return [&measures](std::string_view id) -> std::optional<double> {
        const Value* value = measures.find(id);
        return value ? value->number() : std::nullopt;
    };
}

Report buildTranscriptReport(const TranscriptAnalysis& analysis, const Settings& settings,
                             const TranscriptReportRequest& request) {
    const int speaker = analysis.speaker;
    const SegmentedTranscript& transcript = analysis.check.segmented;
    const LabelSource labels = labelSource(settings.labels, request.slot);
    const SpeakerMeasures& record = analysis.measures();
    const MeasureSource values = measureSource(record);
    TranscriptReportContext context;
    context.transcriptName = request.transcriptName;
    context.speaker = speaker;
    context.speakerLabel = speakerLabel(transcript, speaker);
    context.analysisSetName = analysisSetName(settings.analysisSet, labels);
    context.wordBase = wordBaseDescription(settings.wordBase, labels);
    context.cutDescription = settings.transcriptCut.isEntireTranscript()
                                 ? labels("RL_ENTIRETRAN")
                                 : describeCut(settings.transcriptCut, kCutDescriptionLength);
    if (auto seconds = values("TimeSec"); seconds && !record.timingMissing)
        context.elapsedSeconds = static_cast<int>(std::lround(*seconds));

    context.pausesUntimed = record.pausesUntimed;
    context.somePausesUntimed = record.somePausesUntimed;
    if (request.kind != TranscriptReportKind::StandardMeasures)
        return buildUtteranceTypesReport(context, values, labels);
    if (request.database)
        return buildStandardMeasuresReport(context, values, request.smrVariables, labels,
                                           *request.database);
    return buildStandardMeasuresReport(context, values, request.smrVariables, labels);
}

} // namespace tavi
