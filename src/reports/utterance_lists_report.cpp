// The Standard Utterance Lists report.
#include "reports/utterance_lists_report.h"

#include "analysis/selection.h"
#include "base/format.h"
#include "base/text.h"
#include "reports/table_report_support.h"

namespace tavi {

namespace {

constexpr std::array<UtteranceListKind, kUtteranceLists> kKinds{{
    {"PRIP", "", "Responses to Questions and Intonation Prompts"},
    {"PIMIT", "RL_ULIMIT", ""},
    {"PSPON", "RL_ULSPON", ""},
    {"PONEWD", "RL_ULONEWD", ""},
    {"PUNI", "RL_ULUNI", ""},
    {"PPAUS", "RL_ULPAUS", ""},
    {"POMIT", "RL_ULOMIT", ""},
    {"PPAREN", "RL_ULPAREN", ""},
    {"PCOMMENT", "RL_ULCOMMENT", ""},
    {"PDIAL", "RL_ULDIAL", ""},
    {"PCODE", "RL_ULCODE", ""},
    {"PECODE", "RL_ULECODE", ""},
    {"PFLCODE", "RL_ULFLCODE", ""},
    {"PNMCODE", "RL_ULNMCODE", ""},
    {"PCSCODE", "RL_ULCSCODE", ""},
    {"PSTMT", "RL_ULSTMT", ""},
    {"PEXMK", "RL_ULEXMK", ""},
    {"PQUES", "RL_ULQUES", ""},
    {"PPRMT", "RL_ULPRMT", ""},
    {"PABAN", "RL_ABANUTT", ""},
    {"PINTR", "RL_ULINTR", ""},
}};

constexpr int kResponseList = 0; // PRIP: yes/no responses are among them

} // namespace

const std::array<UtteranceListKind, kUtteranceLists>& utteranceListKinds() {
    return kKinds;
}

std::optional<int> utteranceListIndex(std::string_view key) {
    const std::string upper = toUpperAscii(key);
    for (int k = 0; k < kUtteranceLists; ++k)
        if (kKinds[static_cast<size_t>(k)].key == upper)
            return k;
    return std::nullopt;
}

Report buildUtteranceListsReport(const ReportInputs& in) {
    Report report = tableReportStart(in, in.labels("RL_SUL"));
    std::vector<int> chosen;
    std::string unknown;
    for (const std::string& key : in.choices.utteranceLists) {
        if (auto k = utteranceListIndex(key))
            chosen.push_back(*k);
        else
            unknown += (unknown.empty() ? "" : ", ") + key;
    }
    if (!unknown.empty())
        report.sections.push_back(
            {"",
             {TextLine{"Unknown utterance lists: " + unknown + " (the lists are PRIP to PINTR)"}}});
    if (chosen.empty())
        for (int k = 0; k < kUtteranceLists; ++k)
            chosen.push_back(k);
    const SpeakerMeasures& m = in.analysis.measures();
    for (int k : chosen) {
        const UtteranceListKind& kind = kKinds[static_cast<size_t>(k)];
        const std::vector<int>& utts = m.utteranceLists[static_cast<size_t>(k)];
        ReportSection section;
        section.title =
            (kind.labelKey.empty() ? std::string(kind.title) : in.labels(kind.labelKey)) +
            format(" (%d)", static_cast<int>(utts.size()));
        if (k == kResponseList && !in.analysis.result.wordListsAvailable)
            section.items.emplace_back(TextLine{std::string(kYesNoListMissing)});
        for (ReportItem& item : utteranceLines(in, utts))
            section.items.push_back(std::move(item));
        if (utts.empty())
            section.items.emplace_back(TextLine{"None."});
        report.sections.push_back(std::move(section));
    }
    return report;
}

} // namespace tavi
