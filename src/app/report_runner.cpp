// From an open transcript to a finished report, through the same analysis
// session and report building as `tavi report`.
#include "app/report_runner.h"

#include "analysis/selection.h"
#include "app/tavi_app.h"
#include "reports/html_writer.h"
#include "reports/rtf_writer.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"

namespace tavi::app {
namespace {

std::string firstLabel(const SpeakerGroup& group) {
    return group.labels.empty() ? std::string() : group.labels.front();
}

} // namespace

TranscriptAnalysis analyseForReport(CTAVIApp& app, const TranLines& lines, int speaker) {
    AnalysisRequest request;
    request.speaker = speaker;
    return analyseTranscript(lines, app.analysisContext(), request);
}

std::pair<std::string, std::string> mainSpeakerLabels(const TranscriptAnalysis& analysis) {
    const SpeakerTable& speakers = analysis.check.segmented.speakers;
    return {firstLabel(speakers.groups[0]), firstLabel(speakers.groups[1])};
}

ReportContent makeReport(CTAVIApp& app, ReportKind kind, const TranscriptAnalysis& analysis,
                         const std::string& name) {
    TranscriptReportRequest request;
    request.kind = kind == ReportKind::StandardMeasures ? TranscriptReportKind::StandardMeasures
                                                        : TranscriptReportKind::UtteranceTypes;
    request.transcriptName = name;
    request.smrVariables = app.smrVariables;
    if (std::string_view message = analysis.cutMessage(); !message.empty())
        app.prompter().inform(message);

    ReportContent content;
    content.report = buildTranscriptReport(analysis, app.settings(), request);
    content.title = QString::fromStdString(content.report.title);
    content.html = QString::fromStdString(reportToHtml(content.report));
    content.text = reportToText(content.report);
    content.rtf = reportToRtf(content.report);
    return content;
}

} // namespace tavi::app
