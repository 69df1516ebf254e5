// Reading, writing and looking up root identification files.
#include "analysis/rif_file.h"

#include "base/text.h"
#include "transcript/case_folding.h"

namespace tavi {

namespace {

std::vector<std::string> items(std::string_view field) {
    std::vector<std::string> out;
    for (std::string_view part : splitAt(field, ',')) {
        std::string_view item = trim(part);
        if (!item.empty())
            out.emplace_back(item);
    }
    return out;
}

std::string joinItems(const std::vector<std::string>& items) {
    std::string out;
    for (const std::string& item : items) {
        if (!out.empty())
            out += ',';
        out += item;
    }
    return out;
}

std::string folded(std::string_view text) {
    std::string out;
    size_t pos = 0;
    while (pos < text.size())
        appendUtf8(out, foldCase(nextCodePoint(text, pos)));
    return out;
}

} // namespace

RifFileContents parseRifFile(std::string_view text) {
    RifFileContents contents;
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    int number = 0;
    for (std::string_view raw : splitLines(text)) {
        ++number;
        std::string_view line = trim(raw);
        if (line.empty() || line.front() == '#')
            continue;
        std::vector<std::string_view> fields = splitAt(line, ':');
        std::string word(fields.empty() ? std::string_view() : trim(fields[0]));
        if (fields.size() != 3 || word.empty()) {
            contents.badLines.push_back(number);
            continue;
        }
        RifEntry entry{word, items(fields[1]), items(fields[2])};
        contents.words[word] = std::move(entry);
    }
    return contents;
}

std::string rifFileText(const RifWords& words) {
    std::string text = "# word:root1,root2:replacement1,replacement2\n";
    for (const auto& [word, entry] : words)
        text +=
            word + ':' + joinItems(entry.definitions) + ':' + joinItems(entry.replacements) + '\n';
    return text;
}

std::optional<RifFileContents> readRifFile(const std::filesystem::path& path) {
    std::string bytes;
    if (!readFile(path, bytes))
        return std::nullopt;
    return parseRifFile(bytes);
}

WriteStatus writeRifFile(const std::filesystem::path& path, const RifWords& words) {
    return writeFileAtomic(path, rifFileText(words));
}

const RifEntry* findRifWord(const RifWords& words, std::string_view form) {
    if (form.empty())
        return nullptr;
    if (auto it = words.find(std::string(form)); it != words.end())
        return &it->second;
    const std::string wanted = folded(form);
    for (const auto& [word, entry] : words)
        if (folded(word) == wanted)
            return &entry;
    return nullptr;
}

std::vector<RootChoice> rootChoices(const RifWords& words, std::string_view form) {
    std::vector<RootChoice> choices;
    const RifEntry* entry = findRifWord(words, form);
    if (!entry)
        return choices;
    for (const std::string& root : entry->definitions)
        choices.push_back({std::string(form) + '|' + root, root, false});
    for (const std::string& replacement : entry->replacements)
        choices.push_back({replacement, "replace with \"" + replacement + "\"", true});
    return choices;
}

} // namespace tavi
