// The customised report: any reports of the table, chosen by name, written
// one after the other behind a contents page (as one PDF with a title page
// and a table of contents, or joined into one report for the other formats).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "reports/report.h"

namespace tavi {

struct ReportInputs;     // reports/report_registry.h
struct ReportDefinition; // reports/report_registry.h

inline constexpr std::string_view kCustomReportName = "custom-pdf";

// The reports a customised report can hold: every report of the table but
// itself and those that need a database (`withDatabase` false).
std::vector<const ReportDefinition*> customReportChoices(bool withDatabase);

// The chosen reports, in the order given; no names: every report of the
// Analyze menu that needs no database. A name that is not a report, or one
// that cannot be held, makes `problem` say so.
struct CustomReportKinds {
    std::vector<const ReportDefinition*> reports;
    std::string problem;
};
CustomReportKinds customReportKinds(const std::vector<std::string>& names, bool withDatabase);

// The contents page: the title, the standard header lines and the titles of
// the reports it holds.
Report buildCustomContents(const ReportInputs& in);

// One report of the contents page followed by each report: their titles
// become section titles, their header lines and footnotes plain lines.
Report joinReports(const Report& contents, const std::vector<Report>& reports);

} // namespace tavi
