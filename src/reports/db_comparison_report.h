// The layout every report against a database shares: for each measure the
// transcript's value, the database mean, SD, minimum, maximum and number of
// samples, and a mark with the direction when the value lies at or beyond
// the SD interval; a header that names the database, its sampling context,
// the selection criteria and the number of samples.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// One row: the measure it compares and its label ("RL_..." is a key of the
// label table, any other text is printed as it stands).
struct DbLine {
    std::string measureId;
    std::string label;
};

struct DbSection {
    std::string title;
    std::vector<DbLine> lines;
};

// The column headings of a comparison table.
std::vector<std::string> dbComparisonHeadings();

// "* above" / "* below" for a value at or beyond the SD interval, else "".
std::string dbStandingMark(const SmrDatabaseColumn& column);

// The cells of one row: value, mean, SD, minimum, maximum, n and the mark,
// the value printed in `format`. Missing database values print the missing mark.
std::vector<std::string> dbComparisonCells(const std::optional<SmrDatabaseColumn>& column,
                                           std::optional<double> value, MeasureFormat format);

// The header lines of a report against a database: the standard lines,
// then where the numbers come from.
std::vector<LabelledLine> dbReportHeader(const ReportInputs& in);

// The legend under every report against a database.
std::string dbLegend(const ReportInputs& in);

// A report of sections of measures, each a comparison table.
Report buildDbComparisonReport(const ReportInputs& in, std::string title,
                               const std::vector<DbSection>& sections);

} // namespace tavi
