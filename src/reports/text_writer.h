// A report as plain text: what `tavi report` prints and what "TXT - Text
// File" saves. One line per labelled line, tables in padded columns.
#pragma once

#include <string>

#include "reports/report.h"

namespace tavi {

std::string reportToText(const Report& report);

} // namespace tavi
