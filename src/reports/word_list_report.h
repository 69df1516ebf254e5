// The Standard Word Lists report: each of the twenty lists of the chosen
// language set with its types and total and the words found.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildWordListReport(const ReportInputs& in);

} // namespace tavi
