// The Discourse Summary: turn lengths, responses to the other speaker's
// questions and intonation prompts, imitations, spontaneous utterances,
// overlaps, interruptions and words mentioned first.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildDiscourseSummaryReport(const ReportInputs& in);

} // namespace tavi
