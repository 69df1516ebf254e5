// The Word Root Table: every root the analysed speaker said in analysis-set
// utterances with its frequency, by frequency or alphabetically, from the
// main body (the words NTW counts) or from the main body and mazes.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildWordRootTable(const ReportInputs& in);

} // namespace tavi
