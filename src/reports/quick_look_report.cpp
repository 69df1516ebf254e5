// Quick Look: MLU, NDW, NTW, words per minute, mazes, errors and
// intelligibility against the database, one line each.
#include "reports/quick_look_report.h"

#include <cmath>

#include "base/format.h"
#include "reports/db_comparison_report.h"
#include "reports/line_format.h"

namespace tavi {

namespace {

struct QuickLine {
    const char* measureId;
    const char* labelKey;
};

constexpr QuickLine kLines[] = {{"MLUw", "RL_MLUW"},         {"NDW", "RL_NDW"},
                                {"NTW", "RL_NTW"},           {"WPM", "RL_RPWDPERMIN"},
                                {"%MzWds", "RL_MZWDSPCTOT"}, {"%UtWErrors", "RL_PCERRORS"},
                                {"%IntelUt", "RL_PCINTEL"}};

std::string valueText(MeasureFormat f, std::optional<double> value) {
    if (f == MeasureFormat::Count)
        return formatCount(value);
    if (f == MeasureFormat::Percent)
        return formatPercent(value);
    return formatMean(value);
}

} // namespace

std::string comparisonInWords(const std::optional<SmrDatabaseColumn>& column) {
    if (!column || column->n == 0)
        return "no database value";
    const std::string stats = column->sd ? format("(%0.2f, SD %0.2f)", column->mean, *column->sd)
                                         : format("(%0.2f)", column->mean);
    if (!column->value)
        return "database mean " + stats;
    if (column->standing == PeerStanding::Comparable)
        return "comparable to the database mean " + stats;
    std::string distance;
    if (column->sd && *column->sd > 0)
        distance = distanceText(static_cast<float>(
                       std::fabs((*column->value - column->mean) / *column->sd))) +
                   " ";
    return distance + std::string(standingWord(column->standing)) + " the database mean " + stats;
}

Report buildQuickLookReport(const ReportInputs& in) {
    Report report;
    report.title = "Database Quick Look";
    report.header = dbReportHeader(in);
    ReportSection section{"QUICK LOOK", {}};
    for (const QuickLine& line : kLines) {
        std::optional<SmrDatabaseColumn> column;
        if (in.database && in.database->columns)
            column = in.database->columns(line.measureId);
        const std::optional<MeasureId> id = measureIdByName(line.measureId);
        const std::string value = valueText(measureFormat(*id), in.values(line.measureId));
        section.items.push_back(LabelledLine{"  ", in.labels(line.labelKey), ":  ",
                                             value + "  " + comparisonInWords(column)});
    }
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace tavi
