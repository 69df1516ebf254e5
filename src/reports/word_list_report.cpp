// The Standard Word Lists report.
#include "reports/word_list_report.h"

#include <algorithm>

#include "analysis/word_lists.h"
#include "base/format.h"
#include "reports/table_report_support.h"
#include "settings/word_list_settings.h"

namespace tavi {

namespace {

constexpr int kConjunctions = 2;

// "Question Words (Types)"; the conjunction list keeps "Conjunctions (Type)".
std::string wordListRowLabel(const std::string& name, int list, bool types) {
    if (!types)
        return name + " (Total)";
    return name + (list == kConjunctions ? " (Type)" : " (Types)");
}

} // namespace

Report buildWordListReport(const ReportInputs& in) {
    Report report = tableReportStart(in, in.labels("RL_SWL"));
    const TableOptions t = tableOptions(in);
    const int set = std::clamp(t.options.wordListSet, 0, 3);
    report.header.push_back(
        {"", "Word List Set", ":  ", std::string(kWordListSetNames[static_cast<size_t>(set)])});
    ReportSection section;
    if (!in.analysis.result.wordListsAvailable) {
        section.items.emplace_back(TextLine{"Standard word lists not available."});
        report.sections.push_back(std::move(section));
        return report;
    }
    const SpeakerMeasures& m = in.analysis.measures();
    ReportTable table;
    table.headings = {"Count", in.labels("RL_EXPWORDS")};
    const WordListSettings userLists = parseWordListSettings(in.settings.swlSettingsLines);
    for (int k = 0; k < kWordListKinds; ++k) {
        const WordCount& count = m.wordLists[static_cast<size_t>(k)];
        const std::string name = wordListTitle(userLists, set, k);
        table.rows.push_back({wordListRowLabel(name, k, true),
                              {format("%d", count.types), joinCarriers(count.words)}});
        table.rows.push_back({wordListRowLabel(name, k, false), {format("%d", count.total), ""}});
    }
    section.items.emplace_back(std::move(table));
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace tavi
