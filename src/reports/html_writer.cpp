// HTML layout of a report.
#include "reports/html_writer.h"

namespace tavi {
namespace {

std::string cell(std::string_view text, bool right, bool heading) {
    std::string out = heading ? "<th" : "<td";
    out += right ? " align=\"right\"" : " align=\"left\"";
    out += ">" + htmlEscape(text) + (heading ? "</th>" : "</td>");
    return out;
}

struct ItemWriter {
    std::string& out;
    bool& inLines; // inside a table of labelled lines
    void closeLines() const {
        if (inLines)
            out += "</table>\n";
        inLines = false;
    }
    void operator()(const LabelledLine& line) const {
        if (line.label.empty()) {
            closeLines();
            out += "<p>" + htmlEscape(line.text()) + "</p>\n";
            return;
        }
        if (!inLines)
            out += "<table cellspacing=\"0\" cellpadding=\"2\">\n";
        inLines = true;
        out += "<tr>" + cell(line.prefix + line.label + line.gap, false, false) +
               cell(line.value, true, false) + "</tr>\n";
    }
    void operator()(const ReportTable& table) const {
        closeLines();
        out += "<table cellspacing=\"0\" cellpadding=\"3\" border=\"1\">\n<tr>" +
               cell(table.labelHeading, false, true);
        for (const auto& heading : table.headings)
            out += cell(heading, true, true);
        out += "</tr>\n";
        for (const auto& row : table.rows) {
            out += "<tr>" + cell(row.label, false, false);
            for (size_t c = 0; c < table.headings.size(); ++c)
                out += cell(c < row.cells.size() ? row.cells[c] : std::string(), true, false);
            out += "</tr>\n";
        }
        out += "</table>\n";
    }
    void operator()(const TextLine& line) const {
        closeLines();
        out += "<p>" + htmlEscape(line.text) + "</p>\n";
    }
};

} // namespace

std::string htmlEscape(std::string_view text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool blankRun = c == ' ' && (i == 0 || text[i - 1] == ' ' || i + 1 == text.size() ||
                                           text[i + 1] == ' ');
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '"')
            out += "&quot;";
        else if (blankRun)
            out += "&nbsp;";
        else
            out += c;
    }
    return out;
}

std::string reportToHtml(const Report& report) {
    std::string out = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" +
                      htmlEscape(report.title) +
                      "</title></head>\n<body style=\"font-family:'DejaVu Sans',sans-serif\">\n";
    out += "<h1 align=\"center\">" + htmlEscape(report.title) + "</h1>\n";
    for (const auto& line : report.header) {
        if (line.label.empty())
            out += "<p><b>" + htmlEscape(line.value) + "</b></p>\n";
        else
            out += "<p><b>" + htmlEscape(line.prefix + line.label + line.gap.substr(0, 1)) +
                   "</b>" + htmlEscape(line.gap.empty() ? "" : line.gap.substr(1)) +
                   htmlEscape(line.value) + "</p>\n";
    }
    for (const auto& section : report.sections) {
        if (!section.title.empty())
            out += "<h2>" + htmlEscape(section.title) + "</h2>\n";
        bool inLines = false;
        ItemWriter writer{out, inLines};
        for (const auto& item : section.items)
            std::visit(writer, item);
        writer.closeLines();
    }
    for (const auto& note : report.footnotes)
        out += "<p><small>" + htmlEscape(note) + "</small></p>\n";
    return out + "</body></html>\n";
}

} // namespace tavi
