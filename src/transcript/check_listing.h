// Problems as the system lists them: "E<code> on entry <line>: <message>",
// "Warning #<n> on entry <line>: <message>", and the closing summary line.
#pragma once

#include <string>

#include "transcript/err.h"

namespace tavi {

std::string formatProblem(const err& problem);

// "No errors or warnings found.", "1 error found.", "3 warnings found.",
// "2 errors and 1 warning found." ...
std::string checkSummary(int errors, int warnings);

} // namespace tavi
