// The Word Root Table.
#include "reports/word_root_table.h"

#include "analysis/word_forms.h"
#include "reports/table_report_support.h"

namespace tavi {

Report buildWordRootTable(const ReportInputs& in) {
    Report report = tableReportStart(in, in.labels("RL_WRTABLE"));
    const TableOptions t = tableOptions(in);
    ItemTally tally;
    for (int i : speakerAnalysisSet(in)) {
        const Utterance& u = utteranceAt(in, i);
        for (int k = 0; k < static_cast<int>(u.words.size()); ++k) {
            const Word& w = u.words[static_cast<size_t>(k)];
            if (isCountedWord(u, k, t.options.wordBase, t.codes) ||
                (in.choices.includeMazes && isMazeWord(w)))
                tally.add(rootKey(w), {});
        }
        // Words of parenthetical remarks count as NTW counts them.
        if (!t.options.wordBase.excludeParenthetical)
            for (const Word& w : u.parentheticalWords())
                if (!w.omitted && !w.unintelligible && !w.inMaze)
                    tally.add(rootKey(w), {});
    }
    report.header.push_back({"", in.labels("RL_WORDS"), ":  ",
                             in.choices.includeMazes ? in.labels("RL_ALLWDSINCLMZ") : "Main Body"});
    ReportSection section;
    section.items.emplace_back(
        tallyTable(tally, in.choices.sortAlphabetically, "Root", "", in.labels("RL_TOTAL")));
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace tavi
