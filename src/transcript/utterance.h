// A segmented utterance: what segmentation hands to the analysis. Every count
// of the analysis engine is taken from these records, so the record holds the
// notation's pieces already separated and flagged.
#pragma once

#include <string>
#include <vector>

namespace tavi {

// Terminator kinds, numbered as the notation numbers them.
enum class Terminator : int {
    Statement = 0,   // "."
    Exclamation = 1, // "!"
    Question = 2,    // "?" or U+061F
    Prompt = 3,      // "~" (intonation prompt)
    Abandoned = 4,   // ">"
    Interrupted = 5, // "^"
};

enum class Intelligibility { Intelligible, Partly, Unintelligible };

struct Word {
    std::string text; // the word as written, marks included; linked pieces joined
    std::string root; // text before the first "/" or "+", without leading "*" or "%"
    std::vector<std::string> boundMorphemes;        // present endings, without "/": "s", "ed"
    std::vector<std::string> omittedBoundMorphemes; // endings written "/*s", without "/*"
    std::vector<std::string> clitics;               // present clitics, without "+"
    std::vector<std::string> omittedClitics;        // clitics written "+*", without "+*"
    std::vector<std::string> prefixes;              // bound prefixes written with "\"
    std::string rootIdentification;                 // the root after "|", empty when none
    std::vector<int> codes; // indices into Utterance::codes of the codes placed on this word
    int maze = -1;          // index into Utterance::mazes when the word is in a maze

    bool omitted = false;              // "*the"
    bool omittedBoundMorpheme = false; // has "/*..."
    bool omittedClitic = false;        // has "+*..."
    bool idiosyncratic = false;        // "%form"
    bool inMaze = false;               // inside "( )"
    bool inParenthetical = false;      // inside "(( ))" (such words are not in `words`)
    bool inOverlap = false;            // inside "< >"
    bool linked = false;               // pieces joined with "_"
    bool unintelligible = false;       // "X", "XX" or "XXX" (any case), maybe with endings
    bool incomplete = false;           // a part word ending in "*", e.g. "ba*"
    int position = 0;                  // code-point offset of the word in its line

    // A word that counts: main body, not omitted, not an unintelligible mark.
    bool isMainBodyWord() const { return !inMaze && !omitted && !unintelligible; }
};

struct Code {
    std::string text;       // between the brackets, e.g. "EW:went"
    int word = -1;          // index into Utterance::words of the word it follows; -1: the utterance
    int precedingWord = -1; // the word written before it, also for a code at the end; -1: none
};

struct Maze {
    std::vector<int> words; // indices into Utterance::words, in order
};

struct Pause {
    bool timed = false;
    int seconds = 0; // for a timed pause
};

struct Utterance {
    int speakerGroup = 0;   // 0 and 1: the main speakers; 2: every other speaker
    char32_t speakerId = 0; // the identifier letter as written
    int line = 0;           // 1-based transcript line
    int index = 0;          // 0-based position among all utterances of the transcript
    char32_t terminatorChar = U'.';
    Terminator terminator = Terminator::Statement;

    std::vector<Word> words; // every word in order: main body and maze words
    std::vector<Code> codes; // every code in order
    std::vector<Maze> mazes;
    std::vector<std::string> parentheticals; // inner text of each "(( ))"
    std::vector<Pause> pauses;               // within-utterance pauses
    bool hasComment = false;
    bool hasQuotation = false;
    bool hasOverlap = false;
    bool hasTerminator = true;            // false when the line has no end-of-utterance punctuation
    std::vector<Word> parentheticalWords; // the words of the "(( ))" remarks, inParenthetical

    Intelligibility intelligibility = Intelligibility::Intelligible;
    bool nonverbal = false; // no main-body words but a comment, e.g. "C {nods}."
};

} // namespace tavi
