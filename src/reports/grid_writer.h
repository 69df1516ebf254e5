// Saving a grid as CSV, TSV or tab-delimited text: UTF-8 with a byte order
// mark, one line per row (heading row first), cells joined by the separator.
// By default a cell holding the separator is written between double quotes
// with any inner double quote left as it stands (not doubled): the program's
// plain form. GridQuoting::Rfc4180 writes what standard CSV readers
// expect: a cell holding the separator, a double quote or a line break is
// quoted and its inner double quotes are doubled.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "reports/grid.h"

namespace tavi {

enum class GridFormat { Csv, Tsv, Txt };
enum class GridQuoting { Plain, Rfc4180 };

// The program-wide table format setting: 2 is CSV, 3 is TSV, anything else TXT.
GridFormat gridFormatFromSetting(int tableFormat);
char gridSeparator(GridFormat format);
// The file-dialog filter, e.g. "Comma Separated Values - Excel (*.CSV)|*.CSV|".
const char* gridFileFilter(GridFormat format);
// The extension with its dot, lower case: ".csv", ".tsv", ".txt".
const char* gridExtension(GridFormat format);

// One cell as written: quoted when it holds the separator (Rfc4180: also a
// double quote or a line break, inner quotes doubled).
std::string gridCellText(std::string_view cell, char separator,
                         GridQuoting quoting = GridQuoting::Plain);
// The whole file's bytes: byte order mark, heading row, rows, each ending in a newline.
std::string gridFileBytes(const Grid& grid, char separator,
                          GridQuoting quoting = GridQuoting::Plain);

// Writes the grid to `path` (creating its folder when needed) through a
// temporary file and a rename. Returns an empty string on success, otherwise
// the message to show: "cannot open file" or "cannot write to file".
std::string saveGrid(const Grid& grid, GridFormat format, const std::filesystem::path& path,
                     GridQuoting quoting = GridQuoting::Plain);

} // namespace tavi
