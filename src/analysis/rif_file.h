// Root identification files: a table of word forms with the roots they stand
// for and the texts that may replace them, kept per language. The file is
// UTF-8 text, one word a line, in the same shape as the text import:
//     word:root1,root2:replacement1,replacement2
// Blank lines and lines beginning with "#" are comments. A root is written
// after the form as "form|root"; a replacement is written in place of the
// word as it stands.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/rif_import.h"
#include "base/file_io.h"

namespace tavi {

// A file's words and the lines that did not fit the form (1-based line
// numbers). Such lines are skipped; the rest of the file is kept.
struct RifFileContents {
    RifWords words;
    std::vector<int> badLines;
};

RifFileContents parseRifFile(std::string_view text);
// The file's text: a comment line naming the form, then one line per word in
// the order of the table, each ended with LF.
std::string rifFileText(const RifWords& words);

// Reads a file; empty when it cannot be opened.
std::optional<RifFileContents> readRifFile(const std::filesystem::path& path);
// Writes through a temporary file and a rename.
WriteStatus writeRifFile(const std::filesystem::path& path, const RifWords& words);

// The entry of a form: as written, else without regard to case.
const RifEntry* findRifWord(const RifWords& words, std::string_view form);

// One thing a form may become.
struct RootChoice {
    std::string text;         // what is written in place of the form
    std::string label;        // what the list shows
    bool replacement = false; // true: a replacement; false: a root after "|"
    bool operator==(const RootChoice&) const = default;
};

// The choices for a form as written (its case kept): each root as
// "form|root", then each replacement as it stands. Empty when the form is not
// in the table.
std::vector<RootChoice> rootChoices(const RifWords& words, std::string_view form);

} // namespace tavi
