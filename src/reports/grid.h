// A grid report: a table of text cells with a heading row and column widths.
// The batch's rectangular data file, its key table and every count table of
// the program are grids; they are shown in a table view and saved as
// CSV, TSV or tab-delimited text.
#pragma once

#include <string>
#include <vector>

namespace tavi {

struct GridColumn {
    std::string heading; // text of the heading row
    int width = 50;      // display width in grid units
};

struct Grid {
    std::string title;                          // document title, e.g. "Study_RDF"
    std::vector<GridColumn> columns;            // one per column, heading row in order
    std::vector<std::vector<std::string>> rows; // data rows below the heading row

    void addColumn(std::string heading, int width = 50) {
        columns.push_back({std::move(heading), width});
    }
    // Appends a row; a row with fewer cells than columns is padded with empty cells.
    void addRow(std::vector<std::string> cells) { rows.push_back(std::move(cells)); }
    // Number of columns written: the heading row's, or more when a row is longer.
    size_t columnCount() const;
};

} // namespace tavi
