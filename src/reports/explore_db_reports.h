// The explore reports of the Database menu: chosen words and codes counted
// in the transcript against the database's mean count per sample, and the
// values of "+" header lines against the samples' values of the same lines.
#pragma once

#include <string>

#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// The keys under which the comparison holds an item's and a plus line's
// columns (SmrDatabase::extra).
std::string exploreItemKey(std::string_view item);
std::string explorePlusLineKey(std::string_view keyword);

Report buildExploreWordsCodesReport(const ReportInputs& in);
Report buildExplorePlusLinesReport(const ReportInputs& in);

} // namespace tavi
