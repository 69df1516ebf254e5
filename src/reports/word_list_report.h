// The Standard Word Lists report: each of the twenty lists of the chosen
// language set with its types and total and the words found.
#pragma once

#include <string>

#include "reports/report_registry.h"

namespace tavi {

// "Question Words (Types)"; the conjunction list keeps "Conjunctions (Type)".
std::string wordListRowLabel(int list, bool types);

Report buildWordListReport(const ReportInputs& in);

} // namespace tavi
