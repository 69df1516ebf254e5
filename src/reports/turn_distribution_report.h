// The Turn Length Distribution Tables: both main speakers' turns by length in
// utterances (1 to 5, 6 or more) and in words (0 to 14, 15 or more).
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildTurnDistributionReport(const ReportInputs& in);

} // namespace tavi
