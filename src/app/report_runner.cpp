// From an open transcript to a finished report, through the same analysis
// session and report building as `tavi report`.
#include "app/report_runner.h"

#include "analysis/selection.h"
#include "app/qt_prompter.h"
#include "app/tavi_app.h"
#include "batch/peer_report_inputs.h"
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

namespace {

TranscriptReportRequest reportRequest(CTAVIApp& app, std::string_view kind,
                                      const TranscriptAnalysis& analysis,
                                      const ReportSource& source) {
    if (std::string_view message = analysis.cutMessage(); !message.empty())
        app.prompter().inform(message);
    TranscriptReportRequest request;
    request.kind = kind;
    request.transcriptName = source.name;
    request.choices = source.choices;
    request.lines = &source.lines;
    if (source.peers) {
        const std::string date = todayText(app.analysisContext());
        request.database = smrDatabase(*source.peers, analysis.measures(), date);
        request.performancePeers = performancePeers(*source.peers, date);
        const ExploreNeeds needs = exploreNeeds(kind, source.choices);
        if (source.peerDatabase && (needs.items || needs.plusLines)) {
            QtProgress progress; // "Calculating database plus line values... "
            addExploreColumns(*request.database, *source.peerDatabase, *source.peers, analysis,
                              app.analysisContext(), source.choices, needs, app.prompter(),
                              progress);
        }
    }
    return request;
}

} // namespace

ReportContent makeReport(CTAVIApp& app, std::string_view kind, const TranscriptAnalysis& analysis,
                         const ReportSource& source) {
    const TranscriptReportRequest request = reportRequest(app, kind, analysis, source);
    ReportContent content = reportContent(buildTranscriptReport(analysis, app.settings(), request));
    if (const ReportDefinition* definition = findReport(kind))
        content.form = definition->form;
    return content;
}

std::vector<Report> makeCustomReports(CTAVIApp& app, const TranscriptAnalysis& analysis,
                                      const ReportSource& source) {
    return buildCustomReports(analysis, app.settings(),
                              reportRequest(app, "custom-pdf", analysis, source));
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
