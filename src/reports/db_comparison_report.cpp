// Comparison tables of a transcript's measures against database samples.
#include "reports/db_comparison_report.h"

#include "base/format.h"
#include "reports/line_format.h"

namespace tavi {

namespace {

std::string formatIn(MeasureFormat format, std::optional<double> value) {
    switch (format) {
    case MeasureFormat::Count:
        return formatCount(value);
    case MeasureFormat::Percent:
        return formatPercent(value);
    case MeasureFormat::Mean:
    case MeasureFormat::Text:
        break;
    }
    return formatMean(value);
}

std::string labelOf(const ReportInputs& in, const std::string& label) {
    return label.starts_with("RL_") ? in.labels(label) : label;
}

} // namespace

std::vector<std::string> dbComparisonHeadings() {
    return {"Value", "DB Mean", "SD", "Min", "Max", "n", ""};
}

std::string dbStandingMark(const SmrDatabaseColumn& column) {
    switch (column.standing) {
    case PeerStanding::Above:
        return std::string(kSmrDifferenceMark) + " above";
    case PeerStanding::Below:
        return std::string(kSmrDifferenceMark) + " below";
    case PeerStanding::Comparable:
        break;
    }
    return "";
}

std::vector<std::string> dbComparisonCells(const std::optional<SmrDatabaseColumn>& column,
                                           std::optional<double> value, MeasureFormat kind) {
    std::vector<std::string> cells{formatIn(kind, value)};
    if (!column || column->n == 0) {
        for (int i = 0; i < 5; ++i)
            cells.emplace_back(kMissingMark);
        cells.emplace_back("");
        return cells;
    }
    cells.push_back(formatMean(column->mean));
    cells.push_back(column->sd ? formatMean(*column->sd) : std::string());
    cells.push_back(formatIn(kind, column->min));
    cells.push_back(formatIn(kind, column->max));
    cells.push_back(format("%d", column->n));
    cells.push_back(dbStandingMark(*column));
    return cells;
}

std::vector<LabelledLine> dbReportHeader(const ReportInputs& in) {
    std::vector<LabelledLine> header = reportHeader(in.context, in.labels);
    if (in.database)
        for (const std::string& line : in.database->sourceLines)
            header.push_back({"", "", "", line});
    return header;
}

std::string dbLegend(const ReportInputs& in) {
    return format("%s Value at or beyond %s SD from the database mean (above or below it)",
                  std::string(kSmrDifferenceMark).c_str(),
                  in.database ? in.database->sdInterval.c_str() : "1");
}

Report buildDbComparisonReport(const ReportInputs& in, std::string title,
                               const std::vector<DbSection>& sections) {
    Report report;
    report.title = std::move(title);
    report.header = dbReportHeader(in);
    for (const DbSection& def : sections) {
        ReportTable table;
        table.headings = dbComparisonHeadings();
        for (const DbLine& line : def.lines) {
            std::optional<MeasureId> id = measureIdByName(line.measureId);
            const MeasureFormat format = id ? measureFormat(*id) : MeasureFormat::Mean;
            std::optional<SmrDatabaseColumn> column;
            if (in.database && in.database->columns)
                column = in.database->columns(line.measureId);
            table.rows.push_back({labelOf(in, line.label),
                                  dbComparisonCells(column, in.values(line.measureId), format)});
        }
        report.sections.push_back({def.title, {std::move(table)}});
    }
    report.footnotes.push_back(dbLegend(in));
    return report;
}

} // namespace tavi
