// The lines of the Standard Measures Report chosen as the program default: the
// "SMR" section of TAVI.ini, one flag per report line named by its measure,
// "SMR TotNumUt_YES" ... "SMR %PauseTime_NO", in the report's order.
#pragma once

#include <string>
#include <vector>

#include "reports/standard_measures_report.h"
#include "settings/keyword_file.h"
#include "settings/settings.h"

namespace tavi {

std::vector<std::string> smrVariablesLines(const SmrVariables& variables);
// Starts from the built-in choice and applies each line; unknown measures
// and lines without "_YES"/"_NO" are ignored.
SmrVariables smrVariablesFromLines(const std::vector<KeywordLine>& lines);
// The choice the program starts with: the "SMR" section of the settings.
SmrVariables smrVariablesFromSettings(const Settings& settings);

} // namespace tavi
