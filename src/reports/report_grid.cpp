// Reports flattened into cells.
#include "reports/report_grid.h"

namespace tavi {

namespace {

struct RowAdder {
    Grid& grid;
    void operator()(const LabelledLine& line) const {
        if (line.label.empty())
            grid.addRow({line.prefix + line.value});
        else
            grid.addRow({line.prefix + line.label, line.value});
    }
    void operator()(const ReportTable& table) const {
        std::vector<std::string> heading{table.labelHeading};
        heading.insert(heading.end(), table.headings.begin(), table.headings.end());
        grid.addRow(std::move(heading));
        for (const auto& row : table.rows) {
            std::vector<std::string> cells{row.label};
            cells.insert(cells.end(), row.cells.begin(), row.cells.end());
            grid.addRow(std::move(cells));
        }
    }
    void operator()(const TextLine& line) const { grid.addRow({line.text}); }
};

} // namespace

Grid reportGrid(const Report& report) {
    Grid grid;
    grid.title = report.title;
    grid.addColumn(report.title, 200);
    grid.addColumn("", 100);
    RowAdder add{grid};
    for (const auto& line : report.header)
        add(line);
    for (const auto& section : report.sections) {
        grid.addRow({});
        if (!section.title.empty())
            grid.addRow({section.title});
        for (const auto& item : section.items)
            std::visit(add, item);
    }
    if (!report.footnotes.empty())
        grid.addRow({});
    for (const auto& note : report.footnotes)
        grid.addRow({note});
    return grid;
}

} // namespace tavi
