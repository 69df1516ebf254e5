// The Bound Morpheme Table and the Bound Clitic Table: every ending (clitic)
// of the analysed speaker's counted main-body words in analysis-set
// utterances, with its count and the words that carry it.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildBoundMorphemeTable(const ReportInputs& in);
Report buildBoundCliticTable(const ReportInputs& in);

} // namespace tavi
