// A report as RTF ("RTF - Rich Text Format (Word)"), written by hand: a bold
// centred title, bold section headings, labelled lines and tables as real
// table rows, so word processors show them as tables.
#pragma once

#include <string>
#include <string_view>

#include "reports/report.h"

namespace tavi {

std::string reportToRtf(const Report& report);

// Text as RTF: control characters escaped, non-ASCII as \uN? escapes.
std::string rtfEscape(std::string_view utf8);

} // namespace tavi
