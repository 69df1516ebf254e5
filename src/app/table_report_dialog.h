// The dialogs of the Analyze menu's lists and tables: which standard
// utterance lists, and the order of a table (by frequency or alphabetically,
// with mazes or not for word roots).
#pragma once

#include <optional>

#include "reports/report_registry.h"

class QWidget;

namespace tavi::app {

// Asks for the choices of one of these reports; none when the report is not
// one of them, else whether the person went on (false: cancelled).
std::optional<bool> chooseTableReportOptions(const ReportDefinition& report, ReportChoices& choices,
                                             QWidget* parent);

} // namespace tavi::app
