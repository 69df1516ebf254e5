// One walk over the utterances of the cut: the facts of each utterance, the
// words mentioned first, and what the utterance-level measures of each main
// speaker count. On a large transcript the measures are bound by the reading
// of the utterance records and their facts, so each is read here once for
// both speakers rather than once per family of measures.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "analysis/measure_context.h"
#include "analysis/word_lists.h"

namespace tavi {

namespace {

FilledPauseTest filledPauseTest(const MeasureOptions& o) {
    if (o.wordLists && !o.wordLists->empty(o.wordListSet, kFilledPauseList))
        return WordTest(*o.wordLists, o.wordListSet, kFilledPauseList);
    return isDefaultFilledPause;
}

// Bit k: the utterance goes in utterance list k (the lists' order, PRIP to PINTR).
std::uint32_t utteranceListBits(const Utterance& u, const ResponseType& r, const UtteranceFacts& f,
                                const FactTables& t) {
    static_assert(kUtteranceLists <= 24);    // UtteranceFacts::lists holds 24 bits
    constexpr int kFirstTerminatorList = 15; // PSTMT, then one list per terminator kind
    std::uint32_t in = 0;
    auto put = [&](int k, bool yes) { in |= static_cast<std::uint32_t>(yes) << k; };
    put(0, r.question || r.prompt);                             // PRIP
    put(1, r.imitation);                                        // PIMIT
    put(2, !r.question && !r.prompt && !r.imitation);           // PSPON
    put(3, r.oneWord);                                          // PONEWD
    put(4, u.intelligibility != Intelligibility::Intelligible); // PUNI
    put(6, f.hasOmission(t));                                   // POMIT
    put(8, u.hasComment);                                       // PCOMMENT
    put(9, u.hasQuotation);                                     // PDIAL
    if (u.extras) {
        put(5, !u.pauses().empty());         // PPAUS
        put(7, !u.parentheticals().empty()); // PPAREN
        put(10, !u.codes().empty());         // PCODE
    }
    if (f.codes != 0) {
        const CodeFacts& c = f.codeFacts(t);
        put(11, c.errors.total() > 0);        // PECODE
        put(12, c.fluency.total() > 0);       // PFLCODE
        put(13, c.nonmainstream.total() > 0); // PNMCODE
        put(14, c.codeSwitch.total() > 0);    // PCSCODE
    }
    const auto term = static_cast<int>(u.terminator); // PSTMT, PEXMK, PQUES, PPRMT, PABAN, PINTR
    if (term >= 0 && term < kUtteranceLists - kFirstTerminatorList)
        put(kFirstTerminatorList + term, true);
    return in;
}

// Codes, errors and omissions of one utterance; most have no codes.
void tallyCodes(const UtteranceFacts& f, const FactTables& t, SpeakerTallies& s) {
    const RareFacts& rare = f.rareFacts(t);
    s.omittedWords += rare.omittedWords;
    s.omittedMorphemes += rare.omittedMorphemes;
    s.omittedClitics += rare.omittedClitics;
    if (f.codes == 0) {
        s.withErrorOrOmission += f.hasOmission(t) ? 1 : 0;
        return;
    }
    const CodeFacts& c = f.codeFacts(t);
    for (auto [sum, part] : {std::pair{&s.errors, &c.errors},
                             {&s.fluency, &c.fluency},
                             {&s.nonmainstream, &c.nonmainstream},
                             {&s.codeSwitch, &c.codeSwitch}}) {
        sum->onWords += part->onWords;
        sum->onUtterance += part->onUtterance;
    }
    s.errorWords += c.errorWords;
    ++s.withCode;
    s.withWordCode += c.wordCode ? 1 : 0;
    s.withUtteranceCode += c.utteranceCode ? 1 : 0;
    s.withExcludeCode += c.excludeCode ? 1 : 0;
    s.withError += c.errors.total() > 0 ? 1 : 0;
    s.withFluency += c.fluency.total() > 0 ? 1 : 0;
    s.withNonmainstream += c.nonmainstream.total() > 0 ? 1 : 0;
    s.withCodeSwitch += c.codeSwitch.total() > 0 ? 1 : 0;
    s.withErrorOrOmission += c.errors.total() > 0 || f.hasOmission(t) ? 1 : 0;
}

// Responses, imitations, spontaneous utterances, overlaps and interruptions
// of utterance `i` of speaker `group`.
void tallyDiscourse(const MeasureContext& c, int i, int group, const UtteranceFacts& f,
                    SpeakerTallies& s) {
    const ResponseType& r = c.selection.responses[static_cast<size_t>(i)];
    const Terminator term = c.t.utterances[static_cast<size_t>(i)].terminator;
    s.question += r.question ? 1 : 0;
    s.yesNo += r.yesNo ? 1 : 0;
    s.clarification += r.question && term == Terminator::Question ? 1 : 0;
    s.otherAnswer += r.question && !r.yesNo && term != Terminator::Question ? 1 : 0;
    s.prompt += r.prompt ? 1 : 0;
    s.imitation += r.imitation ? 1 : 0;
    s.exact += r.exactImitation ? 1 : 0;
    s.reduced += r.reducedImitation ? 1 : 0;
    s.oneWord += r.oneWord ? 1 : 0;
    if (!r.question && !r.prompt && !r.imitation) {
        ++s.spontaneous;
        if (static_cast<size_t>(term) < s.spontaneousBy.size())
            ++s.spontaneousBy[static_cast<size_t>(term)];
    }
    s.overlap += f.overlap ? 1 : 0;
    if (i > 0) {
        const Utterance& prev = c.t.utterances[static_cast<size_t>(i) - 1];
        s.interrupts +=
            prev.speakerGroup == 1 - group && prev.terminator == Terminator::Interrupted ? 1 : 0;
    }
}

// Mazes of one utterance of `length` counted words (15 and more: 15).
void tallyMazes(const Utterance& u, int length, const FilledPauseTest& isFilled,
                const GcDictionary* dictionary, SpeakerTallies& s) {
    const auto mazes = u.mazes();
    const size_t len = static_cast<size_t>(length);
    s.mazes += static_cast<int>(mazes.size());
    s.withMaze += mazes.empty() ? 0 : 1;
    s.uttsByLength[len]++;
    s.mazeUttsByLength[len] += mazes.empty() ? 0 : 1;
    s.mazesByUttLength[len] += static_cast<int>(mazes.size());
    for (size_t k = 0; k < mazes.size(); ++k) {
        s.mazeKinds[static_cast<size_t>(
            classifyMaze(u, static_cast<int>(k), isFilled, dictionary))]++;
        s.mazesByLength[static_cast<size_t>(
            std::clamp(static_cast<int>(mazes[k].words.size()), 0, 15))]++;
    }
}

// The Subordination Index codes of an analysis-set utterance with codes.
void tallySi(const Utterance& u, int i, std::string_view prefix, SiSummary& si) {
    std::optional<int> n = siClauseCount(u, prefix);
    if (!n) {
        for (const Code& code : u.codes())
            if (code.text.ends_with('?') &&
                siClauseCount(code.text.substr(0, code.text.size() - 1), prefix))
                ++si.awaitingReview;
        return;
    }
    ++si.coded;
    si.clauses += *n;
    if (si.byClauseCount.size() <= static_cast<size_t>(*n))
        si.byClauseCount.resize(static_cast<size_t>(*n) + 1);
    ++si.byClauseCount[static_cast<size_t>(*n)];
    si.codedUtterances.push_back(i);
}

// Both main speakers: the speaker who said each root first, and the roots
// each said. A root counts for a speaker when it is among theirs and they
// said it first.
class MentionTally {
public:
    void add(const UtteranceFacts& f, int group, const FactTables& t) {
        const size_t roots = static_cast<size_t>(t.roots.size());
        if (firstBy_.size() < roots) {
            firstBy_.resize(roots, -1);
            said_.resize(roots, 0);
        }
        auto note = [&](int id) {
            if (firstBy_[static_cast<size_t>(id)] < 0)
                firstBy_[static_cast<size_t>(id)] = static_cast<signed char>(group);
            said_[static_cast<size_t>(id)] |= static_cast<std::uint8_t>(1u << group);
        };
        for (const CountedWord& w : f.words(t))
            note(t.spelling(w).root);
        for (int id : f.remarkRoots(t))
            note(id);
    }
    void finish(std::array<MentionedFirst, 2>& out) const {
        for (size_t id = 0; id < said_.size(); ++id)
            for (int g = 0; g < 2; ++g)
                if (said_[id] & (1u << g)) {
                    ++out[static_cast<size_t>(g)].different;
                    out[static_cast<size_t>(g)].first += firstBy_[id] == g ? 1 : 0;
                }
    }

private:
    std::vector<signed char> firstBy_;
    std::vector<std::uint8_t> said_; // bit g: said by speaker g
};

} // namespace

void walkUtterances(MeasureContext& c, const std::array<bool, 2>& measured) {
    const MeasureOptions& o = c.options;
    const Selection& sel = c.selection;
    const FactTables& tables = c.tables;
    const FilledPauseTest isFilled = filledPauseTest(o);
    // Kept facts for the utterances from the cut's first to its last.
    if (!sel.utterances.empty()) {
        const auto [low, high] = std::minmax_element(sel.utterances.begin(), sel.utterances.end());
        c.keptFrom = *low;
        c.kept.resize(static_cast<size_t>(*high - *low) + 1);
    }
    MentionTally mentions;
    for (int i : sel.utterances) {
        const Utterance& u = c.t.utterances[static_cast<size_t>(i)];
        const int group = u.speakerGroup;
        // Of the other speakers' utterances only the words are read.
        const bool kept = group <= 1 && measured[static_cast<size_t>(group)];
        const UtteranceFacts f = gatherFacts(u, o.wordBase, c.codes, kept, c.tables);
        if (group > 1)
            continue;
        mentions.add(f, group, tables);
        SpeakerTallies& s = c.tallies[static_cast<size_t>(group)];
        const auto term = static_cast<size_t>(u.terminator);
        if (term < s.terms.size())
            ++s.terms[term];
        if (!measured[static_cast<size_t>(group)])
            continue;

        // Utterance kinds, lengths, timing.
        ++s.intel[static_cast<size_t>(u.intelligibility)];
        s.nonverbal += u.nonverbal ? 1 : 0;
        s.words += f.wordCount;
        s.morphemes += f.morphemes;
        s.mazeWords += f.mazeWords;
        s.marks += f.rareFacts(tables).unintelligibleMarks;
        s.withOmission += f.hasOmission(tables) ? 1 : 0;
        s.withQuotation += u.hasQuotation ? 1 : 0;
        s.withComment += u.hasComment ? 1 : 0;
        if (u.extras) {
            s.withPause += u.pauses().empty() ? 0 : 1;
            s.withRemark += u.parentheticals().empty() ? 0 : 1;
            for (const Pause& p : u.pauses())
                s.within.add(p.timed, p.seconds);
        }
        tallyCodes(f, tables, s);
        tallyDiscourse(c, i, group, f, s);
        // A turn: the speaker's utterances with no other utterance of the
        // cut between them (the cut's utterances are numbered without a gap).
        if (i != s.previous + 1 && s.turnOpenUtterances > 0) {
            s.turnUtterances.add(std::exchange(s.turnOpenUtterances, 0));
            s.turnWords.add(std::exchange(s.turnOpenWords, 0));
        }
        s.previous = i;
        s.turnOpenUtterances += 1;
        s.turnOpenWords += f.wordCount;
        tallyMazes(u, std::min(15, f.wordCount), isFilled, o.dictionary, s);
        const std::uint32_t lists =
            utteranceListBits(u, sel.responses[static_cast<size_t>(i)], f, tables);
        c.kept[static_cast<size_t>(i - c.keptFrom)] = KeptFacts(f, tables, lists);
        for (std::uint32_t in = lists; in != 0; in &= in - 1)
            ++s.listSizes[static_cast<size_t>(std::countr_zero(in))];

        const bool inSet = sel.analysisSetFlags[static_cast<size_t>(i)];
        if (inSet) {
            s.setWords += f.wordCount;
            s.setMorphemes += f.morphemes;
            s.setWithNonmainstream += f.codeFacts(tables).nonmainstream.total() > 0 ? 1 : 0;
            if (!u.codes().empty())
                tallySi(u, i, o.siCodePrefix, s.si);
        }
        if (inSet || !o.distributionOnAnalysisSet)
            s.lengthRows[static_cast<size_t>(
                std::min(15, o.distributionInMorphemes ? f.morphemes : f.wordCount))]++;
    }
    mentions.finish(c.mentionedFirst);
    for (SpeakerTallies& s : c.tallies)
        if (s.turnOpenUtterances > 0) {
            s.turnUtterances.add(std::exchange(s.turnOpenUtterances, 0));
            s.turnWords.add(std::exchange(s.turnOpenWords, 0));
        }
}

} // namespace tavi
