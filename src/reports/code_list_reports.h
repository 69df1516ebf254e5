// The reports of the four code lists (errors, fluency codes, nonmainstream
// forms, code switches): how many codes of the list the analysed speaker's
// utterances carry, on words and on utterances, and each code with the
// utterances in which it occurs. The errors report begins with the omitted
// words, bound morphemes and clitics and the utterances that have them.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildOmissionsErrorsReport(const ReportInputs& in);
Report buildFluencyCodesReport(const ReportInputs& in);
Report buildNonmainstreamCodesReport(const ReportInputs& in);
Report buildCodeSwitchCodesReport(const ReportInputs& in);

} // namespace tavi
