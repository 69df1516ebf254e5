// The JSON envelope of a report.
#include "reports/json_writer.h"

#include <charconv>
#include <optional>

#include "base/json_text.h"
#include "base/text.h"
#include "reports/line_format.h"

namespace tavi {

namespace {

// The number a cell prints, if it prints one: "12", "3.50", "45.2%", "-1".
std::optional<double> cellNumber(std::string_view cell) {
    cell = trim(cell);
    if (!cell.empty() && cell.back() == '%')
        cell.remove_suffix(1);
    if (cell.empty())
        return std::nullopt;
    double value = 0;
    const char* end = cell.data() + cell.size();
    auto [ptr, ec] = std::from_chars(cell.data(), end, value);
    if (ec != std::errc() || ptr != end)
        return std::nullopt;
    return value;
}

std::string jsonCell(std::string_view cell) {
    if (trim(cell) == trim(kMissingMark))
        return "null";
    if (std::optional<double> number = cellNumber(cell))
        return jsonNumber(*number);
    return jsonString(cell);
}

std::string jsonRow(std::string_view label, const std::vector<std::string>& cells) {
    std::string out = "{\"label\": " + jsonString(label) + ", \"cells\": [";
    for (size_t i = 0; i < cells.size(); ++i)
        out += (i ? ", " : "") + jsonCell(cells[i]);
    return out + "]}";
}

struct SectionJson {
    std::vector<std::string> rows;
    std::vector<std::string> columns;
};

void addItem(SectionJson& section, const ReportItem& item) {
    if (const auto* line = std::get_if<LabelledLine>(&item)) {
        section.rows.push_back(jsonRow(line->prefix + line->label, {line->value}));
    } else if (const auto* table = std::get_if<ReportTable>(&item)) {
        if (section.columns.empty())
            for (const std::string& heading : table->headings)
                section.columns.push_back(jsonString(heading));
        for (const auto& row : table->rows)
            section.rows.push_back(jsonRow(row.label, row.cells));
    } else if (const auto* text = std::get_if<TextLine>(&item)) {
        section.rows.push_back(jsonRow(text->text, {}));
    }
}

std::string joined(const std::vector<std::string>& parts, std::string_view indent) {
    std::string out;
    for (size_t i = 0; i < parts.size(); ++i)
        out += (i ? ",\n" : "\n") + std::string(indent) + parts[i];
    return out;
}

} // namespace

std::string reportToJson(const Report& report, const JsonReportSource& source) {
    std::string out = "{\"report\": " + jsonString(source.kind) +
                      ", \"title\": " + jsonString(report.title) +
                      ", \"transcript\": " + jsonString(source.transcript) +
                      ", \"speaker\": " + std::to_string(source.speaker + 1) + ",\n \"header\": {";
    int unlabelled = 0;
    for (size_t i = 0; i < report.header.size(); ++i) {
        const LabelledLine& line = report.header[i];
        std::string key = line.label;
        if (key.empty()) {
            ++unlabelled;
            key = unlabelled == 1   ? "Transcript"
                  : unlabelled == 2 ? "Source"
                                    : "Source " + std::to_string(unlabelled - 1);
        }
        out += (i ? ", " : "") + jsonString(key) + ": " + jsonString(line.value);
    }
    out += "},\n \"sections\": [";
    std::vector<std::string> sections;
    for (const ReportSection& section : report.sections) {
        SectionJson json;
        for (const ReportItem& item : section.items)
            addItem(json, item);
        std::string columns;
        for (size_t i = 0; i < json.columns.size(); ++i)
            columns += (i ? ", " : "") + json.columns[i];
        sections.push_back("{\"title\": " + jsonString(section.title) + ", \"columns\": [" +
                           columns + "], \"rows\": [" + joined(json.rows, "    ") + "]}");
    }
    out += joined(sections, "  ") + "],\n \"footnotes\": [";
    for (size_t i = 0; i < report.footnotes.size(); ++i)
        out += (i ? ", " : "") + jsonString(report.footnotes[i]);
    return out + "]}\n";
}

} // namespace tavi
