// The Utterance Distribution Tables: both main speakers' utterances by length
// (0 to 14 and 15 or more, in words or morphemes, over the analysis set or
// every utterance as the distribution settings say), counts and percentages.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildUtteranceDistributionReport(const ReportInputs& in);

} // namespace tavi
