// Bound morphemes for imported words, written in TAVI's notation ("dog/s",
// "walk/ed", "he/'s"): from a CHAT morphology item when the file has a %mor
// tier (both the older "n|dog-PL", "v|go&PAST" and the newer
// "noun|dog-Plur", "verb|walk-Fin-Ind-Past" conventions), else from the
// English spelling, with the grammatical-category dictionary to keep words
// such as "bus" and "this" whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavi {

class GcDictionary;

// One part of a morphology item: "verb|walk-Fin-Ind-Past" or "v|go&PAST".
struct MorPart {
    std::string pos;                   // "verb", "n", "n:prop"
    std::string lemma;                 // "walk"
    std::vector<std::string> suffixes; // after "-": "Fin", "Past" / "PL", "PRESP"
    std::vector<std::string> fusions;  // after "&": "PAST", "3S"
};

// A whole item: the host and its clitics ("pron|he~aux|be-Fin...").
struct MorItem {
    MorPart host;
    std::vector<MorPart> clitics;
};

MorItem parseMorItem(std::string_view item);

// The items of a %mor tier that stand for words: punctuation items
// ("cm|,", "end|end", the terminator) are left out.
std::vector<std::string_view> morWordItems(std::string_view tier);

// The word in TAVI's notation: the bound morphemes the item names, when the
// written form shows them (irregular forms such as "went" or "children" stay
// whole); contractions split at the apostrophe ("did/n't", "can/'t",
// "he/'s", "dog/z").
std::string wordFromMor(std::string_view surface, const MorItem& item);

// The same from the spelling alone: contractions at the apostrophe, and the
// endings -s, -es, -ies, -ing, -ed when the stem is in the dictionary with an
// open-class category (a verb for -ing and -ed) and the word itself is not a
// closed-class word. Without a dictionary only contractions are split.
std::string wordFromSpelling(std::string_view surface, const GcDictionary* dictionary);

} // namespace tavi
