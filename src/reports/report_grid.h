// A rich-text report as a grid, for saving it as CSV or TSV: header lines,
// section titles, labelled lines and table rows become rows of cells.
#pragma once

#include "reports/grid.h"
#include "reports/report.h"

namespace tavi {

// The heading row holds the title; a labelled line is the row (prefix and
// label, value); a table keeps its heading row and rows; a blank row goes
// before each section.
Grid reportGrid(const Report& report);

} // namespace tavi
