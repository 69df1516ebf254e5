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
void addParentheticalWords(const Utterance& u, RareFacts& r, FactTables& t) {
    for (const Word& w : u.parentheticalWords())
        if (!w.omitted && !w.unintelligible && !w.inMaze) {
            rootKeyInto(w, t.key);
            t.remarkRoots.push_back(t.roots.idOf(t.key));
            ++r.remarks;
        }
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

// The facts of `w`'s spelling, worked out at its first use.
std::uint32_t spellingOf(const Word& w, FactTables& t) {
    if (std::optional<std::uint32_t> known = t.spellings.find(w.text(), w.linked))
        return *known;
    const std::uint32_t id = t.spellings.insert(w.text(), w.linked);
    SpellingFacts f;
    f.word = &w;
    f.traits = traitsOf(w);
    f.endingsFrom = static_cast<std::uint32_t>(t.spellingEndings.size());
    for (std::string_view e : w.boundMorphemes()) {
        t.form.assign(e);
        for (char& c : t.form)
            if (c >= 'A' && c <= 'Z')
                c = static_cast<char>(c + 32);
        t.spellingEndings.push_back(t.endings.idOf(t.form));
    }
    rootKeyInto(w, t.key);
    f.root = t.roots.idOf(t.key);
    surfaceFormInto(w, t.key, t.form);
    f.form = t.forms.idOf(t.form);
    f.morphemes = morphemeCount(w);
    f.boundMorphemes = static_cast<int>(w.boundMorphemes().size());
    f.clitics = static_cast<int>(w.clitics().size());
    t.spellingList.push_back(f);
    return id;
}

void tallyCodes(const Utterance& u, const CodeMatchers& m, CodeFacts& f) {
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

bool isCountedWord(const Utterance& u, int index, const WordBase& base, const CodeMatchers& m) {
    const Word& w = u.words[static_cast<size_t>(index)];
    return !w.inMaze && !w.omitted && !w.unintelligible &&
           passesWordBase(u, index, base, m.wordBase);
}

UtteranceFacts gatherFacts(const Utterance& u, const WordBase& base, const CodeMatchers& m,
                           FactTables& t) {
    UtteranceFacts f;
    RareFacts rare;
    f.wordsFrom = static_cast<std::uint32_t>(t.words.size());
    rare.remarksFrom = static_cast<std::uint32_t>(t.remarkRoots.size());
    CodeFacts codes;
    f.overlap = u.hasOverlap;
    int counted = 0;
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
            ++rare.omittedWords;
            continue;
        }
        rare.omittedMorphemes += static_cast<int>(w.omittedBoundMorphemes().size());
        rare.omittedClitics += static_cast<int>(w.omittedClitics().size());
        if (w.unintelligible) {
            ++rare.unintelligibleMarks;
            continue;
        }
        if (!passesWordBase(u, index, base, m.wordBase))
            continue;
        CountedWord word;
        word.spelling = spellingOf(w, t);
        const SpellingFacts& known = t.spellingList[word.spelling];
        t.words.push_back(word);
        ++counted;
        f.morphemes += known.morphemes;
        f.boundMorphemes += known.boundMorphemes;
        f.clitics += known.clitics;
        if (!u.codes().empty())
            codes.errorWords += wordCarries(u, index, m.errors) ? 1 : 0;
    }
    if (!base.excludeParenthetical)
        addParentheticalWords(u, rare, t);
    f.wordCount = counted + rare.remarks;
    f.morphemes += rare.remarks;
    if (!u.codes().empty()) {
        tallyCodes(u, m, codes);
        f.codes = static_cast<std::uint32_t>(t.codeFacts.size());
        t.codeFacts.push_back(codes);
    }
    if (rare.any()) {
        f.rare = static_cast<std::uint32_t>(t.rareFacts.size());
        t.rareFacts.push_back(rare);
    }
    return f;
}

} // namespace tavi
