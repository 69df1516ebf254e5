// The listing lines of checker problems and the summary line.
#include "transcript/check_listing.h"

#include "base/format.h"

namespace tavi {

std::string formatProblem(const err& problem) {
    if (problem.isWarning())
        return format("Warning #%d on entry %d: ", -problem.code, problem.line) + problem.message;
    return format("E%d on entry %d: ", problem.code, problem.line) + problem.message;
}

namespace {

std::string counted(int n, const char* singular, const char* plural) {
    return n == 1 ? format("1 %s", singular) : format("%d %s", n, plural);
}

} // namespace

std::string checkSummary(int errors, int warnings) {
    if (errors == 0 && warnings == 0)
        return "No errors or warnings found.";
    if (warnings == 0)
        return counted(errors, "error", "errors") + " found.";
    if (errors == 0)
        return counted(warnings, "warning", "warnings") + " found.";
    return counted(errors, "error", "errors") + " and " + counted(warnings, "warning", "warnings") +
           " found.";
}

} // namespace tavi
