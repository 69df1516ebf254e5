// Quick Look: the handful of measures a clinician reads first, each on one
// line with the database comparison in words.
#pragma once

#include <optional>
#include <string>

#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// "comparable to the database mean (10.00, SD 2.00)", "1.50 SD above the
// database mean (10.00, SD 2.00)", "more than 3 SD below ..."; "no database
// value" when no sample gave one.
std::string comparisonInWords(const std::optional<SmrDatabaseColumn>& column);

Report buildQuickLookReport(const ReportInputs& in);

} // namespace tavi
