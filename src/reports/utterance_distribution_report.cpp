// The utterance-length table of both speakers.
#include "reports/utterance_distribution_report.h"

#include "reports/report_header.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"
#include "settings/measure_settings.h"

namespace tavi {

Report buildUtteranceDistributionReport(const ReportInputs& in) {
    const MeasureOptions options = measureOptionsFrom(in.settings);
    Report report;
    report.title = "Utterance Distribution Tables";
    report.header = reportHeader(in.context, in.labels);
    const std::string heading =
        in.labels(options.distributionInMorphemes ? "RL_WMULM" : "RL_WMULW");
    const std::string scope =
        options.distributionOnAnalysisSet ? in.context.analysisSetName : in.labels("RL_AST");
    ReportSection section{in.labels("RL_PFUDUUL") + " (" + scope + ")", {}};
    section.items.emplace_back(
        distributionTable(in, heading, "UtbyUL", 0, 15, distributionSpeakers(in)));
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace tavi
