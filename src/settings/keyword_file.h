// Keyword files (TAVI.ini, TAVI_SYS.ini, TAVI_SWL.ini, TAVI_Labels.ini, batch
// selections) share one line form: a keyword, a blank, a value; the value may
// itself be a sub-key, a blank and a rest. This is the one reader and the one
// writer for all of them, so every file is decoded, trimmed and split alike.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_io.h"

namespace tavi {

// One non-empty line of a keyword file, split by the line grammar.
struct KeywordLine {
    std::string text;    // the whole line, trimmed on both sides
    std::string keyword; // up to the first blank (the whole line when it has none)
    std::string value;   // after the keyword, trimmed on the left; may be empty
    std::string subKey;  // the value up to its first blank (the whole value when it has none)
    std::string rest;    // the value after that blank, trimmed on the left; may be empty

    bool operator==(const KeywordLine&) const = default;
};

// Splits at the first blank: the text before it and the text after it, trimmed
// on the left. Without a blank the whole text is the head and the tail is empty.
std::pair<std::string_view, std::string_view> splitAtFirstBlank(std::string_view text);

// Splits one line by the grammar; the line is trimmed first.
KeywordLine parseKeywordLine(std::string_view line);

// The lines of a keyword file's bytes: a UTF-8 byte order mark is removed, text
// without one that is not valid UTF-8 is read as Windows-1252, lines end at LF,
// CR LF or CR, each line is trimmed and empty lines are dropped.
std::vector<std::string> keywordTextLines(std::string_view bytes);
std::vector<KeywordLine> parseKeywordText(std::string_view bytes);

// Reads and parses a keyword file; nothing when it cannot be read (a missing
// file is no error: the caller keeps its defaults).
std::optional<std::vector<KeywordLine>> readKeywordFile(const std::filesystem::path& path);

// Keywords, sub-keys, "YES", "NO" and "REMOVEALL" are compared without regard to case.
bool keyIs(std::string_view text, std::string_view key);

// "YES" is true, "NO" false, anything else nothing.
std::optional<bool> yesNoValue(std::string_view value);

// A paired flag sub-key ("SUBTRACT_YES", "SUBTRACT_NO"): the name before the
// suffix and the flag; nothing when the text ends in neither suffix.
struct FlagSubKey {
    std::string name;
    bool value = false;
};
std::optional<FlagSubKey> splitFlagSubKey(std::string_view subKey);

// A whole number: an optional sign and decimal digits, nothing else. Nothing
// when it does not parse or does not fit in an int.
std::optional<int> parseWholeNumber(std::string_view text);

// A list keyword's value: "REMOVEALL" empties the list, any other value is appended.
void applyListValue(std::vector<std::string>& list, std::string_view value);

// A numbered-list keyword's value: "REMOVEALL" empties the list; "n text" sets
// entry n when 0 <= n <= maxIndex. False when the value was refused.
bool applyNumberedValue(std::map<int, std::string>& list, std::string_view value, int maxIndex);

// The bytes of a keyword file as the program writes it: the UTF-8 byte order
// mark, then every line followed by a newline (LF).
std::string keywordFileBytes(const std::vector<std::string>& lines);

// Writes a keyword file through a temporary file and a rename. When the file
// cannot be created its folder is created and the write is tried once more.
WriteStatus writeKeywordFile(const std::filesystem::path& path,
                             const std::vector<std::string>& lines);

} // namespace tavi
