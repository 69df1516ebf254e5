// The label table: lookup with the PRIMARY fallback, and the label file.
#include "settings/label_table.h"

#include <stdexcept>
#include <unordered_map>

#include "base/file_io.h"
#include "base/text.h"
#include "settings/keyword_file.h"
#include "settings/label_builtins.h"

namespace tavi {

namespace {

constexpr std::array<std::string_view, kLanguageSlotCount> kSlotWords = {"PRIMARY", "ALT1", "ALT2",
                                                                         "OTHER"};

const std::unordered_map<std::string_view, int>& keyIndexes() {
    static const std::unordered_map<std::string_view, int> indexes = [] {
        std::unordered_map<std::string_view, int> map;
        for (int i = 0; i < kLabelCount; ++i)
            map.emplace(kLabelDefinitions[static_cast<size_t>(i)].key, i);
        return map;
    }();
    return indexes;
}

size_t checkedIndex(int index) {
    if (index < 0 || index >= kLabelCount)
        throw std::out_of_range("label index out of range");
    return static_cast<size_t>(index);
}

} // namespace

std::string_view languageSlotWord(LanguageSlot slot) {
    return kSlotWords[static_cast<size_t>(slot)];
}

std::optional<LanguageSlot> languageSlotFromWord(std::string_view word) {
    for (size_t i = 0; i < kSlotWords.size(); ++i) {
        if (equalsIgnoreCase(word, kSlotWords[i]))
            return static_cast<LanguageSlot>(i);
    }
    return std::nullopt;
}

std::span<const std::string_view, kLabelCount> labelKeys() {
    static const std::array<std::string_view, kLabelCount> keys = [] {
        std::array<std::string_view, kLabelCount> list;
        for (size_t i = 0; i < list.size(); ++i)
            list[i] = kLabelDefinitions[i].key;
        return list;
    }();
    return keys;
}

std::optional<int> labelIndex(std::string_view key) {
    auto found = keyIndexes().find(key);
    if (found == keyIndexes().end())
        return std::nullopt;
    return found->second;
}

std::string_view builtInLabel(int index) {
    return kLabelDefinitions[checkedIndex(index)].builtInText;
}

LabelSet builtInLabelSet() {
    LabelSet set;
    for (size_t i = 0; i < set.size(); ++i)
        set[i] = kLabelDefinitions[i].builtInText;
    return set;
}

LabelTable::LabelTable() {
    setBuiltIn(LanguageSlot::Primary);
}

void LabelTable::setBuiltIn(LanguageSlot slot) {
    sets_[index(slot)] = builtInLabelSet();
}

const std::string& LabelTable::text(LanguageSlot slot, int labelIndex) const {
    return sets_[index(slot)][checkedIndex(labelIndex)];
}

void LabelTable::setText(LanguageSlot slot, int labelIndex, std::string text) {
    sets_[index(slot)][checkedIndex(labelIndex)] = std::move(text);
}

const std::string& LabelTable::get(LanguageSlot slot, int labelIndex) const {
    const std::string& own = text(slot, labelIndex);
    return own.empty() ? text(LanguageSlot::Primary, labelIndex) : own;
}

const std::string& LabelTable::get(LanguageSlot slot, std::string_view key) const {
    std::optional<int> found = labelIndex(key);
    if (!found)
        throw std::out_of_range("unknown label key " + std::string(key));
    return get(slot, *found);
}

void applyLabelText(std::string_view bytes, LabelTable& table) {
    for (const std::string& line : keywordTextLines(bytes)) {
        auto [slotWord, remainder] = splitAtFirstBlank(line);
        auto [key, text] = splitAtFirstBlank(remainder);
        std::optional<LanguageSlot> slot = languageSlotFromWord(slotWord);
        std::optional<int> index = labelIndex(key);
        if (slot && index && !text.empty())
            table.setText(*slot, *index, std::string(text));
    }
}

bool loadLabelFile(const std::filesystem::path& path, LabelTable& table) {
    std::string bytes;
    if (!readFile(path, bytes))
        return false;
    applyLabelText(bytes, table);
    return true;
}

std::string labelFileBytes(const LabelTable& table) {
    std::vector<std::string> lines;
    lines.reserve(kLanguageSlotCount * kLabelCount);
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        auto slot = static_cast<LanguageSlot>(s);
        for (int i = 0; i < kLabelCount; ++i) {
            std::string line(languageSlotWord(slot));
            line += ' ';
            line += labelKeys()[static_cast<size_t>(i)];
            line += ' ';
            line += table.text(slot, i);
            lines.push_back(std::move(line));
        }
    }
    return keywordFileBytes(lines);
}

SaveOutcome saveLabelFile(const std::filesystem::path& path, const LabelTable& table,
                          bool savingAllowed, Prompter& prompter) {
    if (!savingAllowed) {
        prompter.inform("Default settings cannot be saved on this computer.");
        return SaveOutcome::NotAllowed;
    }
    if (prompter.ask("Would you like to save these settings as the program default?") !=
        Answer::Yes)
        return SaveOutcome::NotAnswered;
    std::string bytes = labelFileBytes(table);
    WriteStatus status = writeFileAtomic(path, bytes);
    if (status == WriteStatus::CannotOpen && path.has_parent_path()) {
        std::error_code ec;
        std::filesystem::create_directories(path.parent_path(), ec);
        status = writeFileAtomic(path, bytes);
    }
    const std::string shown = path.string();
    switch (status) {
    case WriteStatus::Ok:
        prompter.inform("Labels saved in " + shown);
        return SaveOutcome::Saved;
    case WriteStatus::CannotOpen:
        prompter.inform("Cannot write to " + shown + " (labels not saved)");
        return SaveOutcome::CannotWrite;
    case WriteStatus::WriteFailed:
        break;
    }
    prompter.inform("Problem writing to " + shown + " (labels not saved properly)");
    return SaveOutcome::WriteFailed;
}

} // namespace tavi
