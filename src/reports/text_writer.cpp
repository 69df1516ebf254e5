// Plain text layout of a report.
#include "reports/text_writer.h"

#include "base/text.h"

#include <algorithm>

namespace tavi {
namespace {

// Width on a terminal: one column per code point.
size_t displayWidth(const std::string& text) {
    return static_cast<size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string padRight(const std::string& text, size_t width) {
    const size_t w = displayWidth(text);
    return w >= width ? text : text + std::string(width - w, ' ');
}

std::string padLeft(const std::string& text, size_t width) {
    const size_t w = displayWidth(text);
    return w >= width ? text : std::string(width - w, ' ') + text;
}

void writeTable(const ReportTable& table, std::string& out) {
    size_t labelWidth = displayWidth(table.labelHeading);
    for (const auto& row : table.rows)
        labelWidth = std::max(labelWidth, displayWidth(row.label));
    std::vector<size_t> widths;
    for (const auto& heading : table.headings)
        widths.push_back(displayWidth(heading));
    for (const auto& row : table.rows)
        for (size_t c = 0; c < row.cells.size() && c < widths.size(); ++c)
            widths[c] = std::max(widths[c], displayWidth(row.cells[c]));
    auto writeRow = [&](const std::string& label, const std::vector<std::string>& cells) {
        std::string line = padRight(label, labelWidth);
        for (size_t c = 0; c < widths.size(); ++c)
            line += "    " + padLeft(c < cells.size() ? cells[c] : std::string(), widths[c]);
        while (!line.empty() && line.back() == ' ')
            line.pop_back();
        out += line + "\n";
    };
    writeRow(table.labelHeading, table.headings);
    for (const auto& row : table.rows)
        writeRow(row.label, row.cells);
}

struct ItemWriter {
    std::string& out;
    void operator()(const LabelledLine& line) const { out += line.text() + "\n"; }
    void operator()(const ReportTable& table) const { writeTable(table, out); }
    void operator()(const TextLine& line) const { out += line.text + "\n"; }
};

} // namespace

std::string reportToText(const Report& report) {
    std::string out = report.title + "\n\n";
    for (const auto& line : report.header)
        out += line.text() + "\n";
    for (const auto& section : report.sections) {
        out += "\n";
        if (!section.title.empty())
            out += section.title + "\n";
        for (const auto& item : section.items)
            std::visit(ItemWriter{out}, item);
    }
    if (!report.footnotes.empty())
        out += "\n";
    for (const auto& note : report.footnotes)
        out += note + "\n";
    return out;
}

std::string reportTextFileBytes(const Report& report) {
    return std::string(kUtf8Bom) + reportToText(report);
}

} // namespace tavi
