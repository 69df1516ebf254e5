// The Verbal Facility Summary: rate of speech, pauses within and between
// utterances, mazes, abandoned utterances, fluency and code-switch codes.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildVerbalFacilityReport(const ReportInputs& in);

} // namespace tavi
