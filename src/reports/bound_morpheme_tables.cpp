// Tables of bound morphemes and clitics.
#include "reports/bound_morpheme_tables.h"

#include "analysis/word_forms.h"
#include "base/text.h"
#include "reports/table_report_support.h"

namespace tavi {

namespace {

enum class Piece { BoundMorpheme, Clitic };

Report endingTable(const ReportInputs& in, Piece piece) {
    const bool morphemes = piece == Piece::BoundMorpheme;
    Report report = tableReportStart(in, in.labels(morphemes ? "RL_BMTABLE" : "RL_BCTABLE"));
    const TableOptions t = tableOptions(in);
    ItemTally tally;
    for (int i : speakerAnalysisSet(in)) {
        const Utterance& u = utteranceAt(in, i);
        for (int k = 0; k < static_cast<int>(u.words.size()); ++k) {
            if (!isCountedWord(u, k, t.options.wordBase, t.codes))
                continue;
            const Word& w = u.words[static_cast<size_t>(k)];
            const auto pieces = morphemes ? w.boundMorphemes() : w.clitics();
            if (pieces.empty())
                continue;
            const std::string said = surfaceForm(w);
            for (std::string_view p : pieces)
                tally.add((morphemes ? "/" : "+") + toLowerAscii(p), said);
        }
    }
    ReportSection section;
    section.items.emplace_back(
        tallyTable(tally, in.choices.sortAlphabetically,
                   morphemes ? in.labels("RL_BM") : std::string("Bound Clitics"),
                   in.labels("RL_WORDS"), in.labels("RL_TOTAL")));
    report.sections.push_back(std::move(section));
    return report;
}

} // namespace

Report buildBoundMorphemeTable(const ReportInputs& in) {
    return endingTable(in, Piece::BoundMorpheme);
}

Report buildBoundCliticTable(const ReportInputs& in) {
    return endingTable(in, Piece::Clitic);
}

} // namespace tavi
