// From transcript lines to a finished report.
#include "app/report_runner.h"

#include "analysis/measures.h"
#include "app/tavi_app.h"
#include "reports/html_writer.h"
#include "reports/rtf_writer.h"
#include "reports/standard_measures_report.h"
#include "reports/text_writer.h"
#include "reports/utterance_types_report.h"
#include "transcript/checker.h"

namespace tavi::app {
namespace {

constexpr std::size_t kCutDescriptionLength = 80;

CheckResult checkAndSegment(const TranLines& lines) {
    CheckOptions options;
    options.keepSegmentation = true;
    return checkTranscript(lines, options);
}

std::string firstLabel(const SpeakerGroup& group) {
    return group.labels.empty() ? std::string() : group.labels.front();
}

} // namespace

std::pair<std::string, std::string> mainSpeakerLabels(const TranLines& lines) {
    const CheckResult checked = checkAndSegment(lines);
    return {firstLabel(checked.speakers.groups[0]), firstLabel(checked.speakers.groups[1])};
}

ReportContent makeReport(CTAVIApp& app, ReportKind kind, const TranLines& lines,
                         const std::string& name, int speaker) {
    const CheckResult checked = checkAndSegment(lines);
    MeasureOptions options;
    options.analysisSet = app.settings().analysisSet;
    options.wordBase = app.settings().wordBase;
    options.cut = app.settings().transcriptCut;
    options.window = app.settings().movingAverageWindow;
    const MeasureResult result = computeMeasures(checked.segmented, options);
    const std::string_view outcome = cutOutcomeMessage(result.selection.outcome);
    if (!outcome.empty())
        app.prompter().inform(outcome);

    const LabelSource labels = app.labelSource();
    TranscriptReportContext context;
    context.transcriptName = name;
    context.speaker = speaker;
    context.speakerLabel = firstLabel(checked.speakers.groups[static_cast<size_t>(speaker)]);
    context.analysisSetName = analysisSetName(app.settings().analysisSet, labels);
    context.wordBase = wordBaseDescription(app.settings().wordBase, labels);
    context.cutDescription = describeCut(app.settings().transcriptCut, kCutDescriptionLength);
    if (checked.elapsedSeconds > 0)
        context.elapsedSeconds = checked.elapsedSeconds;

    const SpeakerMeasures& measures = result.speakers[static_cast<size_t>(speaker)];
    const MeasureSource source = [&measures](std::string_view id) -> std::optional<double> {
        const Value* v = measures.find(id);
        return v ? v->number() : std::nullopt;
    };
    ReportContent content;
    content.report = kind == ReportKind::StandardMeasures
                         ? buildStandardMeasuresReport(context, source, app.smrVariables, labels)
                         : buildUtteranceTypesReport(context, source, labels);
    content.title = QString::fromStdString(content.report.title);
    content.html = QString::fromStdString(reportToHtml(content.report));
    content.text = reportToText(content.report);
    content.rtf = reportToRtf(content.report);
    return content;
}

} // namespace tavi::app
