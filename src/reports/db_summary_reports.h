// The summaries and distribution tables of the Database menu: each is its
// own list of measures, compared with the matched database samples in the
// shared comparison layout.
#pragma once

#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

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
