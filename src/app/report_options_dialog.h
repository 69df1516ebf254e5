// The dialogs of the reports that ask for more than the speaker: which
// utterance lists, the order of a table, mazes or not. One entry point, so
// the menu commands of every report stay one loop.
#pragma once

#include "reports/report_registry.h"
#include "session/analysis_session.h"

class QWidget;

namespace tavi::app {

// Asks for the report's own choices, when it has any, starting from
// `choices` and writing the answer back. False when the person cancels.
bool chooseReportOptions(const ReportDefinition& report, const TranscriptAnalysis& analysis,
                         ReportChoices& choices, QWidget* parent);

} // namespace tavi::app
