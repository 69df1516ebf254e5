// A report as JSON, one envelope for every kind of report, for scripts that
// read reports rather than people: the header as label/text pairs (the
// unlabelled first line, the transcript's name, under "Transcript"; further
// unlabelled lines, where the numbers come from, under "Source", "Source 2"
// ...), each
// section's rows with their cells. A cell that reads as a number (a count, a
// mean, a percentage without its sign) is a JSON number, a missing value is
// null, anything else a string.
#pragma once

#include <string>
#include <string_view>

#include "reports/report.h"

namespace tavi {

struct JsonReportSource {
    std::string_view kind;       // the report's command-line name
    std::string_view transcript; // the transcript's file name
    int speaker = 0;             // 0 the 1st speaker, 1 the 2nd
};

std::string reportToJson(const Report& report, const JsonReportSource& source);

} // namespace tavi
