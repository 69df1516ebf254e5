// A report as HTML: what the desktop program's report view shows (Qt rich
// text understands this subset: headings, bold, tables with align attributes).
#pragma once

#include <string>
#include <string_view>

#include "reports/report.h"

namespace tavi {

std::string reportToHtml(const Report& report);

// Text as HTML: markup characters escaped, runs of blanks kept.
std::string htmlEscape(std::string_view text);

} // namespace tavi
