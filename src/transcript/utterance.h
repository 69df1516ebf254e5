// A segmented utterance: what segmentation hands to the analysis. Every count
// of the analysis engine is taken from these records, so the record holds the
// notation's pieces already separated and flagged.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

#include "transcript/char_class.h"

namespace tavi {

// Terminator kinds, numbered as the notation numbers them.
enum class Terminator : std::int8_t {
    Statement = 0,   // "."
    Exclamation = 1, // "!"
    Question = 2,    // "?" or U+061F
    Prompt = 3,      // "~" (intonation prompt)
    Abandoned = 4,   // ">"
    Interrupted = 5, // "^"
};

enum class Intelligibility : std::int8_t { Intelligible, Partly, Unintelligible };

// The pieces of a word other than its root, for the words that have any
// (most words are plain): bound prefixes, bound morphemes, clitics and the
// root identification, in one run of views kept by the transcript's store.
struct WordParts {
    const std::string_view* pieces = nullptr; // prefixes, bound morphemes, omitted bound
                                              // morphemes, clitics, omitted clitics, in turn
    std::uint32_t rootStart = 0;              // the root within the word's text
    std::uint32_t rootSize = 0;
    std::array<std::uint16_t, 5> counts{}; // of each kind of piece, in the order above
    bool omittedRoot = false;              // "*" alone: the root reads "*@"
    bool hasRootIdentification = false;    // the last piece is the root after "|"

    std::span<const std::string_view> kind(int k) const {
        size_t from = 0;
        for (int i = 0; i < k; ++i)
            from += counts[i];
        return {pieces + from, counts[k]};
    }
};

// A word: a view of its text (kept alive by the transcript's store or text)
// and its flags as bits. A word that is not plain has a parts record, which
// the store places right before the word's text.
class Word {
    const char* text_ = "";
    std::uint32_t size_ = 0;

public:
    Word()
        : omitted(false), omittedBoundMorpheme(false), omittedClitic(false), idiosyncratic(false),
          inMaze(false), inParenthetical(false), inOverlap(false), linked(false),
          unintelligible(false), incomplete(false), parted_(false) {}

    // The word as written, marks included; linked pieces joined.
    std::string_view text() const { return {text_, size_}; }
    // Text before the first "/" or "+", without leading "*" or "%".
    std::string_view root() const {
        const WordParts* p = parts();
        if (!p)
            return text();
        if (p->omittedRoot)
            return "*@";
        return text().substr(p->rootStart, p->rootSize);
    }
    // Present endings, without "/": "s", "ed".
    std::span<const std::string_view> boundMorphemes() const { return kind(1); }
    // Endings written "/*s", without "/*".
    std::span<const std::string_view> omittedBoundMorphemes() const { return kind(2); }
    // Present clitics, without "+".
    std::span<const std::string_view> clitics() const { return kind(3); }
    // Clitics written "+*", without "+*".
    std::span<const std::string_view> omittedClitics() const { return kind(4); }
    // Bound prefixes written with "\\".
    std::span<const std::string_view> prefixes() const { return kind(0); }
    // The root after "|", empty when none.
    std::string_view rootIdentification() const {
        const WordParts* p = parts();
        if (!p || !p->hasRootIdentification)
            return {};
        size_t n = 0;
        for (std::uint16_t c : p->counts)
            n += c;
        return p->pieces[n];
    }
    // Null for a plain word.
    const WordParts* parts() const {
        return parted_ ? reinterpret_cast<const WordParts*>(text_ - sizeof(WordParts)) : nullptr;
    }

    // Sets the text of a plain word (its root is its text); it must outlive the word.
    void assignPlain(std::string_view text) {
        text_ = text.data();
        size_ = static_cast<std::uint32_t>(text.size());
        parted_ = false;
    }
    // Sets the text of a word whose parts record stands right before the
    // text (as TranscriptStore::keepWord places it).
    void assignParted(std::string_view text) {
        assignPlain(text);
        parted_ = true;
    }

    bool omitted : 1;              // "*the"
    bool omittedBoundMorpheme : 1; // has "/*..."
    bool omittedClitic : 1;        // has "+*..."
    bool idiosyncratic : 1;        // "%form"
    bool inMaze : 1;               // inside "( )"
    bool inParenthetical : 1;      // inside "(( ))" (such words are not in `words`)
    bool inOverlap : 1;            // inside "< >"
    bool linked : 1;               // pieces joined with "_"
    bool unintelligible : 1;       // "X", "XX" or "XXX" (any case), maybe with endings
    bool incomplete : 1;           // a part word ending in "*", e.g. "ba*"

    // A word that counts: main body, not omitted, not an unintelligible mark.
    bool isMainBodyWord() const { return !inMaze && !omitted && !unintelligible; }

private:
    bool parted_ : 1; // a parts record stands right before the text

