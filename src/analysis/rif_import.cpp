// The text import of root identification words.
#include "analysis/rif_import.h"

#include "base/format.h"
#include "base/progress.h"
#include "base/prompter.h"
#include "base/text.h"

namespace tavi {

namespace {

constexpr const char* kBadFormat =
    "Incorrect file format: use 'word:defn1,defn2,defnN:replace1,replace2,replaceN'";

// `text` cut to `max` characters (UTF-16 code units); true when it was longer.
bool cutTo(std::string& text, size_t max) {
    std::u16string wide = toUtf16(text);
    if (wide.size() <= max)
        return false;
    wide.resize(max);
    text = fromUtf16(wide);
    return true;
}

// The items of a comma-separated field, trimmed, each cut to the limit.
std::vector<std::string> items(std::string_view field, const char* message, const std::string& word,
                               Prompter& prompter) {
    std::vector<std::string> out;
    for (std::string_view part : splitAt(field, ',')) {
        std::string item(trim(part));
        if (item.empty())
            continue;
        if (cutTo(item, kRifDefinitionMax))
            prompter.inform(format(message, word.c_str(), kRifDefinitionMax));
        out.push_back(std::move(item));
    }
    return out;
}

} // namespace

int importRifWords(std::string_view text, RifWords& words, Prompter& prompter, Progress& progress) {
    std::vector<std::string_view> lines = splitLines(text);
    progress.start(static_cast<int>(lines.size()), "Working... ");
    int added = 0;
    for (std::string_view raw : lines) {
        progress.step();
        std::string_view line = trim(raw);
        if (line.empty())
            continue;
        std::vector<std::string_view> fields = splitAt(line, ':');
        std::string word(fields.empty() ? std::string_view() : trim(fields[0]));
        if (fields.size() != 3 || word.empty()) {
            prompter.inform(kBadFormat);
            break;
        }
        if (cutTo(word, kRifWordMax))
            prompter.inform(
                format("Word '%s' truncated to %d characters", word.c_str(), kRifWordMax));
        RifEntry entry{
            word,
            items(fields[1], "Definition for '%s' truncated to %d characters", word, prompter),
            items(fields[2], "Replacement for '%s' truncated to %d characters", word, prompter)};
        words[word] = std::move(entry);
        ++added;
    }
    progress.finish();
    prompter.inform(added > 0 ? format("%d words added or replaced", added)
                              : "No words added or replaced");
    return added;
}

} // namespace tavi
