// Grid files: byte order mark, quoting rule, atomic write.
#include "reports/grid_writer.h"

#include "reports/report_file.h"

namespace tavi {

GridFormat gridFormatFromSetting(int tableFormat) {
    if (tableFormat == 2)
        return GridFormat::Csv;
    if (tableFormat == 3)
        return GridFormat::Tsv;
    return GridFormat::Txt;
}

char gridSeparator(GridFormat format) {
    return format == GridFormat::Csv ? ',' : '\t';
}

const char* gridFileFilter(GridFormat format) {
    switch (format) {
    case GridFormat::Csv:
        return "Comma Separated Values - Excel (*.CSV)|*.CSV|";
    case GridFormat::Tsv:
        return "Tab Separated Values (*.TSV)|*.TSV|";
    case GridFormat::Txt:
        break;
    }
    return "Tab-delimited Text (*.TXT)|*.TXT|";
}

const char* gridExtension(GridFormat format) {
    switch (format) {
    case GridFormat::Csv:
        return ".csv";
    case GridFormat::Tsv:
        return ".tsv";
    case GridFormat::Txt:
        break;
    }
    return ".txt";
}

std::string gridCellText(std::string_view cell, char separator, GridQuoting quoting) {
    const bool rfc = quoting == GridQuoting::Rfc4180;
    const bool quote = cell.find(separator) != std::string_view::npos ||
                       (rfc && cell.find_first_of("\"\r\n") != std::string_view::npos);
    if (!quote)
        return std::string(cell);
    std::string quoted;
    quoted.reserve(cell.size() + 2);
    quoted += '"';
    for (char ch : cell) {
        quoted += ch;
        if (rfc && ch == '"')
            quoted += '"'; // plain files leave inner quotes as they stand
    }
    quoted += '"';
    return quoted;
}

std::string gridFileBytes(const Grid& grid, char separator, GridQuoting quoting) {
    const size_t width = grid.columnCount();
    std::string bytes = "\xEF\xBB\xBF";
    auto addLine = [&](auto cellAt) {
        for (size_t c = 0; c < width; ++c) {
            if (c > 0)
                bytes += separator;
            bytes += gridCellText(cellAt(c), separator, quoting);
        }
        bytes += '\n';
    };
    addLine([&](size_t c) -> std::string_view {
        return c < grid.columns.size() ? std::string_view(grid.columns[c].heading) : "";
    });
    for (const auto& row : grid.rows)
        addLine([&](size_t c) -> std::string_view {
            return c < row.size() ? std::string_view(row[c]) : "";
        });
    return bytes;
}

std::string saveGrid(const Grid& grid, GridFormat format, const std::filesystem::path& path,
                     GridQuoting quoting) {
    return saveReportBytes(path, gridFileBytes(grid, gridSeparator(format), quoting));
}

} // namespace tavi
