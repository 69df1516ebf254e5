// RTF layout of a report. Sizes are in twips (1/1440 inch) and half points.
#include "reports/rtf_writer.h"

#include <cstdint>

#include "base/format.h"
#include "base/text.h"

namespace tavi {
namespace {

constexpr int kLabelCellRight = 6200; // right edge of the label cell
constexpr int kTableWidth = 9360;     // 6.5 inches between the margins

std::string paragraph(std::string_view controls, std::string_view text) {
    return "{\\pard\\plain\\f0\\fs22" + std::string(controls) + " " + rtfEscape(text) + "\\par}\n";
}

// One table row: label cell, then value cells sharing the rest of the width.
std::string tableRow(const std::string& label, const std::vector<std::string>& cells,
                     size_t valueColumns, bool heading) {
    std::string row = "\\trowd\\trgaph108\\trleft0";
    const int valueWidth =
        valueColumns == 0 ? 0 : (kTableWidth - kLabelCellRight) / static_cast<int>(valueColumns);
    const char* border = heading ? "\\clbrdrb\\brdrs\\brdrw10" : "";
    row += border + format("\\cellx%d", valueColumns == 0 ? kTableWidth : kLabelCellRight);
    for (size_t c = 0; c < valueColumns; ++c)
        row += border + format("\\cellx%d", kLabelCellRight + valueWidth * static_cast<int>(c + 1));
    const char* weight = heading ? "\\b" : "";
    row += "\n\\pard\\plain\\intbl\\f0\\fs22" + std::string(weight) + " " + rtfEscape(label) +
           "\\cell";
    for (size_t c = 0; c < valueColumns; ++c)
        row += "\n\\pard\\plain\\intbl\\qr\\f0\\fs22" + std::string(weight) + " " +
               rtfEscape(c < cells.size() ? cells[c] : std::string()) + "\\cell";
    return row + "\n\\row\n";
}

struct ItemWriter {
    std::string& out;
    void operator()(const LabelledLine& line) const {
        if (line.label.empty())
            out += paragraph("", line.text());
        else
            out += tableRow(line.prefix + line.label, {line.value}, 1, false);
    }
    void operator()(const ReportTable& table) const {
        const size_t columns = table.headings.size();
        out += tableRow(table.labelHeading, table.headings, columns, true);
        for (const auto& row : table.rows)
            out += tableRow(row.label, row.cells, columns, false);
    }
    void operator()(const TextLine& line) const { out += paragraph("", line.text); }
};

} // namespace

std::string rtfEscape(std::string_view utf8) {
    std::string out;
    for (char16_t unit : toUtf16(utf8)) {
        if (unit == '\\' || unit == '{' || unit == '}') {
            out += '\\';
            out += static_cast<char>(unit);
        } else if (unit == '\t') {
            out += "\\tab ";
        } else if (unit >= 0x20 && unit < 0x80) {
            out += static_cast<char>(unit);
        } else if (unit >= 0x80) {
            out += format("\\u%d?", static_cast<int>(static_cast<std::int16_t>(unit)));
        }
    }
    return out;
}

std::string reportToRtf(const Report& report) {
    std::string out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1\n"
                      "{\\fonttbl{\\f0\\fswiss\\fcharset0 DejaVu Sans;}}\n"
                      "{\\info{\\title " +
                      rtfEscape(report.title) +
                      "}}\n"
                      "\\paperw12240\\paperh15840\\margl1440\\margr1440\\margt1440\\margb1440\n";
    out += paragraph("\\qc\\b\\fs32\\sa240", report.title);
    for (const auto& line : report.header) {
        if (line.label.empty())
            out += paragraph("\\b", line.text());
        else
            out += "{\\pard\\plain\\f0\\fs22 {\\b " +
                   rtfEscape(line.prefix + line.label + line.gap.substr(0, 1)) + "}" +
                   rtfEscape(line.gap.empty() ? "" : line.gap.substr(1)) + rtfEscape(line.value) +
                   "\\par}\n";
    }
    for (const auto& section : report.sections) {
        if (!section.title.empty())
            out += paragraph("\\keepn\\sb240\\sa60\\b\\fs24", section.title);
        else
            out += paragraph("\\sb120", "");
        for (const auto& item : section.items)
            std::visit(ItemWriter{out}, item);
    }
    for (size_t i = 0; i < report.footnotes.size(); ++i)
        out += paragraph(i == 0 ? "\\sb240\\fs18" : "\\fs18", report.footnotes[i]);
    return out + "}\n";
}

} // namespace tavi
