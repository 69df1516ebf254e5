// A report as plain text: what `tavi report` prints and what "TXT - Text
// File" saves. One line per labelled line, tables in padded columns.
#pragma once

#include <string>

#include "reports/report.h"

namespace tavi {

std::string reportToText(const Report& report);

// The bytes of a saved text report: the UTF-8 byte order mark, then the text,
// as every view saved to a file begins.
std::string reportTextFileBytes(const Report& report);

} // namespace tavi