    std::span<const std::string_view> kind(int k) const {
        const WordParts* p = parts();
        return p ? p->kind(k) : std::span<const std::string_view>();
    }
};

static_assert(sizeof(Word) == 16, "a word record is kept for every word of a transcript");
static_assert(sizeof(WordParts) % alignof(WordParts) == 0);

struct Code {
    std::string_view text;  // between the brackets, e.g. "EW:went"
    int word = -1;          // index into Utterance::words of the word it follows; -1: the utterance
    int precedingWord = -1; // the word written before it, also for a code at the end; -1: none
};

struct Maze {
    std::span<const int> words; // indices into Utterance::words, in order
};

struct Pause {
    bool timed = false;
    int seconds = 0; // for a timed pause
};

// What an utterance has besides its words, for the utterances that have any:
// the counts of each kind of piece, the pieces right after the record in the
// transcript's store (TranscriptStore::keepExtras), kind after kind.
struct alignas(8) UtteranceExtras {
    // codes, mazes, parentheticals, parenthetical words, pauses
    std::array<std::uint32_t, 5> counts{};

    std::span<const Code> codes() const { return {at<Code>(0), counts[0]}; }
    std::span<const Maze> mazes() const { return {at<Maze>(mazesAt()), counts[1]}; }
    std::span<const std::string_view> parentheticals() const {
        return {at<std::string_view>(parentheticalsAt()), counts[2]};
    }
    std::span<const Word> parentheticalWords() const {
        return {at<Word>(parentheticalWordsAt()), counts[3]};
    }
    std::span<const Pause> pauses() const {
        return {at<Pause>(parentheticalWordsAt() + counts[3] * sizeof(Word)), counts[4]};
    }
    // Bytes of the record and its pieces.
    size_t bytes() const {
        return sizeof(UtteranceExtras) + parentheticalWordsAt() + counts[3] * sizeof(Word) +
               counts[4] * sizeof(Pause);
    }

private:
    size_t mazesAt() const { return counts[0] * sizeof(Code); }
    size_t parentheticalsAt() const { return mazesAt() + counts[1] * sizeof(Maze); }
    size_t parentheticalWordsAt() const {
        return parentheticalsAt() + counts[2] * sizeof(std::string_view);
    }
    template <class T> const T* at(size_t offset) const {
        return reinterpret_cast<const T*>(reinterpret_cast<const std::byte*>(this) +
                                          sizeof(UtteranceExtras) + offset);
    }
};

// Every piece after an extras record starts aligned without padding.
static_assert(sizeof(UtteranceExtras) % 8 == 0 && sizeof(Code) % 8 == 0 && sizeof(Maze) % 8 == 0 &&
              sizeof(std::string_view) % 8 == 0 && sizeof(Word) % 8 == 0 && alignof(Pause) <= 8);

// An utterance record; its words and other pieces are kept by the transcript's
// store (see TranscriptStore), the record holds views of them.
struct Utterance {
    std::span<const Word> words; // every word in order: main body and maze words
    const UtteranceExtras* extras = nullptr;
    int line = 0;                 // 1-based transcript line
    int index = 0;                // 0-based position among all utterances of the transcript
    char32_t speakerId = 0;       // the identifier letter as written
    std::int8_t speakerGroup = 0; // 0 and 1: the main speakers; 2: every other speaker
    Terminator terminator = Terminator::Statement;
    Intelligibility intelligibility = Intelligibility::Intelligible;
    // One bit each: a record is kept for every utterance of a transcript.
    bool hasComment : 1 = false;
    bool hasQuotation : 1 = false;
    bool hasOverlap : 1 = false;
    bool hasTerminator : 1 = true;       // false when the line has no end-of-utterance punctuation
    bool nonverbal : 1 = false;          // no main-body words but a comment, e.g. "C {nods}."
    bool arabicQuestionMark : 1 = false; // the question is ended by U+061F, not "?"

    // Sets the terminator from its character (one that cls::isTerminator takes).
    void setTerminator(char32_t c) {
        terminator = static_cast<Terminator>(cls::terminatorKind(c));
        arabicQuestionMark = c == 0x061F;
    }
    // The terminator as written. Derived from its kind rather than kept: every
    // kind has one character but the question, which has two.
    char32_t terminatorChar() const {
        constexpr char32_t kChars[] = {U'.', U'!', U'?', U'~', U'>', U'^'};
        const auto kind = static_cast<size_t>(terminator);
        return arabicQuestionMark ? 0x061F : kind < std::size(kChars) ? kChars[kind] : U'.';
    }

    std::span<const Code> codes() const {
        return extras ? extras->codes() : std::span<const Code>();
    }
    std::span<const Maze> mazes() const {
        return extras ? extras->mazes() : std::span<const Maze>();
    }
    // Inner text of each "(( ))".
    std::span<const std::string_view> parentheticals() const {
        return extras ? extras->parentheticals() : std::span<const std::string_view>();
    }
    // Within-utterance pauses.
    std::span<const Pause> pauses() const {
        return extras ? extras->pauses() : std::span<const Pause>();
    }
    // The words of the "(( ))" remarks, inParenthetical.
    std::span<const Word> parentheticalWords() const {
        return extras ? extras->parentheticalWords() : std::span<const Word>();
    }
};

static_assert(sizeof(Utterance) <= 40, "a record is kept for every utterance of a transcript");

} // namespace tavi
