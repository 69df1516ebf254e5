// What the Analyze menu's lists and tables share: the analysed speaker's
// utterances, an utterance's text as written, a tally of items (endings,
// roots, codes) with the words or utterances that carry them, and the start
// of each report (title and the standard header lines).
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/utterance_facts.h"
#include "reports/report.h"
#include "reports/report_registry.h"

namespace tavi {

// The analysed speaker's utterances inside the cut (`total`) and the subset
// of the analysis set, as indices into the segmented transcript.
std::span<const int> speakerTotal(const ReportInputs& in);
std::span<const int> speakerAnalysisSet(const ReportInputs& in);
const Utterance& utteranceAt(const ReportInputs& in, int index);

// The measure options and code matchers of the settings in force (word base,
// code lists, analysis set), as the measures read them.
struct TableOptions {
    MeasureOptions options;
    CodeMatchers codes;
};
TableOptions tableOptions(const ReportInputs& in);

// The utterance's line as written, when the transcript's lines are known;
// else its speaker, words and terminator put back together.
std::string utteranceText(const ReportInputs& in, const Utterance& u);

// A report with its title and the standard header lines.
Report tableReportStart(const ReportInputs& in, std::string title);

// Items counted with the different words (or utterances) that carry them.
class ItemTally {
public:
    struct Row {
        std::string item;
        int count = 0;
        std::vector<std::string> carriers; // in order of first use
    };

    void add(std::string_view item, std::string_view carrier);
    // By count (highest first, ties alphabetical), or alphabetically.
    std::vector<Row> rows(bool alphabetical) const;
    int total() const;
    bool empty() const { return rows_.empty(); }

private:
    std::map<std::string, Row, std::less<>> rows_;
};

// "word, word, word": carriers joined for a table cell.
std::string joinCarriers(const std::vector<std::string>& carriers);

// "Entry NN: text" lines of some utterances, in transcript order.
std::vector<ReportItem> utteranceLines(const ReportInputs& in, std::span<const int> utterances);

// A table's label column rows: "item", count, carriers, with a "Total" row.
ReportTable tallyTable(const ItemTally& tally, bool alphabetical, const std::string& itemHeading,
                       const std::string& carriersHeading, const std::string& totalLabel);

} // namespace tavi
