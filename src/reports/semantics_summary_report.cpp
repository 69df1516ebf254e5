// Lines of the Semantics Summary; the word lists as a table of types and totals.
#include "reports/semantics_summary_report.h"

#include <array>

#include "base/text.h"
#include "reports/line_format.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"
#include "settings/word_list_settings.h"

namespace tavi {

namespace {

constexpr std::array kWords{
    SummaryLine{"NTW", "RL_NTW", {}, true},
    SummaryLine{"NDW", "RL_NDW", {}, true},
    SummaryLine{"TTR", "RL_TTR", {}, true},
    SummaryLine{"MA_NTW", "RL_MOVEAVE", "RL_NTWINITIALS", true},
    SummaryLine{"MA_NDW", "RL_MOVEAVE", "RL_NDWINITIALS", true},
    SummaryLine{"MA_TTR", "RL_MOVEAVE", "RL_TTRINITIALS", true},
};

constexpr std::array kMorphemes{
    SummaryLine{"BoundMorphs", "RL_WMBM", {}, true},
    SummaryLine{"DiffBM", "RL_DIFFBM", {}, true},
    SummaryLine{"BoundClitics", "RL_WMCT", {}, true},
};

constexpr std::array kSections{
    SummarySection{"RL_WORDS", kWords},
    SummarySection{"RL_BM", kMorphemes},
};

// The standard word lists: the stem of their two measures and their name.
struct WordListRow {
    std::string_view totalId;
    std::string_view typesId;
    std::string_view name;
};

constexpr std::array<WordListRow, 20> kWordLists{{
    {"QuesTot", "QuesTyp", "Question Words"},
    {"NegTot", "NegTyp", "Negatives"},
    {"ConjTot", "ConjTyp", "Conjunctions"},
    {"CoreModalTot", "CoreModalTyp", "Core Modal Auxiliaries"},
    {"MarModalTot", "MarModalTyp", "Marginal Modal Auxiliaries"},
    {"PersPrnTot", "PersPrnTyp", "Personal Pronouns"},
    {"PossPrnTot", "PossPrnTyp", "Possessive Pronouns"},
    {"ReflPrnTot", "ReflPrnTyp", "Reflexive Pronouns"},
    {"DemoPrnTot", "DemPrnTyp", "Demonstrative Pronouns"},
    {"RelPrnTot", "RelPrnTyp", "Relative Pronouns"},
    {"UnivPrnTot", "UnivPrnTyp", "Universal Pronouns"},
    {"PartPrnTot", "PartPrnTyp", "Partitive Pronouns"},
    {"QuanPrnTot", "QuanPrnTyp", "Quantifying Pronouns"},
    {"Extra1Tot", "Extra1Typ", "Extra List 1"},
    {"Extra2Tot", "Extra2Typ", "Extra List 2"},
    {"Extra3Tot", "Extra3Typ", "Extra List 3"},
    {"Extra4Tot", "Extra4Typ", "Extra List 4"},
    {"Extra5Tot", "Extra5Typ", "Extra List 5"},
    {"YNTot", "YNTyp", "Yes/No Words"},
    {"FPTot", "FPTyp", "Filled Pauses"},
}};

ReportSection wordListSection(const ReportInputs& in) {
    ReportSection section{toUpperAscii(in.labels("RL_SWL")), {}};
    if (!in.analysis.result.wordListsAvailable) {
        section.items.emplace_back(TextLine{"Word lists not available."});
        return section;
    }
    const SpeakerMeasures& measures = in.analysis.measures();
    auto count = [&](std::string_view id) {
        const Value* value = measures.find(id);
        return formatCount(value ? value->number() : std::nullopt);
    };
    // The extra lists show the titles the user gave them (primary language set).
    const WordListSettings userLists = parseWordListSettings(in.settings.swlSettingsLines);
    auto name = [&](int list) {
        const WordListRow& row = kWordLists[static_cast<size_t>(list)];
        return row.name.starts_with("Extra List") ? wordListTitle(userLists, 0, list)
                                                  : std::string(row.name);
    };
    ReportTable table;
    table.headings = {"Types", in.labels("RL_TOTAL")};
    for (int list = 0; list < static_cast<int>(kWordLists.size()); ++list) {
        const WordListRow& row = kWordLists[static_cast<size_t>(list)];
        table.rows.push_back({name(list), {count(row.typesId), count(row.totalId)}});
    }
    section.items.emplace_back(std::move(table));
    return section;
}

} // namespace

Report buildSemanticsSummaryReport(const ReportInputs& in) {
    Report report = buildSummaryReport(in, "RL_HEADSEMSMRY", kSections);
    report.sections.push_back(wordListSection(in));
    return report;
}

} // namespace tavi
