// From transcript lines to a finished report, through the same report
// building as `tavi report`.
#include "app/report_runner.h"

#include "app/tavi_app.h"
#include "reports/html_writer.h"
#include "reports/rtf_writer.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"
#include "transcript/checker.h"

namespace tavi::app {
namespace {

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
    TranscriptReportRequest request;
    request.kind = kind == ReportKind::StandardMeasures ? TranscriptReportKind::StandardMeasures
                                                        : TranscriptReportKind::UtteranceTypes;
    request.transcriptName = name;
    request.speaker = speaker;
    request.smrVariables = app.smrVariables;
    request.resources = &app.measureResources();
    TranscriptReportResult result =
        buildTranscriptReport(checked.segmented, app.settings(), request);
    for (const std::string& message : result.messages)
        app.prompter().inform(message);

    ReportContent content;
    content.report = std::move(result.report);
    content.title = QString::fromStdString(content.report.title);
    content.html = QString::fromStdString(reportToHtml(content.report));
    content.text = reportToText(content.report);
    content.rtf = reportToRtf(content.report);
    return content;
}

} // namespace tavi::app
