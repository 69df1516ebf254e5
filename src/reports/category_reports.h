// Grammatical Categories (each category's types and total) and Grammatical
// Category Lists (the words found in each), from the measure record's
// category tables.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildGrammaticalCategoryReport(const ReportInputs& in);
Report buildCategoryListReport(const ReportInputs& in);

} // namespace tavi
