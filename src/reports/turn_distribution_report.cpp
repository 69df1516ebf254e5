// The turn-length tables of both speakers.
#include "reports/turn_distribution_report.h"

#include "reports/report_header.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

Report buildTurnDistributionReport(const ReportInputs& in) {
    Report report;
    report.title = in.labels("RL_TLDIST") + " Tables";
    report.header = reportHeader(in.context, in.labels);
    const std::vector<int> speakers = distributionSpeakers(in);
    ReportSection utterances{in.labels("RL_DCTLU"), {}};
    utterances.items.emplace_back(
        distributionTable(in, in.labels("RL_UTTERANCES"), "TurnByTLUt", 1, 6, speakers));
    ReportSection words{in.labels("RL_DCTLW"), {}};
    words.items.emplace_back(
        distributionTable(in, in.labels("RL_WORDS"), "TurnByTLWd", 0, 15, speakers));
    report.sections.push_back(std::move(utterances));
    report.sections.push_back(std::move(words));
    return report;
}

} // namespace tavi
