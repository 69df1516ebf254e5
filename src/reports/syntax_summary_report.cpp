// Lines of the Syntax/Morphology Summary.
#include "reports/syntax_summary_report.h"

#include <array>

#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

namespace {

constexpr std::array kSyntax{
    SummaryLine{"MLUw", "RL_WMMLW", {}, true},
    SummaryLine{"MLUm", "RL_WMMLM", {}, true},
    SummaryLine{"BrownStg", "RL_WMBROWN", {}, true},
    SummaryLine{"ExpAgeRange", "RL_WMEARM", {}, true},
    SummaryLine{"PCUttWithVerbs", "RL_GCPCVERBS", {}, true},
    SummaryLine{"MeanVerbsPerUtt", "RL_GCVERBS", {}, true},
    SummaryLine{"PCUttWithNMForms", "RL_PCNMFC", {}, true},
    SummaryLine{"UttWithNMForms", "Utterances with Nonmainstream Forms", {}, true},
};

constexpr std::array kMorphemes{
    SummaryLine{"NTW", "RL_NTW", {}, true},
    SummaryLine{"BoundMorphs", "RL_WMBM", {}, true},
    SummaryLine{"BoundClitics", "RL_WMCT", {}, true},
};

constexpr std::array kOmissions{
    SummaryLine{"OmitWd", "RL_WMOW"},
    SummaryLine{"OmitBm", "RL_WMOBM"},
    SummaryLine{"OmitCl", "RL_WMOCT"},
};

constexpr std::array kLength{
    SummaryLine{"TotNumUt", "RL_NUMUTTT"},
    SummaryLine{"TotASetUt", "RL_NUMUTTA", {}, true},
    SummaryLine{"MLUwTot", "RL_WMMLW", "(Total Utterances)"},
    SummaryLine{"MLUmTot", "RL_WMMLM", "(Total Utterances)"},
};

constexpr std::array kSections{
    SummarySection{"RL_HEADSM", kSyntax},
    SummarySection{"Words and Bound Morphemes", kMorphemes},
    SummarySection{"RL_OMISSIONS", kOmissions},
    SummarySection{"Utterance Length", kLength},
};

} // namespace

Report buildSyntaxSummaryReport(const ReportInputs& in) {
    return buildSummaryReport(in, "RL_HEADSYNSMRY", kSections);
}

} // namespace tavi
