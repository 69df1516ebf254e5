// The Semantics Summary: total and different words, type-token ratio, the
// moving averages, bound morphemes and the totals of the standard word lists.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildSemanticsSummaryReport(const ReportInputs& in);

} // namespace tavi
