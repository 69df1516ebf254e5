// The Syntax/Morphology Summary: MLU in words and morphemes, Brown's stage,
// verbs, nonmainstream forms, bound morphemes and clitics, omissions and the
// lengths of the speaker's utterances.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildSyntaxSummaryReport(const ReportInputs& in);

} // namespace tavi
