// The user's standard word lists, kept in TAVI_SWL.ini in the user-level setup
// folder beside TAVI.ini. The file is a keyword file of three kinds of line:
//
//   TITLE P_EXTRA1 Feelings    the title of one list (any of the 80 list keys)
//   P_QUES what                one entry of a list, as in TaviSWL.txt
//   SWLLANG 1                  any other line is kept as it stands
//
// When the file holds list entries they are the lists in force and replace
// those of the program's TaviSWL.txt; without entries the program's lists stand.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/prompter.h"
#include "settings/save_outcome.h"
#include "settings/settings.h"

namespace tavi {

struct WordListSettings {
    // Entry lines "KEY word" in file order; empty: the program's lists stand.
    std::vector<std::string> entries;
    // List titles by list key (upper case, "P_EXTRA1").
    std::map<std::string, std::string, std::less<>> titles;
    // Lines this module does not own, kept in their order.
    std::vector<std::string> otherLines;

    bool operator==(const WordListSettings&) const = default;
};

// The list key of a language set (0..3) and a list kind (0..19): "A1_NEG".
std::string wordListKey(int set, int kind);

// The language set and list kind of a list key ("a1_neg" gives 1 and 1).
std::optional<std::pair<int, int>> wordListKeyParts(std::string_view key);

// Reads the trimmed lines of TAVI_SWL.ini (Settings::swlSettingsLines).
WordListSettings parseWordListSettings(const std::vector<std::string>& lines);
// The file's lines: the kept lines, the titles in list-key order, the entries.
std::vector<std::string> wordListSettingsLines(const WordListSettings& lists);

// The title a list is shown with: the user's, else the built-in name
// ("Extra List 1").
std::string wordListTitle(const WordListSettings& lists, int set, int kind);

// The lines of the word lists in force: the user's when TAVI_SWL.ini holds
// entries, otherwise those of TaviSWL.txt.
const std::vector<std::string>& wordListLinesInForce(const Settings& settings);
bool wordListsAvailable(const Settings& settings);

// Saves the user's lists as the program default: "Default settings cannot be
// saved on this computer." when saving is not allowed, then the question
// "Would you like to save this list and settings as the program default?";
// on Yes the whole file is replaced (through a temporary file) and the person
// is told "List and settings saved in " + path, or "Cannot write to " / "Problem
// writing to " + path + " (not saved)". When saved, the record's
// swlSettingsLines hold the new lines.
SaveOutcome saveWordListSettings(const WordListSettings& lists, Settings& settings,
                                 Prompter& prompter);

} // namespace tavi
