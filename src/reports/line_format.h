// The printed forms of values in single-transcript reports: counts, means,
// percentages (exactly 100 drops its decimal), elapsed times, the missing
// mark, and a value beside its database mean. Reports and batch share them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "reports/report.h"

namespace tavi {

// A value that cannot be computed: three blanks and three hyphens.
inline constexpr std::string_view kMissingMark = "   ---";

std::string formatCount(std::optional<double> value);   // "%d"
std::string formatMean(std::optional<double> value);    // "%0.2f"
std::string formatPercent(std::optional<double> value); // "%0.1f%%", exactly 100 "%0.0f%%"
// Elapsed time in a table cell: "%d:%d", or "%d:0%d" below ten seconds.
std::string formatElapsedCell(std::optional<int> seconds);
// A value beside its database mean: "(%s)     %0.2f".
std::string formatWithMean(std::string_view value, double mean);

// "% " + label: the label of a percentage whose count line has the bare label.
std::string percentLabel(std::string_view label);

// The words an elapsed-time line needs, from the label table.
struct TimeWords {
    std::string minutes;  // "Minutes"
    std::string seconds;  // "Seconds"
    std::string noTiming; // "Timing information was not provided."
};

// "%s%s: %d %s" when the seconds are zero, else "%s%s:  %d %s  %d %s";
// without timing "%s%s:  %s" with the no-timing text.
LabelledLine elapsedTimeLine(std::string prefix, std::string label, std::optional<int> seconds,
                             const TimeWords& words);

} // namespace tavi
