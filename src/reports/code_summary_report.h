// The Code Summary: utterances with codes, the codes of each code list, and
// every word code and utterance code found with its count.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildCodeSummaryReport(const ReportInputs& in);

} // namespace tavi
