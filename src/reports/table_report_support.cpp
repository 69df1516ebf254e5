// Shared pieces of the Analyze menu's lists and tables.
#include "reports/table_report_support.h"

#include <algorithm>

#include "base/format.h"
#include "base/text.h"
#include "reports/report_header.h"
#include "settings/measure_settings.h"

namespace tavi {

namespace {

const SpeakerSelection& selectionOf(const ReportInputs& in) {
    return in.analysis.result.selection.speakers[in.analysis.speaker == 1 ? 1 : 0];
}

} // namespace

std::span<const int> speakerTotal(const ReportInputs& in) {
    return selectionOf(in).total;
}

std::span<const int> speakerAnalysisSet(const ReportInputs& in) {
    return selectionOf(in).analysisSet;
}

const Utterance& utteranceAt(const ReportInputs& in, int index) {
    return in.analysis.check.segmented.utterances[static_cast<size_t>(index)];
}

TableOptions tableOptions(const ReportInputs& in) {
    TableOptions t;
    t.options = measureOptionsFrom(in.settings);
    t.codes = codeMatchersFor(t.options);
    return t;
}

std::string utteranceText(const ReportInputs& in, const Utterance& u) {
    if (in.lines) {
        auto it = std::ranges::lower_bound(*in.lines, u.line, {}, &tranLine::line);
        if (it != in.lines->end() && it->line == u.line)
            return it->text;
    }
    std::string text;
    appendUtf8(text, u.speakerId);
    for (const Word& w : u.words)
        text += " " + std::string(w.text());
    if (u.hasTerminator)
        appendUtf8(text, u.terminatorChar());
    return text;
}

Report tableReportStart(const ReportInputs& in, std::string title) {
    Report report;
    report.title = std::move(title);
    report.header = reportHeader(in.context, in.labels);
    return report;
}

void ItemTally::add(std::string_view item, std::string_view carrier) {
    auto it = rows_.find(item);
    if (it == rows_.end())
        it = rows_.emplace(std::string(item), Row{std::string(item), 0, {}}).first;
    Row& row = it->second;
    ++row.count;
    if (!carrier.empty() && std::ranges::find(row.carriers, carrier) == row.carriers.end())
        row.carriers.emplace_back(carrier);
}

std::vector<ItemTally::Row> ItemTally::rows(bool alphabetical) const {
    std::vector<Row> rows;
    rows.reserve(rows_.size());
    for (const auto& [item, row] : rows_)
        rows.push_back(row);
    if (!alphabetical)
        std::ranges::stable_sort(rows,
                                 [](const Row& a, const Row& b) { return a.count > b.count; });
    return rows;
}

int ItemTally::total() const {
    int total = 0;
    for (const auto& [item, row] : rows_)
        total += row.count;
    return total;
}

std::string joinCarriers(const std::vector<std::string>& carriers) {
    std::string text;
    for (const std::string& c : carriers)
        text += (text.empty() ? "" : ", ") + c;
    return text;
}

std::vector<ReportItem> utteranceLines(const ReportInputs& in, std::span<const int> utterances) {
    std::vector<ReportItem> items;
    for (int i : utterances) {
        const Utterance& u = utteranceAt(in, i);
        items.emplace_back(LabelledLine{"", format("%d", u.line), ":  ", utteranceText(in, u)});
    }
    return items;
}

ReportTable tallyTable(const ItemTally& tally, bool alphabetical, const std::string& itemHeading,
                       const std::string& carriersHeading, const std::string& totalLabel) {
    ReportTable table;
    table.labelHeading = itemHeading;
    table.headings = {"Count"};
    if (!carriersHeading.empty())
        table.headings.push_back(carriersHeading);
    for (const ItemTally::Row& row : tally.rows(alphabetical)) {
        std::vector<std::string> cells{format("%d", row.count)};
        if (!carriersHeading.empty())
            cells.push_back(joinCarriers(row.carriers));
        table.rows.push_back({row.item, std::move(cells)});
    }
    std::vector<std::string> total{format("%d", tally.total())};
    if (!carriersHeading.empty())
        total.emplace_back();
    table.rows.push_back({totalLabel, std::move(total)});
    return table;
}

} // namespace tavi
