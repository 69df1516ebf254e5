// Lines of the Code Summary: utterances with codes, the four code lists, and
// the word codes and utterance codes found.
#include "reports/code_summary_report.h"

#include <array>

#include "base/text.h"
#include "reports/code_counts.h"
#include "reports/line_format.h"
#include "reports/report_registry.h"
#include "reports/summary_lines.h"

namespace tavi {

namespace {

constexpr std::array kUtterances{
    SummaryLine{"UtWCode", "RL_ULCODE"},
    SummaryLine{"UttwWdCode", "RL_TSUWC"},
    SummaryLine{"UttwUtCode", "RL_TSUUC"},
    SummaryLine{"UttwExclCode", "RL_TSUXC"},
};

constexpr std::array kSections{
    SummarySection{"RL_UTTERANCES", kUtterances},
};

// The codes of each code list: on words, on utterances.
struct ListRow {
    std::string_view labelKey;
    std::string_view wordsId;
    std::string_view utterancesId;
};

constexpr std::array<ListRow, 4> kLists{{
    {"RL_ERRORCDS", "ErrCodesWd", "ErrCodesUt"},
    {"RL_FLCODES", "FlCodesWd", "FlCodesUt"},
    {"RL_NMFCODES", "NMFormCodesWd", "NMFormCodesUt"},
    {"RL_CSCODES", "CSwitchCodesWd", "CSwitchCodesUt"},
}};

ReportTable listTable(const ReportInputs& in) {
    const SpeakerMeasures& measures = in.analysis.measures();
    auto value = [&](std::string_view id) {
        const Value* v = measures.find(id);
        return v ? v->number() : std::nullopt;
    };
    ReportTable table;
    table.labelHeading = "Code List";
    table.headings = {"Word", "Utterance", in.labels("RL_TOTAL")};
    for (const ListRow& row : kLists) {
        const std::optional<double> words = value(row.wordsId);
        const std::optional<double> utterances = value(row.utterancesId);
        std::optional<double> total;
        if (words && utterances)
            total = *words + *utterances;
        table.rows.push_back({in.labels(row.labelKey),
                              {formatCount(words), formatCount(utterances), formatCount(total)}});
    }
    return table;
}

// The codes standing on words (or on utterances), with their counts.
ReportSection codeSection(const ReportInputs& in, const std::vector<CodeCount>& codes,
                          bool onWords) {
    ReportSection section{toUpperAscii(in.labels(onWords ? "RL_CDWORD" : "RL_CDUTT")), {}};
    ReportTable table;
    table.labelHeading = "Code";
    table.headings = {in.labels("RL_RPNUM")};
    int sum = 0;
    for (const CodeCount& count : codes) {
        const int n = onWords ? count.onWords : count.onUtterances;
        if (n == 0)
            continue;
        table.rows.push_back({"[" + count.code + "]", {std::to_string(n)}});
        sum += n;
    }
    if (table.rows.empty()) {
        section.items.emplace_back(TextLine{in.labels(onWords ? "RL_CDWDMSG" : "RL_CDUTTMSG")});
        return section;
    }
    table.rows.push_back({in.labels("RL_TOTAL"), {std::to_string(sum)}});
    section.items.emplace_back(std::move(table));
    return section;
}

} // namespace

Report buildCodeSummaryReport(const ReportInputs& in) {
    Report report = buildSummaryReport(in, "Code Summary", kSections);
    report.sections.push_back({"CODE LISTS", {listTable(in)}});
    const std::vector<CodeCount> codes = countCodes(in.analysis);
    report.sections.push_back(codeSection(in, codes, true));
    report.sections.push_back(codeSection(in, codes, false));
    return report;
}

} // namespace tavi
