// A report as structured content, built once and rendered by separate
// writers (plain text, RTF, HTML, PDF): a title, header lines, sections of
// labelled lines, tables and text, and footnotes. Every text here is final:
// writers only lay it out.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace tavi {

// "label:  value" with an indentation prefix ("# " marks analysis-set
// measures). The gap is what stands between label and value (": " or ":  ");
// a line without a label is the value alone.
struct LabelledLine {
    std::string prefix;
    std::string label;
    std::string gap = ":  ";
    std::string value;

    std::string text() const;
};

// A table of text cells: a label column, then value columns with headings.
struct ReportTable {
    std::string labelHeading; // heading over the label column, often empty
    std::vector<std::string> headings;
    struct Row {
        std::string label;
        std::vector<std::string> cells;
    };
    std::vector<Row> rows;
};

// A free line of text (a note inside a section).
struct TextLine {
    std::string text;
};

using ReportItem = std::variant<LabelledLine, ReportTable, TextLine>;

struct ReportSection {
    std::string title; // may be empty: items directly under the header
    std::vector<ReportItem> items;
};

struct Report {
    std::string title;
    std::vector<LabelledLine> header; // transcript name, speaker, analysis set, ...
    std::vector<ReportSection> sections;
    std::vector<std::string> footnotes;
};

} // namespace tavi
