// What the measures need to know about one utterance, gathered in one pass
// over its words and codes under the word base and the code lists.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/code_lists.h"
#include "analysis/word_base.h"
#include "base/text_index.h"
#include "transcript/utterance.h"

namespace tavi {

// The code lists of one analysis, parsed once.
struct CodeMatchers {
    CodeMatcher errors, fluency, nonmainstream, codeSwitch, excludeSet;
    CodeMatcher wordBase; // the word base's exclude or include list
};

struct MeasureOptions;
// The matchers of the code lists, analysis set and word base of `options`.
CodeMatchers codeMatchersFor(const MeasureOptions& options);

// Counts of one kind of code in an utterance.
struct CodeTally {
    int onWords = 0;
    int onUtterance = 0;
    int total() const { return onWords + onUtterance; }
};

// What the category and verb counts need of a counted word, kept beside it so
// those counts need not reach back into the word record.
struct WordTraits {
    std::uint16_t endingGroups = 0;   // bit g set: a present bound morpheme of group g
    std::uint8_t contractedVerbs = 0; // present endings of the contracted verb form group
    bool skipped = false;             // the category count skips the token
};

// Numbers the different strings of one kind (roots, surface forms, endings)
// of one computation from 0, so that sets of them can be kept as flags and
// counts indexed by number, and each is stored once.
class Numbering {
public:
    int idOf(std::string_view text) {
        if (std::optional<std::uint32_t> id = ids_.find(text))
            return static_cast<int>(*id); // nothing built for a string already numbered
        names_.emplace_back(text);
        views_.emplace_back(names_.back());
        return static_cast<int>(ids_.insert(names_.back()));
    }
    const std::string& name(int id) const { return names_[static_cast<size_t>(id)]; }
    // The same text as a view, found without walking the deque's blocks.
    std::string_view view(int id) const { return views_[static_cast<size_t>(id)]; }
    int size() const { return static_cast<int>(names_.size()); }

private:
    std::deque<std::string> names_;       // never moved: the index views them
    std::vector<std::string_view> views_; // of names_
    TextIndex ids_;                       // numbers names_ in order
};

// The roots of one transcript.
using RootIds = Numbering;

// What a counted word's spelling gives, the same wherever the spelling
// recurs: a word is split from its text and whether it is linked alone.
struct SpellingFacts {
    const Word* word = nullptr;    // the first word of this spelling
    int root = 0;                  // root number (RootIds)
    int form = 0;                  // surface form number
    WordTraits traits;             // what the category and verb counts need
    std::uint32_t endingsFrom = 0; // FactTables::spellingEndings[endingsFrom, + boundMorphemes)
    int boundMorphemes = 0;
    int clitics = 0;
    int morphemes = 0;
};

// A counted main-body word of an utterance, in the order of the utterance's words.
struct CountedWord {
    std::uint32_t spelling = 0; // FactTables::spellingList
};

// What an utterance's codes give; most utterances have none.
struct CodeFacts {
    bool wordCode = false, utteranceCode = false, excludeCode = false;
    CodeTally errors, fluency, nonmainstream, codeSwitch;
    int errorWords = 0; // counted words carrying an error code
};

// The counts of an utterance that most utterances do not have (words of
// parenthetical remarks, omissions, unintelligible marks), kept apart so that
// the record kept for every utterance stays small.
struct RareFacts {
    std::uint32_t remarksFrom = 0; // FactTables::remarkRoots[remarksFrom, + remarks)
    int remarks = 0;               // counted parenthetical words
    int unintelligibleMarks = 0;   // main-body "X", "XX", "XXX"
    int omittedWords = 0, omittedMorphemes = 0, omittedClitics = 0;

    bool any() const {
        return remarks + unintelligibleMarks + omittedWords + omittedMorphemes + omittedClitics > 0;
    }
};

// The counted words, roots and endings of every utterance, one run each,
// numbered in the computation's tables.
struct FactTables {
    RootIds roots;
    Numbering forms;
    Numbering endings; // bound morphemes in lower case
    std::vector<CountedWord> words;
    std::vector<int> remarkRoots;        // root numbers of counted parenthetical words
    std::string key, form;               // scratch
    std::vector<std::uint8_t> codeLists; // scratch: the lists each code of an utterance matches
    TextIndex spellings; // each spelling met (tagged when linked): its number in spellingList
    std::vector<SpellingFacts> spellingList;
    std::vector<int> spellingEndings;
    std::vector<CodeFacts> codeFacts{CodeFacts{}}; // [0]: an utterance without codes
    std::vector<RareFacts> rareFacts{RareFacts{}}; // [0]: an utterance with none of them

    const SpellingFacts& spelling(const CountedWord& w) const { return spellingList[w.spelling]; }
    std::span<const int> endingsOf(const SpellingFacts& s) const {
        return {spellingEndings.data() + s.endingsFrom, static_cast<size_t>(s.boundMorphemes)};
    }
};

// The facts of one utterance, gathered by the measures' walk (which keeps of them
// only what later counts read: KeptFacts).
struct UtteranceFacts {
    std::uint32_t wordsFrom = 0; // counted words: FactTables::words[wordsFrom, + counted)
    std::uint32_t codes = 0;     // FactTables::codeFacts[codes]
    std::uint32_t rare = 0;      // FactTables::rareFacts[rare]
    int wordCount = 0;           // counted words and counted parenthetical words
    int morphemes = 0;
    int mazeWords = 0;
    int boundMorphemes = 0, clitics = 0;
    bool overlap = false;

    const RareFacts& rareFacts(const FactTables& t) const { return t.rareFacts[rare]; }
    bool hasOmission(const FactTables& t) const {
        const RareFacts& r = rareFacts(t);
        return r.omittedWords + r.omittedMorphemes + r.omittedClitics > 0;
    }
    // Counted main-body words: the counted words less the remark words.
    size_t counted(const FactTables& t) const {
        return static_cast<size_t>(wordCount - rareFacts(t).remarks);
    }
    std::span<const CountedWord> words(const FactTables& t) const {
        return {t.words.data() + wordsFrom, counted(t)};
    }
    std::span<const int> remarkRoots(const FactTables& t) const {
        const RareFacts& r = rareFacts(t);
        return {t.remarkRoots.data() + r.remarksFrom, static_cast<size_t>(r.remarks)};
    }
    const CodeFacts& codeFacts(const FactTables& t) const { return t.codeFacts[codes]; }
};

static_assert(sizeof(UtteranceFacts) <= 36, "a record is made for every utterance");

// Whether word `index` of `u` is a counted main-body word under the word base.
bool isCountedWord(const Utterance& u, int index, const WordBase& base, const CodeMatchers& codes);

// Gathers the facts of `u`, adding its words, roots and endings to `tables`.
// Without `withCodes` the facts of its codes are left out (UtteranceFacts::codes
// is 0), for an utterance of which only the words are read.
UtteranceFacts gatherFacts(const Utterance& u, const WordBase& base, const CodeMatchers& codes,
                           bool withCodes, FactTables& tables);

} // namespace tavi
