// Tables of word codes and utterance codes.
#include "reports/code_tables.h"

#include "base/format.h"
#include "reports/table_report_support.h"

namespace tavi {

namespace {

enum class Place { Word, Utterance };

Report codeTable(const ReportInputs& in, Place place) {
    const bool onWords = place == Place::Word;
    Report report = tableReportStart(in, in.labels(onWords ? "RL_WCTABLE" : "RL_UCTABLE"));
    ItemTally tally;
    int utterances = 0;
    for (int i : speakerTotal(in)) {
        const Utterance& u = utteranceAt(in, i);
        bool carries = false;
        for (const Code& c : u.codes()) {
            if ((c.word >= 0) != onWords)
                continue;
            carries = true;
            const std::string code = "[" + std::string(c.text) + "]";
            if (onWords)
                tally.add(code, u.words[static_cast<size_t>(c.word)].text());
            else
                tally.add(code, format("%d", u.line));
        }
        utterances += carries ? 1 : 0;
    }
    ReportSection section;
    section.items.emplace_back(LabelledLine{"", in.labels(onWords ? "RL_TSUWC" : "RL_TSUUC"), ":  ",
                                            format("%d", utterances)});
    if (tally.empty())
        section.items.emplace_back(TextLine{in.labels(onWords ? "RL_CDWDMSG" : "RL_CDUTTMSG")});
    else
        section.items.emplace_back(tallyTable(tally, in.choices.sortAlphabetically, "Code",
                                              onWords ? in.labels("RL_WORDS") : "Entries",
                                              in.labels("RL_TOTAL")));
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace

Report buildWordCodeTable(const ReportInputs& in) {
    return codeTable(in, Place::Word);
}

Report buildUtteranceCodeTable(const ReportInputs& in) {
    return codeTable(in, Place::Utterance);
}

} // namespace tavi
