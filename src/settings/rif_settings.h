// The root identification settings ("RIFSET" section of TAVI.ini): which root
// identification file each language slot uses, the transcript language that
// chooses a slot, and how a chosen root is applied.
//     RIFSET FILEPRIMARY English.rif      file of a slot (name in the RIF folder, or a path)
//     RIFSET LANGALT1 Spanish             "+Language:" value that chooses the slot
//     RIFSET REPLACEALL_YES               a choice is used for every occurrence of its form
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "settings/keyword_file.h"
#include "settings/label_table.h"
#include "settings/settings.h"

namespace tavi {

inline constexpr std::string_view kDefaultRifFile = "English.rif";

struct RifSettings {
    std::array<std::string, kLanguageSlotCount> files{std::string(kDefaultRifFile)};
    std::array<std::string, kLanguageSlotCount> languages;
    bool replaceAll = false;

    bool operator==(const RifSettings&) const = default;
};

std::vector<std::string> rifSettingsLines(const RifSettings& rif);
void applyRifSettingsLine(const KeywordLine& line, RifSettings& rif);
// The settings as the "RIFSET" lines of the settings record give them; a
// slot without a "FILE" line takes the first file the language options name
// for it ("LANGUAGE RIF1<slot> name"), if any.
RifSettings rifSettings(const Settings& settings);

// The slot whose language name equals the transcript's language (without
// regard to case); the primary slot when none does.
LanguageSlot rifSlotFor(std::string_view transcriptLanguage, const RifSettings& rif);

// Where a slot's file is: an absolute name as it stands, else in the RIF
// folder, else (for the file shipped with the program) in the data folder.
// Empty when the slot has no file.
std::filesystem::path rifFilePath(const Settings& settings, const RifSettings& rif,
                                  LanguageSlot slot);

} // namespace tavi
