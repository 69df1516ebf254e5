// The summaries and distribution tables of the Database menu: each is its
// own list of measures, compared with the matched database samples in the
// shared comparison layout.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reports/db_comparison_report.h"
#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// A summary's title and its sections of measures.
struct DbSummary {
    std::string title;
    std::vector<DbSection> sections;
};

// The summary or distribution table of a report name ("db-syntax-summary",
// "length-intelligibility", ...); nullopt for another name.
std::optional<DbSummary> dbSummary(std::string_view name);

Report buildDbLengthReport(const ReportInputs& in);       // Transcript Length & Intelligibility
Report buildDbSyntaxReport(const ReportInputs& in);       // Syntax/Morphology Summary
Report buildDbDistributionReport(const ReportInputs& in); // Utterance Distribution Tables
Report buildDbSemanticsReport(const ReportInputs& in);    // Semantics Summary
Report buildDbCategoriesReport(const ReportInputs& in);   // Grammatical Categories
Report buildDbDiscourseReport(const ReportInputs& in);    // Discourse Summary
Report buildDbTurnsReport(const ReportInputs& in);        // Turn Length Distribution Tables
Report buildDbFacilityReport(const ReportInputs& in);     // Verbal Facility Summary
Report buildDbMazesReport(const ReportInputs& in);        // Maze Distribution Tables
Report buildDbErrorsReport(const ReportInputs& in);       // Errors Summary

} // namespace tavi
