// Rows of the Summary of Utterance Types, in their fixed order.
#include "reports/utterance_types_report.h"

#include "reports/line_format.h"

namespace tavi {

namespace {

constexpr std::array<UtteranceTypeRow, kUtteranceTypeRowCount> kRows{{
    {"TotNumUt", "RL_NUMUTTT", ""},        {"Statements", "RL_ULSTMT", " (.)"},
    {"Exclamations", "RL_ULEXMK", " (!)"}, {"Questions", "RL_ULQUES", " (?)"},
    {"IntPrmpts", "RL_ULPRMT", " (~)"},    {"AbanUt", "RL_ABANUTT", " (>)"},
    {"InterruptUt", "RL_ULINTR", " (^)"},  {"UnintelUt", "RL_TSUI", ""},
    {"PartIntelUt", "RL_TSPI", ""},        {"RespToQues", "RL_ULRQ", " (Q)"},
    {"YNRespToQues", "RL_ULYN", " (Y)"},   {"RespToIntPrmpt", "RL_ULRIP", " (P)"},
    {"Imitations", "RL_ULIMIT", " (I)"},   {"OneWdUt", "RL_ULONEWD", " (O)"},
    {"UtWMaze", "RL_UTTWMZ", ""},          {"UtWPause", "RL_ULPAUS", ""},
    {"UtWOmission", "RL_ULOMIT", ""},      {"UttwWdCode", "RL_TSUWC", ""},
    {"UttwUtCode", "RL_TSUUC", ""},        {"UttwExclCode", "RL_TSUXC", ""},
}};

} // namespace

const std::array<UtteranceTypeRow, kUtteranceTypeRowCount>& utteranceTypeRows() {
    return kRows;
}

Report buildUtteranceTypesReport(const TranscriptReportContext& context,
                                 const MeasureSource& measures, const LabelSource& labels) {
    Report report;
    report.title = labels("RL_SOFUTTYPE");
    report.header = reportHeader(context, labels);
    ReportTable table;
    table.headings = {"Number", "Percent"};
    const std::optional<double> total = measures("TotNumUt");
    for (const auto& row : kRows) {
        const std::optional<double> count = measures(row.measureId);
        std::optional<double> percent;
        if (count && total && *total > 0)
            percent = static_cast<double>(static_cast<float>(*count * 100.0 / *total));
        table.rows.push_back({labels(row.labelKey) + std::string(row.mark),
                              {formatCount(count), formatPercent(percent)}});
    }
    report.sections.push_back({"", {std::move(table)}});
    return report;
}

} // namespace tavi
