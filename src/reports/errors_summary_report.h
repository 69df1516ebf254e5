// The Errors Summary: utterances with errors, word errors, omitted words,
// bound morphemes and clitics, and each error code found with its count.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildErrorsSummaryReport(const ReportInputs& in);

} // namespace tavi
