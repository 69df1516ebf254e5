// Measures, header and report for one transcript.
#include "reports/transcript_report.h"

#include <cmath>
#include <stdexcept>

#include "analysis/selection.h"
#include "reports/custom_report.h"

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

TranscriptReportContext transcriptReportContext(const TranscriptAnalysis& analysis,
                                                const Settings& settings,
                                                const TranscriptReportRequest& request) {
    const int speaker = analysis.speaker;
    const SegmentedTranscript& transcript = analysis.check.segmented;
    const LabelSource labels = labelSource(settings.labels, request.slot);
    const SpeakerMeasures& record = analysis.measures();
    TranscriptReportContext context;
    context.transcriptName = request.transcriptName;
    context.speaker = speaker;
    context.speakerLabel = speakerLabel(transcript, speaker);
    context.analysisSetName = analysisSetName(settings.analysisSet, labels);
    context.wordBase = wordBaseDescription(settings.wordBase, labels);
    context.cutDescription = settings.transcriptCut.isEntireTranscript()
                                 ? labels("RL_ENTIRETRAN")
                                 : describeCut(settings.transcriptCut, kCutDescriptionLength);
    if (const Value* seconds = record.find("TimeSec");
        seconds && seconds->number() && !record.timingMissing)
        context.elapsedSeconds = static_cast<int>(std::lround(*seconds->number()));
    context.pausesUntimed = record.pausesUntimed;
    context.somePausesUntimed = record.somePausesUntimed;
    return context;
}

Report buildTranscriptReport(const TranscriptAnalysis& analysis, const Settings& settings,
                             const TranscriptReportRequest& request) {
    const ReportDefinition* definition = findReport(request.kind);
    if (!definition)
        throw std::invalid_argument("unknown report " + std::string(request.kind));
    const TranscriptReportContext context = transcriptReportContext(analysis, settings, request);
    const LabelSource labels = labelSource(settings.labels, request.slot);
    const MeasureSource values = measureSource(analysis.measures());
    const ReportInputs inputs{analysis,
                              settings,
                              context,
                              labels,
                              values,
                              request.choices,
                              request.lines,
                              request.database ? &*request.database : nullptr,
                              request.performancePeers ? &*request.performancePeers : nullptr};
    return definition->build(inputs);
}

std::vector<Report> buildCustomReports(const TranscriptAnalysis& analysis, const Settings& settings,
                                       const TranscriptReportRequest& request) {
    TranscriptReportRequest part = request;
    part.kind = kCustomReportName;
    std::vector<Report> reports{buildTranscriptReport(analysis, settings, part)};
    const CustomReportKinds kinds =
        customReportKinds(request.choices.kinds, request.database.has_value());
    if (!kinds.problem.empty())
        return reports;
    for (const ReportDefinition* definition : kinds.reports) {
        part.kind = definition->name;
        reports.push_back(buildTranscriptReport(analysis, settings, part));
    }
    return reports;
}

} // namespace tavi
