// The standard word lists (question words, negatives, conjunctions, modals,
// pronoun classes, yes/no words, filled pauses and five extra lists) in four
// language sets, read from "TaviSWL.txt".
//
// File: one entry per line, "KEY word": KEY one of the 80 keys ("P_QUES" ...
// "O_FPAUSE"); lines with another key are ignored. A word ending in "*"
// matches every word that begins with the text before it. "KEY $ phrase"
// lists a phrase of several words ("P_SAUX $ have to") that is counted when
// the words follow one another; each of its words may end in "*".
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavi {

class Prompter;

struct WordListKind {
    std::string_view suffix; // "QUES"
    std::string_view label;  // "Question Words"
    std::string_view totalColumn;
    std::string_view typesColumn;
};

inline constexpr std::array<WordListKind, 20> kStandardWordLists = {{
    {"QUES", "Question Words", "QuesTot", "QuesTyp"},
    {"NEG", "Negatives", "NegTot", "NegTyp"},
    {"CONJ", "Conjunctions", "ConjTot", "ConjTyp"},
    {"MAUX", "Core Modals", "CoreModalTot", "CoreModalTyp"},
    {"SAUX", "Marginal Modals", "MarModalTot", "MarModalTyp"},
    {"PERS", "Personal Pronouns", "PersPrnTot", "PersPrnTyp"},
    {"POSS", "Possessive Pronouns & Determiners", "PossPrnTot", "PossPrnTyp"},
    {"REFL", "Reflexive Pronouns", "ReflPrnTot", "ReflPrnTyp"},
    {"DEMO", "Demonstrative Pronouns & Determiners", "DemoPrnTot", "DemPrnTyp"},
    {"REL", "Relative Pronouns", "RelPrnTot", "RelPrnTyp"},
    {"UNIV", "Universal Pronouns & Determiners", "UnivPrnTot", "UnivPrnTyp"},
    {"PART", "Partitive Pronouns & Determiners", "PartPrnTot", "PartPrnTyp"},
    {"QUAN", "Quantifying Pronouns & Determiners", "QuanPrnTot", "QuanPrnTyp"},
    {"EXTRA1", "Extra List 1", "Extra1Tot", "Extra1Typ"},
    {"EXTRA2", "Extra List 2", "Extra2Tot", "Extra2Typ"},
    {"EXTRA3", "Extra List 3", "Extra3Tot", "Extra3Typ"},
    {"EXTRA4", "Extra List 4", "Extra4Tot", "Extra4Typ"},
    {"EXTRA5", "Extra List 5", "Extra5Tot", "Extra5Typ"},
    {"YESNO", "Yes and No Words", "YNTot", "YNTyp"},
    {"FPAUSE", "Filled Pause Words", "FPTot", "FPTyp"},
}};
inline constexpr int kYesNoList = 18;
inline constexpr int kFilledPauseList = 19;

// Language sets: key prefixes "P_", "A1_", "A2_", "O_"; names "PRIMARY", "ALT1", "ALT2", "OTHER".
inline constexpr std::array<std::string_view, 4> kWordListSetPrefixes = {"P_", "A1_", "A2_", "O_"};
inline constexpr std::array<std::string_view, 4> kWordListSetNames = {"PRIMARY", "ALT1", "ALT2",
                                                                      "OTHER"};

// One entry: one word or pattern, or a phrase of them.
struct WordListEntry {
    std::vector<std::string> words; // lower case; a trailing "*" matches any ending
};

class StandardWordLists {
public:
    // Reads the file's text; unknown keys and empty lines are skipped.
    static StandardWordLists parse(std::string_view text);
    // Reads the file; a missing file reports "Unable to open standard word
    // list file (" + path + ")" and gives empty lists.
    static StandardWordLists load(const std::string& path, Prompter& prompter, bool* ok = nullptr);

    const std::vector<WordListEntry>& entries(int set, int kind) const { return lists_[set][kind]; }
    bool empty(int set, int kind) const { return lists_[set][kind].empty(); }
    // Whether a single word (lower case, marks removed) is on a list.
    bool contains(int set, int kind, std::string_view word) const;
    // The kinds whose one-word entries match the word, each once, ascending.
    std::vector<int> kindsOf(int set, std::string_view word) const;
    // The same as bits: bit k set when kind k matches.
    std::uint32_t kindMask(int set, std::string_view word) const;
    // The phrase entries of a set, with their kinds.
    const std::vector<std::pair<int, WordListEntry>>& phrases(int set) const {
        return index_[set].phrases;
    }

private:
    struct Index {
        std::vector<std::pair<std::string, int>> exact; // sorted by word
        std::vector<std::pair<std::string, int>> prefixes;
        std::vector<std::pair<int, WordListEntry>> phrases;
        // The same one-word entries by kind, so that one list is asked alone.
        std::array<std::vector<std::string>, 20> exactOf; // sorted
        std::array<std::vector<std::string>, 20> prefixesOf;
    };
    void add(int set, int kind, WordListEntry entry);
    void sortIndex();

    std::array<std::array<std::vector<WordListEntry>, 20>, 4> lists_;
    std::array<Index, 4> index_;
};

// Whether `word` matches `pattern` (lower case; a trailing "*" matches any ending).
bool wordMatchesPattern(std::string_view word, std::string_view pattern);

// A test on one word (lower case, marks removed): either one list of a set of
// the standard word lists or a plain function. It holds no memory of its own
// and is called without an indirection through std::function. A default
// constructed test is empty (false as a bool).
class WordTest {
public:
    using Function = bool (*)(std::string_view);

    WordTest() = default;
    WordTest(Function f) : function_(f) {} // implicit: a plain function is a test
    WordTest(const StandardWordLists& lists, int set, int kind)
        : lists_(&lists), set_(set), kind_(kind) {}

    explicit operator bool() const { return lists_ != nullptr || function_ != nullptr; }
    bool operator()(std::string_view word) const {
        return lists_ ? lists_->contains(set_, kind_, word) : function_(word);
    }

private:
    const StandardWordLists* lists_ = nullptr;
    int set_ = 0;
    int kind_ = 0;
    Function function_ = nullptr;
};

} // namespace tavi
