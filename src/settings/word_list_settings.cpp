// Reading and writing the user's standard word lists (TAVI_SWL.ini).
#include "settings/word_list_settings.h"

#include "analysis/word_lists.h"
#include "base/text.h"
#include "settings/keyword_file.h"
#include "settings/section_save.h"

namespace tavi {

namespace {

// The set and kind of a list key, or -1 when the text is not one.
std::pair<int, int> parseListKey(std::string_view key) {
    for (int set = 0; set < static_cast<int>(kWordListSetPrefixes.size()); ++set)
        for (int kind = 0; kind < static_cast<int>(kStandardWordLists.size()); ++kind)
            if (keyIs(key, wordListKey(set, kind)))
                return {set, kind};
    return {-1, -1};
}

} // namespace

std::optional<std::pair<int, int>> wordListKeyParts(std::string_view key) {
    const auto [set, kind] = parseListKey(key);
    if (set < 0)
        return std::nullopt;
    return std::pair{set, kind};
}

std::string wordListKey(int set, int kind) {
    return std::string(kWordListSetPrefixes.at(static_cast<size_t>(set))) +
           std::string(kStandardWordLists.at(static_cast<size_t>(kind)).suffix);
}

WordListSettings parseWordListSettings(const std::vector<std::string>& lines) {
    WordListSettings lists;
    for (const std::string& text : lines) {
        const KeywordLine line = parseKeywordLine(text);
        if (line.keyword.empty())
            continue;
        if (keyIs(line.keyword, "TITLE")) {
            const auto [set, kind] = parseListKey(line.subKey);
            if (set >= 0 && !line.rest.empty())
                lists.titles[wordListKey(set, kind)] = line.rest;
        } else if (parseListKey(line.keyword).first >= 0) {
            if (!line.value.empty())
                lists.entries.push_back(line.text);
        } else {
            lists.otherLines.push_back(line.text);
        }
    }
    return lists;
}

std::vector<std::string> wordListSettingsLines(const WordListSettings& lists) {
    std::vector<std::string> lines = lists.otherLines;
    for (int set = 0; set < static_cast<int>(kWordListSetPrefixes.size()); ++set)
        for (int kind = 0; kind < static_cast<int>(kStandardWordLists.size()); ++kind) {
            const std::string key = wordListKey(set, kind);
            const auto title = lists.titles.find(key);
            if (title != lists.titles.end() && !trim(title->second).empty())
                lines.push_back("TITLE " + key + " " + std::string(trim(title->second)));
        }
    lines.insert(lines.end(), lists.entries.begin(), lists.entries.end());
    return lines;
}

std::string wordListTitle(const WordListSettings& lists, int set, int kind) {
    const auto title = lists.titles.find(wordListKey(set, kind));
    return title != lists.titles.end()
               ? title->second
               : std::string(kStandardWordLists.at(static_cast<size_t>(kind)).label);
}

namespace {

bool holdsEntries(const std::vector<std::string>& swlLines) {
    for (const std::string& text : swlLines)
        if (parseListKey(parseKeywordLine(text).keyword).first >= 0)
            return true;
    return false;
}

} // namespace

const std::vector<std::string>& wordListLinesInForce(const Settings& settings) {
    return holdsEntries(settings.swlSettingsLines) ? settings.swlSettingsLines
                                                   : settings.standardWordListLines;
}

bool wordListsAvailable(const Settings& settings) {
    return settings.standardWordListFound || holdsEntries(settings.swlSettingsLines);
}

SaveOutcome saveWordListSettings(const WordListSettings& lists, Settings& settings,
                                 Prompter& prompter) {
    if (!settings.canSaveDefaults()) {
        prompter.inform("Default settings cannot be saved on this computer.");
        return SaveOutcome::NotAllowed;
    }
    if (prompter.ask(kSaveListQuestion) != Answer::Yes)
        return SaveOutcome::NotAnswered;
    const std::string path = settings.swlSettingsFile();
    const std::vector<std::string> lines = wordListSettingsLines(lists);
    switch (writeKeywordFile(path, lines)) {
    case WriteStatus::Ok:
        settings.swlSettingsLines = lines;
        prompter.inform(std::string(kListSavedIn) + path);
        return SaveOutcome::Saved;
    case WriteStatus::CannotOpen:
        prompter.inform("Cannot write to " + path + " (not saved)");
        return SaveOutcome::CannotWrite;
    case WriteStatus::WriteFailed:
        break;
    }
    prompter.inform("Problem writing to " + path + " (not saved)");
    return SaveOutcome::WriteFailed;
}

} // namespace tavi
