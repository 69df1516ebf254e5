// Importing words into a root identification file from a text file of lines
// "word:defn1,defn2,...:replace1,replace2,...". The entries are kept by word;
// an imported word replaces the entry of the same word.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

class Prompter;
class Progress;

inline constexpr int kRifWordMax = 39;       // characters of a word
inline constexpr int kRifDefinitionMax = 79; // characters of a definition or a replacement

struct RifEntry {
    std::string word;
    std::vector<std::string> definitions;
    std::vector<std::string> replacements;
    bool operator==(const RifEntry&) const = default;
};

// The words of a root identification file, by word.
using RifWords = std::map<std::string, RifEntry>;

// Reads the import text into `words`. Over-long words, definitions and
// replacements are cut and reported; a line that does not fit the form is
// reported with "Incorrect file format: use
// 'word:defn1,defn2,defnN:replace1,replace2,replaceN'" and ends the import.
// Ends with "%d words added or replaced" or "No words added or replaced".
// Returns the number of words added or replaced.
int importRifWords(std::string_view text, RifWords& words, Prompter& prompter, Progress& progress);

} // namespace tavi
