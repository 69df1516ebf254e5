// The shared shape of the Analyze menu's summaries: sections of measure
// lines, each a label (a label-table key or a text of its own) and one value
// of the analysed speaker, "# " marking the analysis-set measures; and the
// distribution tables' counts with their percentages of the total.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/measures.h"
#include "reports/labels.h"
#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

// One line of a summary: the measure identifier, the label ("RL_..." keys
// are looked up, any other text is used as written; a second key or text
// is added after a blank) and whether it is counted on the analysis set.
struct SummaryLine {
    std::string_view measureId;
    std::string_view label;
    std::string_view suffix = {};
    bool analysisSet = false;
    bool percentOf = false; // "% " before the label: the percentage of a count line's label
};

struct SummarySection {
    std::string_view title; // a label key or text; printed upper-cased
    std::span<const SummaryLine> lines;
};

// A label key's text, or the text itself when it is not a key.
std::string summaryText(std::string_view keyOrText, const LabelSource& labels);

// The line of one measure of a speaker's record, in the measure's report format.
LabelledLine summaryLine(const SummaryLine& line, const SpeakerMeasures& measures,
                         const LabelSource& labels);

// A report with the standard header and the given sections of the analysed
// speaker; the analysis-set footnote is added when any line is marked "# ".
Report buildSummaryReport(const ReportInputs& in, std::string_view titleKey,
                          std::span<const SummarySection> sections);

// The percentage a count is of a total, as the tables print it; empty when
// the total is zero or either is missing.
std::optional<double> percentOfTotal(std::optional<double> count, std::optional<double> total);

// The main speakers whose columns a distribution table shows: the 1st, and
// the 2nd when the transcript has one.
std::vector<int> distributionSpeakers(const ReportInputs& in);

// "Child Number", "Child Percent": the column headings of one speaker.
std::vector<std::string> speakerColumns(const ReportInputs& in, int speaker);

// A table of counts by length: one row per measure of `family` (the
// identifiers `prefix` + from ... to, the last read as "N+"), then "Total"
// from `prefix` + "Tot"; a "Number" and a "Percent" column per speaker.
ReportTable distributionTable(const ReportInputs& in, std::string_view heading,
                              std::string_view prefix, int from, int to,
                              const std::vector<int>& speakers);

} // namespace tavi
