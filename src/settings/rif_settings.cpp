// The "RIFSET" section.
#include "settings/rif_settings.h"

#include "base/text.h"

namespace tavi {

std::vector<std::string> rifSettingsLines(const RifSettings& rif) {
    std::vector<std::string> lines;
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        const std::string word(languageSlotWord(static_cast<LanguageSlot>(s)));
        const auto i = static_cast<size_t>(s);
        // Written also when empty, so that a slot left without a file stays so.
        lines.push_back("RIFSET FILE" + word + (rif.files[i].empty() ? "" : " " + rif.files[i]));
        if (!rif.languages[i].empty())
            lines.push_back("RIFSET LANG" + word + ' ' + rif.languages[i]);
    }
    lines.push_back(std::string("RIFSET REPLACEALL") + (rif.replaceAll ? "_YES" : "_NO"));
    return lines;
}

void applyRifSettingsLine(const KeywordLine& line, RifSettings& rif) {
    const std::string& key = line.subKey;
    if (std::optional<FlagSubKey> flag = splitFlagSubKey(key)) {
        if (keyIs(flag->name, "REPLACEALL"))
            rif.replaceAll = flag->value;
        return;
    }
    for (std::string_view prefix : {"FILE", "LANG"}) {
        if (!startsWithIgnoreCase(key, prefix))
            continue;
        if (std::optional<LanguageSlot> slot = languageSlotFromWord(key.substr(prefix.size()))) {
            auto i = static_cast<size_t>(*slot);
            (prefix == "FILE" ? rif.files[i] : rif.languages[i]) = line.rest;
        }
    }
}

RifSettings rifSettings(const Settings& settings) {
    RifSettings rif;
    // The language options may name a slot's first file ("LANGUAGE RIF1ALT1
    // name"); a "RIFSET" line of the slot comes after and wins.
    for (size_t s = 0; s < rif.files.size(); ++s)
        if (const std::string& named = settings.language.slots[s].rif[0]; !named.empty())
            rif.files[s] = named;
    for (const KeywordLine& line : settings.sectionLines("RIFSET"))
        applyRifSettingsLine(line, rif);
    return rif;
}

LanguageSlot rifSlotFor(std::string_view transcriptLanguage, const RifSettings& rif) {
    std::string_view wanted = trim(transcriptLanguage);
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        const std::string& name = rif.languages[static_cast<size_t>(s)];
        if (!wanted.empty() && !name.empty() && equalsIgnoreCase(trim(name), wanted))
            return static_cast<LanguageSlot>(s);
    }
    return LanguageSlot::Primary;
}

std::filesystem::path rifFilePath(const Settings& settings, const RifSettings& rif,
                                  LanguageSlot slot) {
    const std::string& name = rif.files[static_cast<size_t>(slot)];
    if (name.empty())
        return {};
    std::filesystem::path path(name);
    if (path.is_absolute())
        return path;
    std::filesystem::path inFolder = std::filesystem::path(settings.folders.rif) / path;
    std::error_code ec;
    if (std::filesystem::exists(inFolder, ec) || settings.folders.sharedData.empty())
        return inFolder;
    std::filesystem::path shipped = std::filesystem::path(settings.folders.sharedData) / path;
    return std::filesystem::exists(shipped, ec) ? shipped : inFolder;
}

} // namespace tavi
