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

// The lists each code of an utterance matches, tested once per code rather
// than once per word and list: bit k of a code's entry for list k below.
enum CodeList : std::uint8_t {
    kErrors = 1,
    kFluency = 2,
    kNonmainstream = 4,
    kCodeSwitch = 8,
    kExcludeSet = 16,
    kWordBase = 32,
};

// Only the word base list is tested unless `every`.
void matchCodes(std::span<const Code> codes, const CodeMatchers& m, bool every,
                std::vector<std::uint8_t>& lists) {
    lists.clear();
    for (const Code& c : codes) {
        std::uint8_t in = 0;
        auto test = [&](const CodeMatcher& list, std::uint8_t bit) {
            in |= list.matches(c.text) ? bit : 0;
        };
        test(m.wordBase, kWordBase);
        if (!every) {
            lists.push_back(in);
            continue;
        }
        test(m.errors, kErrors);
        test(m.fluency, kFluency);
        test(m.nonmainstream, kNonmainstream);
        test(m.codeSwitch, kCodeSwitch);
        test(m.excludeSet, kExcludeSet);
        lists.push_back(in);
    }
}

// Whether a code on word `w` matches list `bit` (`lists` from matchCodes).
bool wordCarries(std::span<const Code> codes, const std::vector<std::uint8_t>& lists, int w,
                 std::uint8_t bit) {
    for (size_t k = 0; k < codes.size(); ++k)
        if (codes[k].word == w && (lists[k] & bit) != 0)
            return true;
    return false;
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

// Numbers `w`'s spelling, met for the first time, and works out its facts.
// Kept out of the walk over the words: few words bring a new spelling.
[[gnu::noinline]] std::uint32_t addSpelling(const Word& w, FactTables& t) {
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

// The number of `w`'s spelling in `t`.
std::uint32_t spellingOf(const Word& w, FactTables& t) {
    if (std::optional<std::uint32_t> known = t.spellings.find(w.text(), w.linked))
        return *known;
    return addSpelling(w, t);
}

// Notes a word that is a maze word, omitted, an unintelligible mark or has
// parts; whether it may still count (a main-body word with parts).
[[gnu::noinline]] bool noteMarkedWord(const Word& w, UtteranceFacts& f, RareFacts& rare) {
    if (w.inMaze) {
        f.mazeWords += !w.omitted && !w.unintelligible ? 1 : 0;
        return false;
    }
    if (w.omitted) {
        ++rare.omittedWords;
        return false;
    }
    if (const WordParts* parts = w.parts()) {
        rare.omittedMorphemes += parts->counts[2];
        rare.omittedClitics += parts->counts[4];
    }
    if (w.unintelligible) {
        ++rare.unintelligibleMarks;
        return false;
    }
    return true;
}

void tallyCodes(std::span<const Code> codes, const std::vector<std::uint8_t>& lists, CodeFacts& f) {
    for (size_t k = 0; k < codes.size(); ++k) {
        const bool onWord = codes[k].word >= 0;
        (onWord ? f.wordCode : f.utteranceCode) = true;
        f.excludeCode = f.excludeCode || (lists[k] & kExcludeSet) != 0;
        auto tally = [&](std::uint8_t bit, CodeTally& t) {
            if ((lists[k] & bit) != 0)
                ++(onWord ? t.onWords : t.onUtterance);
        };
        tally(kErrors, f.errors);
        tally(kFluency, f.fluency);
        tally(kNonmainstream, f.nonmainstream);
        tally(kCodeSwitch, f.codeSwitch);
    }
}

} // namespace

bool isCountedWord(const Utterance& u, int index, const WordBase& base, const CodeMatchers& m) {
    const Word& w = u.words[static_cast<size_t>(index)];
    return !w.inMaze && !w.omitted && !w.unintelligible &&
           passesWordBase(u, index, base, m.wordBase);
}

UtteranceFacts gatherFacts(const Utterance& u, const WordBase& base, const CodeMatchers& m,
                           bool withCodes, FactTables& t) {
    UtteranceFacts f;
    RareFacts rare;
    f.wordsFrom = static_cast<std::uint32_t>(t.words.size());
    rare.remarksFrom = static_cast<std::uint32_t>(t.remarkRoots.size());
    CodeFacts codes;
    const std::span<const Code> codeList = u.codes();
    const bool tallied = withCodes && !codeList.empty();
    if (!codeList.empty())
        matchCodes(codeList, m, withCodes, t.codeLists);
    // Without a word base list every word passes or none does.
    const bool listedBase = !m.wordBase.empty();
    const bool everyWordPasses = !listedBase && !base.includeMode;
    bool overlap = u.hasOverlap;
    int morphemes = 0, boundMorphemes = 0, clitics = 0;
    int counted = 0;
    for (int index = 0; index < static_cast<int>(u.words.size()); ++index) {
        const Word& w = u.words[static_cast<size_t>(index)];
        overlap = overlap || w.inOverlap;
        if ((w.inMaze || w.omitted || w.unintelligible || w.parts() != nullptr) &&
            !noteMarkedWord(w, f, rare))
            continue;
        if (!everyWordPasses &&
            (!listedBase ||
             base.includeMode != wordCarries(codeList, t.codeLists, index, kWordBase)))
            continue;
        const std::uint32_t spelling = spellingOf(w, t);
        const SpellingFacts& known = t.spellingList[spelling];
        t.words.push_back(CountedWord{spelling});
        ++counted;
        morphemes += known.morphemes;
        boundMorphemes += known.boundMorphemes;
        clitics += known.clitics;
        if (tallied)
            codes.errorWords += wordCarries(codeList, t.codeLists, index, kErrors) ? 1 : 0;
    }
    f.overlap = overlap;
    f.morphemes = morphemes;
    f.boundMorphemes = boundMorphemes;
    f.clitics = clitics;
    if (!base.excludeParenthetical)
        addParentheticalWords(u, rare, t);
    f.wordCount = counted + rare.remarks;
    f.morphemes += rare.remarks;
    if (tallied) {
        tallyCodes(codeList, t.codeLists, codes);
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
