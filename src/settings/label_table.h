// Every word a report prints in a heading, measure name or table title, and the
// words of the header ("+") lines, come from this table by key and language
// slot, so a user can translate them in TAVI_Labels.ini. Report writers never
// hold label texts themselves.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/prompter.h"
#include "settings/save_outcome.h"

namespace tavi {

// The transcript language slots of the "LANGUAGE" settings and the label file.
enum class LanguageSlot : int { Primary = 0, Alt1 = 1, Alt2 = 2, Other = 3 };
inline constexpr int kLanguageSlotCount = 4;
inline constexpr int kLabelCount = 421;

// "PRIMARY", "ALT1", "ALT2", "OTHER".
std::string_view languageSlotWord(LanguageSlot slot);
// The slot named by a word, without regard to case.
std::optional<LanguageSlot> languageSlotFromWord(std::string_view word);

// The 421 keys in their fixed order ("RL_ABANUTT" ... "PL_PLAY"); a key's
// place is its label's index.
std::span<const std::string_view, kLabelCount> labelKeys();
// The index of a key, compared with regard to case ("rl_age" is no key).
std::optional<int> labelIndex(std::string_view key);
// The built-in English text of a label.
std::string_view builtInLabel(int index);

using LabelSet = std::array<std::string, kLabelCount>;

// All 421 texts empty, then each key's built-in English text.
LabelSet builtInLabelSet();

class LabelTable {
public:
    // As reset at start-up: built-in texts in PRIMARY, the other slots empty.
    LabelTable();

    // Fills one slot with the built-in texts.
    void setBuiltIn(LanguageSlot slot);

    // The slot's own text, which may be empty.
    const std::string& text(LanguageSlot slot, int index) const;
    void setText(LanguageSlot slot, int index, std::string text);

    // The label to print: the slot's text, or PRIMARY's when the slot's is empty.
    // An unknown key is a programming error (std::out_of_range).
    const std::string& get(LanguageSlot slot, std::string_view key) const;
    const std::string& get(LanguageSlot slot, int index) const;

    const LabelSet& set(LanguageSlot slot) const { return sets_[index(slot)]; }
    LabelSet& set(LanguageSlot slot) { return sets_[index(slot)]; }

    bool operator==(const LabelTable&) const = default;

private:
    static size_t index(LanguageSlot slot) { return static_cast<size_t>(slot); }
    std::array<LabelSet, kLanguageSlotCount> sets_;
};

// Applies the lines of a label file to the table: "SLOT KEY text". Slot words
// ignore case, keys do not; unknown slots and keys and lines without text are
// skipped without a message.
void applyLabelText(std::string_view bytes, LabelTable& table);
// Reads TAVI_Labels.ini into the table; false when the file cannot be read
// (the table is left as it was).
bool loadLabelFile(const std::filesystem::path& path, LabelTable& table);

// The label file as written: byte order mark, then for each slot in order and
// each key in order "SLOT KEY text" (1684 lines).
std::string labelFileBytes(const LabelTable& table);

// The save of the labels dialog: refuses when defaults cannot be saved, asks
// "Would you like to save these settings as the program default?", writes the
// whole file and reports "Labels saved in " + path, or "Cannot write to " /
// "Problem writing to " with the path and the labels suffix.
SaveOutcome saveLabelFile(const std::filesystem::path& path, const LabelTable& table,
                          bool savingAllowed, Prompter& prompter);

} // namespace tavi
