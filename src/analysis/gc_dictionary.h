// The grammatical-category dictionary ("GC/GCDictionaryFile.txt"): a fixed
// open-addressing table of whole lines keyed by the text before the first
// blank. The lines are kept one after another in one text; a slot holds
// where its line lies. A line's value lists the word's categories as codes separated by
// blanks, most likely first: "run [GC:VERB] [GC:NOUN]".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/utterance.h"

namespace tavi {

class Prompter;

inline constexpr int MAX_DICTIONARY_WORDS = 185551;

// h = (h * 64 + c) mod capacity for each UTF-16 code unit c, in signed 32-bit
// arithmetic; an empty key hashes to 0.
std::int32_t dictionaryHash(std::u16string_view key, std::int32_t capacity = MAX_DICTIONARY_WORDS);
// The same of the UTF-16 form of a UTF-8 key, without building that form.
std::int32_t dictionaryHash(std::string_view key, std::int32_t capacity = MAX_DICTIONARY_WORDS);

class GcDictionary {
public:
    explicit GcDictionary(std::int32_t capacity = MAX_DICTIONARY_WORDS);

    // Stores one line (duplicates too). False when the table is full.
    bool insert(std::string_view line);
    // Stores every line of the text; when the table fills, shows
    // "Increase MAX_DICTIONARY_WORDS" once and keeps what was stored.
    void load(std::string_view text, Prompter& prompter);
    // Reads the file; a missing file shows "Unable to open Grammatical
    // Category dictionary file (" + path + ")" and returns false.
    bool loadFile(const std::string& path, Prompter& prompter);

    // The trimmed value of the first line whose key equals `word` exactly.
    std::optional<std::string_view> lookup(std::string_view word) const;
    std::int32_t capacity() const { return capacity_; }
    std::int32_t size() const { return size_; }

private:
    static constexpr std::uint32_t kUnused = ~std::uint32_t{0};
    struct Slot {
        std::uint32_t from = kUnused; // the line: lines_[from, from + length)
        std::uint32_t length = 0;
        std::uint32_t keyLength = 0;
        bool used() const { return from != kUnused; }
    };
    // The first free slot from the key's home, or -1 when the table is full.
    std::int32_t freeSlot(std::string_view key) const;
    void place(std::int32_t slot, size_t from, std::string_view line);
    std::string_view lineOf(const Slot& s) const { return {lines_.data() + s.from, s.length}; }
    std::uint32_t hashOf(std::string_view key) const;
    void loadText(std::string text, Prompter& prompter);

    std::int32_t capacity_;
    std::int32_t size_ = 0;
    std::vector<Slot> slots_;
    std::string lines_; // every line stored, one after another
};

// Whether a token is skipped by the category count: its first character is a
// notation mark, a separator or white space.
bool isSkippedCategoryToken(std::string_view token);

// The categories of a word (indices into kGrammaticalCategoryTable), most
// likely first: the dictionary entry of its root (as written, then in lower
// case, then capitalised), else a guess from its form: a verb ending ("/ed", "/ing", "/3s",
// "/en") or "-ing"/"-ed" makes a verb, "-ly" an adverb, anything else a noun.
std::vector<int> wordCategories(const Word& word, const GcDictionary* dictionary);
// The two halves of wordCategories: the dictionary entry of a root (empty
// when there is none) and the guess from the word's form.
std::vector<int> dictionaryCategories(std::string_view root, const GcDictionary& dictionary);
std::vector<int> guessCategories(const Word& word);
// The guess from a root in lower case and the bound-morpheme groups
// (bit g for group g of kBoundMorphemeGroups) of the word's endings.
std::vector<int> guessCategories(std::string_view lowerRoot, unsigned endingGroups);

// The group of contracted verb forms ("/'S", "/'LL" ...) in kBoundMorphemeGroups.
inline constexpr int kContractedVerbGroup = 7;

} // namespace tavi
