// From an open transcript to a finished report, through the same analysis
// session and report building as `tavi report`.
#include "app/report_runner.h"

#include "analysis/selection.h"
#include "app/tavi_app.h"
#include "batch/peer_report_inputs.h"
#include "reports/html_writer.h"
#include "reports/performance_report.h"
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

    return reportContent(buildTranscriptReport(analysis, app.settings(), request));
}

ReportContent makePeerReport(CTAVIApp& app, PeerReportKind kind, const TranscriptAnalysis& analysis,
                             const TranLines& lines, const std::string& name,
                             const db::PeerSnapshot* peers) {
    if (std::string_view message = analysis.cutMessage(); !message.empty())
        app.prompter().inform(message);
    const std::string date = todayText(app.analysisContext());
    if (kind == PeerReportKind::StandardMeasures) {
        TranscriptReportRequest request;
        request.kind = TranscriptReportKind::StandardMeasures;
        request.transcriptName = name;
        request.smrVariables = app.smrVariables;
        if (peers)
            request.database = smrDatabase(*peers, analysis.measures(), date);
        return reportContent(buildTranscriptReport(analysis, app.settings(), request));
    }
    PerformanceInputs inputs = performanceInputs(analysis, lines);
    if (peers)
        inputs.peers = performancePeers(*peers, date);
    return reportContent(kind == PeerReportKind::Performance ? buildPerformanceReport(inputs)
                                                             : buildGoalBank(inputs));
}

ReportContent reportContent(Report report) {
    ReportContent content;
    content.report = std::move(report);
    content.title = QString::fromStdString(content.report.title);
    content.html = QString::fromStdString(reportToHtml(content.report));
    content.text = reportToText(content.report);
    content.rtf = reportToRtf(content.report);
    return content;
}

} // namespace tavi::app
