// One pass over an utterance's words and codes.
#include "analysis/utterance_facts.h"

#include <algorithm>
#include <cstring>

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
    bool added = false;
    const std::uint32_t id = t.spellings.find(w.text(), w.linked, added);
    if (!added)
        return id;
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

// A number made of a text's bytes: the whole text when it has 8 bytes or
// fewer (two overlapping loads of 4, or three single bytes, which together
// with the length tell such a text from every other), else its first and
// last 8 bytes.
std::uint64_t packText(const char* p, size_t n) {
    if (n > 8) {
        std::uint64_t first, last;
        std::memcpy(&first, p, 8);
        std::memcpy(&last, p + n - 8, 8);
        return first ^ (last * 0x9E3779B97F4A7C15ull);
    }
    if (n >= 4) {
        std::uint32_t first, last;
        std::memcpy(&first, p, 4);
        std::memcpy(&last, p + n - 4, 4);
        return (std::uint64_t{first} << 32) | last;
    }
    if (n == 0)
        return 0;
    const auto byte = [&](size_t k) { return std::uint64_t{static_cast<unsigned char>(p[k])}; };
    return (byte(0) << 16) | (byte(n / 2) << 8) | byte(n - 1);
}

std::uint32_t spellingHash(std::uint64_t packed, size_t n, bool linked) {
    std::uint64_t h =
        (packed ^ (std::uint64_t{n} << 57) ^ (linked ? 1u : 0u)) * 0x9E3779B97F4A7C15ull;
    h ^= h >> 32;
    h *= 0xC4CEB9FE1A85EC53ull;
    return static_cast<std::uint32_t>(h >> 32);
}

} // namespace

std::uint32_t SpellingIndex::find(std::string_view text, bool linked, bool& added) {
    const std::uint64_t packed = packText(text.data(), text.size());
    const std::uint32_t hash = spellingHash(packed, text.size(), linked);
    const size_t mask = slots_.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& s = slots_[at];
        if (s.id == kEmpty) {
            added = true;
            return add({text.data(), packed, static_cast<std::uint32_t>(text.size()), linked},
                       hash);
        }
        if (s.hash != hash)
            continue;
        const Key& k = keys_[s.id];
        if (k.size == text.size() && k.linked == linked && k.packed == packed &&
            (text.size() <= 8 || std::memcmp(k.data, text.data(), text.size()) == 0)) {
            added = false;
            return s.id;
        }
    }
}

std::uint32_t SpellingIndex::add(const Key& key, std::uint32_t hash) {
    const auto id = static_cast<std::uint32_t>(keys_.size());
    keys_.push_back(key);
    if (keys_.size() * 2 > slots_.size())
        grow();
    place({hash, id});
    return id;
}

void SpellingIndex::place(Slot slot) {
    const size_t mask = slots_.size() - 1;
    size_t at = slot.hash & mask;
    while (slots_[at].id != kEmpty)
        at = (at + 1) & mask;
    slots_[at] = slot;
}

void SpellingIndex::grow() {
    std::vector<Slot> old = std::move(slots_);
    slots_.assign(old.size() * 2, Slot{});
    for (const Slot& s : old)
        if (s.id != kEmpty)
            place(s);
}

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
