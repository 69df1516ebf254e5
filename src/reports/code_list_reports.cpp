// Reports of the code lists.
#include "reports/code_list_reports.h"

#include <map>

#include "base/format.h"
#include "reports/table_report_support.h"

namespace tavi {

namespace {

// The labels of one code list's report.
struct CodeListLabels {
    const char* title;      // "RL_OMITERR"
    const char* utterances; // "Utterances with ... Codes"
    const char* onWords;    // "Word-level ... Codes"
    const char* onUtterance;
};

const CodeMatcher& matcherOf(const CodeMatchers& codes, int list) {
    switch (list) {
    case 0:
        return codes.errors;
    case 1:
        return codes.fluency;
    case 2:
        return codes.nonmainstream;
    default:
        return codes.codeSwitch;
    }
}

constexpr CodeListLabels kLabels[4] = {
    {"RL_OMITERR", "RL_ULECODE", "RL_EWCODE", "RL_EUCODE"},
    {"RL_FLCODES", "RL_ULFLCODE", "RL_FLWCODE", "RL_FLUCODE"},
    {"RL_NMFCODES", "RL_ULNMCODE", "RL_NMFWCODE", "RL_NMFUCODE"},
    {"RL_CSCODES", "RL_ULCSCODE", "RL_CSWCODE", "RL_CSUCODE"},
};

LabelledLine countLine(const std::string& label, int count) {
    return {"", label, ":  ", format("%d", count)};
}

// One section per kind of omission: its count and the utterances with it.
void addOmissions(const ReportInputs& in, Report& report) {
    struct Kind {
        const char* label;
        int count = 0;
        std::vector<int> utterances;
    };
    Kind kinds[3] = {{"RL_OMITWD", 0, {}}, {"RL_OMITBM", 0, {}}, {"RL_OMITCL", 0, {}}};
    for (int i : speakerTotal(in)) {
        int here[3] = {0, 0, 0};
        for (const Word& w : utteranceAt(in, i).words) {
            if (w.inMaze)
                continue;
            if (w.omitted) {
                ++here[0];
                continue;
            }
            here[1] += static_cast<int>(w.omittedBoundMorphemes().size());
            here[2] += static_cast<int>(w.omittedClitics().size());
        }
        for (int k = 0; k < 3; ++k)
            if (here[k] > 0) {
                kinds[k].count += here[k];
                kinds[k].utterances.push_back(i);
            }
    }
    ReportSection summary{in.labels("RL_OMISSIONS"), {}};
    for (const Kind& kind : kinds)
        summary.items.emplace_back(countLine(in.labels(kind.label), kind.count));
    report.sections.push_back(std::move(summary));
    for (const Kind& kind : kinds)
        if (!kind.utterances.empty())
            report.sections.push_back({in.labels(kind.label), utteranceLines(in, kind.utterances)});
}

Report codeListReport(const ReportInputs& in, int list) {
    const CodeListLabels& labels = kLabels[list];
    Report report = tableReportStart(in, in.labels(labels.title));
    if (list == 0)
        addOmissions(in, report);
    const TableOptions t = tableOptions(in);
    const CodeMatcher& matcher = matcherOf(t.codes, list);
    int onWords = 0, onUtterance = 0;
    std::vector<int> carrying;
    std::map<std::string, std::pair<int, std::vector<int>>> byCode; // count, utterances
    for (int i : speakerTotal(in)) {
        bool carries = false;
        for (const Code& c : utteranceAt(in, i).codes()) {
            if (!matcher.matches(c.text))
                continue;
            carries = true;
            ++(c.word >= 0 ? onWords : onUtterance);
            auto& [count, utts] = byCode["[" + std::string(c.text) + "]"];
            ++count;
            if (utts.empty() || utts.back() != i)
                utts.push_back(i);
        }
        if (carries)
            carrying.push_back(i);
    }
    ReportSection summary{in.labels("RL_HEADCODE"), {}};
    summary.items.emplace_back(
        countLine(in.labels(labels.utterances), static_cast<int>(carrying.size())));
    summary.items.emplace_back(countLine(in.labels(labels.onWords), onWords));
    summary.items.emplace_back(countLine(in.labels(labels.onUtterance), onUtterance));
    report.sections.push_back(std::move(summary));
    for (const auto& [code, found] : byCode)
        report.sections.push_back(
            {code + format(" (%d)", found.first), utteranceLines(in, found.second)});
    return report;
}

} // namespace

Report buildOmissionsErrorsReport(const ReportInputs& in) {
    return codeListReport(in, 0);
}

Report buildFluencyCodesReport(const ReportInputs& in) {
    return codeListReport(in, 1);
}

Report buildNonmainstreamCodesReport(const ReportInputs& in) {
    return codeListReport(in, 2);
}

Report buildCodeSwitchCodesReport(const ReportInputs& in) {
    return codeListReport(in, 3);
}

} // namespace tavi
