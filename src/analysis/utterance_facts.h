// What the measures need to know about one utterance, gathered in one pass
// over its words and codes under the word base and the code lists.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "analysis/code_lists.h"
#include "analysis/word_base.h"
#include "transcript/utterance.h"

namespace tavi {

// The code lists of one analysis, parsed once.
struct CodeMatchers {
    CodeMatcher errors, fluency, nonmainstream, codeSwitch, excludeSet;
    CodeMatcher wordBase; // the word base's exclude or include list
};

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

struct UtteranceFacts {
    std::vector<const Word*> words;   // counted main-body words, in order
    std::vector<WordTraits> traits;   // theirs, in the same order
    std::vector<std::string> endings; // their bound morphemes, in lower case
    std::vector<std::string> forms;   // their surface forms (word_forms.h)
    std::vector<std::string> roots;   // their roots, then those of counted parenthetical words
    std::vector<int> rootIds;         // the roots' numbers (RootIds)
    int wordCount = 0;                // roots.size()
    int morphemes = 0;
    int mazeWords = 0;
    int unintelligibleMarks = 0; // main-body "X", "XX", "XXX"
    int omittedWords = 0, omittedMorphemes = 0, omittedClitics = 0;
    int boundMorphemes = 0, clitics = 0;
    bool overlap = false;
    bool wordCode = false, utteranceCode = false, excludeCode = false;
    CodeTally errors, fluency, nonmainstream, codeSwitch;
    int errorWords = 0; // counted words carrying an error code

    bool hasOmission() const { return omittedWords + omittedMorphemes + omittedClitics > 0; }
};

// Numbers the different roots of one transcript from 0, so that sets of roots
// can be kept as flags and counts indexed by number.
class RootIds {
public:
    int idOf(const std::string& root) {
        if (auto it = ids_.find(root); it != ids_.end())
            return it->second; // no node built for a root already numbered
        return ids_.emplace(root, static_cast<int>(ids_.size())).first->second;
    }
    int size() const { return static_cast<int>(ids_.size()); }

private:
    std::unordered_map<std::string, int> ids_;
};

UtteranceFacts gatherFacts(const Utterance& u, const WordBase& base, const CodeMatchers& codes,
                           RootIds& ids);

} // namespace tavi
