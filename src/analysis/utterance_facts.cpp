// One pass over an utterance's words and codes.
#include "analysis/utterance_facts.h"

#include "analysis/gc_dictionary.h"
#include "analysis/word_forms.h"
#include "base/text.h"
#include "transcript/bound_morphemes.h"

namespace tavi {

namespace {

// The codes placed on word `w` (its index in the utterance).
bool wordCarries(const Utterance& u, int w, const CodeMatcher& m) {
    for (const Code& c : u.codes())
        if (c.word == w && m.matches(c.text))
            return true;
    return false;
}

bool passesWordBase(const Utterance& u, int w, const WordBase& base, const CodeMatcher& m) {
    if (m.empty())
        return !base.includeMode;
    return base.includeMode ? wordCarries(u, w, m) : !wordCarries(u, w, m);
}

// Words of parenthetical remarks, counted when the word base takes them.
void addParentheticalWords(const Utterance& u, UtteranceFacts& f) {
    for (const Word& w : u.parentheticalWords())
        if (!w.omitted && !w.unintelligible && !w.inMaze)
            f.roots.push_back(rootKey(w));
}

WordTraits traitsOf(const Word& w) {
    WordTraits t;
    for (std::string_view e : w.boundMorphemes()) {
        int group = boundMorphemeGroup(e);
        t.endingGroups |= static_cast<std::uint16_t>(1u << group);
        t.contractedVerbs += group == kContractedVerbGroup ? 1 : 0;
    }
    t.skipped = isSkippedCategoryToken(w.text());
    return t;
}

void tallyCodes(const Utterance& u, const CodeMatchers& m, UtteranceFacts& f) {
    for (const Code& c : u.codes()) {
        bool onWord = c.word >= 0;
        (onWord ? f.wordCode : f.utteranceCode) = true;
        f.excludeCode = f.excludeCode || m.excludeSet.matches(c.text);
        auto tally = [&](const CodeMatcher& list, CodeTally& t) {
            if (list.matches(c.text))
                ++(onWord ? t.onWords : t.onUtterance);
        };
        tally(m.errors, f.errors);
        tally(m.fluency, f.fluency);
        tally(m.nonmainstream, f.nonmainstream);
        tally(m.codeSwitch, f.codeSwitch);
    }
}

} // namespace

UtteranceFacts gatherFacts(const Utterance& u, const WordBase& base, const CodeMatchers& m,
                           RootIds& ids) {
    UtteranceFacts f;
    f.words.reserve(u.words.size());
    f.traits.reserve(u.words.size());
    f.forms.reserve(u.words.size());
    f.roots.reserve(u.words.size());
    f.overlap = u.hasOverlap;
    for (int index = 0; index < static_cast<int>(u.words.size()); ++index) {
        const Word& w = u.words[index];
        f.overlap = f.overlap || w.inOverlap;
        if (isMazeWord(w)) {
            ++f.mazeWords;
            continue;
        }
        if (w.inMaze)
            continue;
        if (w.omitted) {
            ++f.omittedWords;
            continue;
        }
        f.omittedMorphemes += static_cast<int>(w.omittedBoundMorphemes().size());
        f.omittedClitics += static_cast<int>(w.omittedClitics().size());
        if (w.unintelligible) {
            ++f.unintelligibleMarks;
            continue;
        }
        if (!passesWordBase(u, index, base, m.wordBase))
            continue;
        f.words.push_back(&w);
        f.traits.push_back(traitsOf(w));
        for (std::string_view e : w.boundMorphemes())
            f.endings.push_back(toLowerAscii(e));
        f.roots.push_back(rootKey(w));
        f.forms.push_back(surfaceForm(w, f.roots.back()));
        f.morphemes += morphemeCount(w);
        f.boundMorphemes += static_cast<int>(w.boundMorphemes().size());
        f.clitics += static_cast<int>(w.clitics().size());
        f.errorWords += wordCarries(u, index, m.errors) ? 1 : 0;
    }
    if (!base.excludeParenthetical)
        addParentheticalWords(u, f);
    f.morphemes += static_cast<int>(f.roots.size() - f.words.size());
    f.wordCount = static_cast<int>(f.roots.size());
    f.rootIds.reserve(f.roots.size());
    for (const std::string& r : f.roots)
        f.rootIds.push_back(ids.idOf(r));
    tallyCodes(u, m, f);
    return f;
}

} // namespace tavi
