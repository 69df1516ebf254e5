// Lines of the Errors Summary and the table of the error codes found.
#include "reports/errors_summary_report.h"

#include <array>

#include "base/text.h"
#include "reports/code_counts.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"
#include "settings/measure_settings.h"

namespace tavi {

namespace {

constexpr std::array kErrors{
    SummaryLine{"%UtWErrors", "RL_PCERRORS"},
    SummaryLine{"%WordErrors", "RL_PCWDERRORS"},
    SummaryLine{"UtWErrCode", "RL_ULECODE"},
    SummaryLine{"UtWOmission", "RL_ULOMIT"},
};

constexpr std::array kOmissions{
    SummaryLine{"Omissions", "Total Omissions"},
    SummaryLine{"OmitWd", "RL_OMITWD"},
    SummaryLine{"OmitBm", "RL_OMITBM"},
    SummaryLine{"OmitCl", "RL_OMITCL"},
};

constexpr std::array kCodes{
    SummaryLine{"ErrCodesWd", "RL_EWCODE"},
    SummaryLine{"ErrCodesUt", "RL_EUCODE"},
    SummaryLine{"ErrCodes", "Total Error Codes"},
};

constexpr std::array kSections{
    SummarySection{"RL_ERRORS", kErrors},
    SummarySection{"RL_OMISSIONS", kOmissions},
    SummarySection{"RL_ERRORCDS", kCodes},
};

} // namespace

Report buildErrorsSummaryReport(const ReportInputs& in) {
    Report report = buildSummaryReport(in, "RL_HEADERRSMRY", kSections);
    const CodeMatcher errors(measureOptionsFrom(in.settings).codeLists.errors);
    const std::vector<CodeCount> codes = countCodes(in.analysis, &errors);
    ReportSection& section = report.sections.back();
    if (codes.empty())
        section.items.emplace_back(TextLine{in.labels("RL_NOECDS")});
    else
        section.items.emplace_back(
            codeCountTable(codes, in.labels("RL_ERRORCDS"), in.labels("RL_TOTAL")));
    return report;
}

} // namespace tavi
