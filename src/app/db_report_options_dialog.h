// The choices of the Database menu's explore reports and customised report:
// the words and codes to count (typed, or from a "*.LST" word list file), the
// "+" lines to compare, and the reports the customised report holds.
#pragma once

#include <string_view>

#include "reports/report_registry.h"
#include "session/analysis_session.h"

class QWidget;

namespace tavi::app {

// Whether the report has choices asked for here.
bool hasDbReportOptions(std::string_view name);

// Asks for them, starting from `choices`; false when the person cancels.
bool chooseDbReportOptions(const ReportDefinition& report, const TranscriptAnalysis& analysis,
                           ReportChoices& choices, QWidget* parent);

} // namespace tavi::app
