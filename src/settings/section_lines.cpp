// Sections shared by the dialogs and `tavi`: lines out, lines in.
#include "settings/section_lines.h"

#include <optional>

#include "base/text.h"

namespace tavi {

namespace {

std::string joined(std::string_view keyword, std::string_view subKey, std::string_view rest) {
    std::string line(keyword);
    line += ' ';
    line += subKey;
    if (!rest.empty()) {
        line += ' ';
        line += rest;
    }
    return line;
}

std::string flagLine(std::string_view keyword, std::string_view name, bool value) {
    return std::string(keyword) + ' ' + std::string(name) + (value ? "_YES" : "_NO");
}

std::string numberLine(std::string_view keyword, std::string_view subKey, int value) {
    return joined(keyword, subKey, std::to_string(value));
}

void setNumber(std::string_view text, std::int32_t& field) {
    if (std::optional<int> number = parseWholeNumber(text))
        field = *number;
}

} // namespace

std::vector<std::string> analysisSetLines(const AnalysisSet& set) {
    std::vector<std::string> lines;
    auto add = [&](bool on, std::string_view subKey) {
        if (on)
            lines.push_back("ASET " + std::string(subKey));
    };
    add(!set.excludeIncomplete, "INCLUDEINC");
    add(!set.excludeUnintelligible, "INCLUDEUNINT");
    add(!set.excludeNonverbal, "INCLUDENONV");
    add(set.excludeImitations, "EXCLUDEIMIT");
    add(set.excludeQuestionResponses, "EXCLUDEQUES");
    add(set.excludeYesNoResponses, "EXCLUDEYESNO");
    add(set.excludePromptResponses, "EXCLUDEPROMPT");
    add(set.excludeOneWord, "EXCLUDEONEWD");
    add(set.includeOnly, "INCLUDEONLY");
    if (!set.excludeCodes.empty())
        lines.push_back("ASET EXCLUDECODE " + set.excludeCodes);
    if (!set.includeCodes.empty())
        lines.push_back("ASET INCLUDECODE " + set.includeCodes);
    if (lines.empty())
        lines.emplace_back("ASET");
    return lines;
}

void applyAnalysisSetLine(const KeywordLine& line, AnalysisSet& set) {
    const std::string& key = line.subKey;
    if (keyIs(key, "INCLUDEINC"))
        set.excludeIncomplete = 0;
    else if (keyIs(key, "INCLUDEUNINT"))
        set.excludeUnintelligible = 0;
    else if (keyIs(key, "INCLUDENONV"))
        set.excludeNonverbal = 0;
    else if (keyIs(key, "EXCLUDEIMIT"))
        set.excludeImitations = 1;
    else if (keyIs(key, "EXCLUDEQUES"))
        set.excludeQuestionResponses = 1;
    else if (keyIs(key, "EXCLUDEYESNO"))
        set.excludeYesNoResponses = 1;
    else if (keyIs(key, "EXCLUDEPROMPT"))
        set.excludePromptResponses = 1;
    else if (keyIs(key, "EXCLUDEONEWD"))
        set.excludeOneWord = 1;
    else if (keyIs(key, "INCLUDEUTTS"))
        set.includeOnly = 1;
    else if (keyIs(key, "EXCLUDEUCODE"))
        set.excludeCodes = line.rest;
    else if (keyIs(key, "INCLUDEUCODE"))
        set.includeCodes = line.rest;
}

std::vector<std::string> wordBaseLines(const WordBase& base) {
    std::vector<std::string> lines;
    lines.push_back(flagLine("WBASE", "EXCLPAREN", base.excludeParenthetical));
    lines.emplace_back(base.includeMode ? "WBASE INCLWORDS" : "WBASE EXCLWORDS");
    if (!base.excludeCodes.empty())
        lines.push_back("WBASE EXCLUDEWCODE " + base.excludeCodes);
    if (!base.includeCodes.empty())
        lines.push_back("WBASE INCLUDEWCODE " + base.includeCodes);
    return lines;
}

void applyWordBaseLine(const KeywordLine& line, WordBase& base) {
    const std::string& key = line.subKey;
    if (keyIs(key, "EXCLPAREN_YES"))
        base.excludeParenthetical = true;
    else if (keyIs(key, "EXCLPAREN_NO"))
        base.excludeParenthetical = false;
    else if (keyIs(key, "EXCLWORDS"))
        base.includeMode = false;
    else if (keyIs(key, "INCLWORDS"))
        base.includeMode = true;
    else if (keyIs(key, "EXCLUDEWCODE"))
        base.excludeCodes = line.rest;
    else if (keyIs(key, "INCLUDEWCODE"))
        base.includeCodes = line.rest;
}

std::vector<std::string> transcriptCutLines(const TranscriptCut& cut) {
    return {
        numberLine("TCUT", "FROMTYPE", cut.startType),
        numberLine("TCUT", "FROMUTT", cut.startUtterance),
        numberLine("TCUT", "FROMUBASE", cut.startBase),
        numberLine("TCUT", "FROMSPK", cut.startSpeaker),
        numberLine("TCUT", "FROMTLINE", cut.startTime),
        joined("TCUT", "FROMCODE", cut.startCode),
        numberLine("TCUT", "TOTYPE", cut.endType),
        numberLine("TCUT", "TOUTTWD", cut.endValue),
        numberLine("TCUT", "TOUBASE", cut.endBase),
        numberLine("TCUT", "TOSPK", cut.endSpeaker),
        numberLine("TCUT", "TOTLINE", cut.endTime),
        numberLine("TCUT", "TOETIME", cut.endTime),
        joined("TCUT", "TOCODE", cut.endCode),
        numberLine("TCUT", "TOWAREA", cut.wordArea),
    };
}

void applyTranscriptCutLine(const KeywordLine& line, TranscriptCut& cut) {
    const std::string& key = line.subKey;
    const std::string& value = line.rest;
    if (keyIs(key, "FROMTYPE"))
        setNumber(value, cut.startType);
    else if (keyIs(key, "FROMUTT"))
        setNumber(value, cut.startUtterance);
    else if (keyIs(key, "FROMUBASE"))
        setNumber(value, cut.startBase);
    else if (keyIs(key, "FROMSPK"))
        setNumber(value, cut.startSpeaker);
    else if (keyIs(key, "FROMTLINE"))
        setNumber(value, cut.startTime);
    else if (keyIs(key, "FROMCODE"))
        cut.startCode = value;
    else if (keyIs(key, "TOTYPE"))
        setNumber(value, cut.endType);
    else if (keyIs(key, "TOUTTWD"))
        setNumber(value, cut.endValue);
    else if (keyIs(key, "TOUBASE"))
        setNumber(value, cut.endBase);
    else if (keyIs(key, "TOSPK"))
        setNumber(value, cut.endSpeaker);
    else if (keyIs(key, "TOTLINE") || keyIs(key, "TOETIME"))
        setNumber(value, cut.endTime);
    else if (keyIs(key, "TOCODE"))
        cut.endCode = value;
    else if (keyIs(key, "TOWAREA"))
        setNumber(value, cut.wordArea);
}

namespace {

struct LanguageFlag {
    std::string_view prefix;
    bool LanguageSlotOptions::*single = nullptr;
    std::array<bool, 4> LanguageSlotOptions::*numbered = nullptr;
    size_t number = 0;
};

constexpr std::array<LanguageFlag, 11> kLanguageFlags = {{
    {"UC", &LanguageSlotOptions::uc},
    {"ANSI", &LanguageSlotOptions::ansi},
    {"UGC", &LanguageSlotOptions::ugc},
    {"UW1", nullptr, &LanguageSlotOptions::uw, 0},
    {"UW2", nullptr, &LanguageSlotOptions::uw, 1},
    {"UW3", nullptr, &LanguageSlotOptions::uw, 2},
    {"UW4", nullptr, &LanguageSlotOptions::uw, 3},
    {"VL1", nullptr, &LanguageSlotOptions::vl, 0},
    {"VL2", nullptr, &LanguageSlotOptions::vl, 1},
    {"VL3", nullptr, &LanguageSlotOptions::vl, 2},
    {"VL4", nullptr, &LanguageSlotOptions::vl, 3},
}};

bool& flagOf(LanguageSlotOptions& options, const LanguageFlag& flag) {
    return flag.single ? options.*flag.single : (options.*flag.numbered)[flag.number];
}

// "UCALT1" -> the slot named after `prefix`, when the text is prefix + slot word.
std::optional<LanguageSlot> slotAfter(std::string_view text, std::string_view prefix) {
    if (!startsWithIgnoreCase(text, prefix))
        return std::nullopt;
    return languageSlotFromWord(text.substr(prefix.size()));
}

} // namespace

std::vector<std::string> languageLines(const LanguageSettings& language) {
    std::vector<std::string> lines;
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        auto slot = static_cast<LanguageSlot>(s);
        LanguageSlotOptions options = language.slots[static_cast<size_t>(s)];
        std::string word(languageSlotWord(slot));
        for (const LanguageFlag& flag : kLanguageFlags)
            lines.push_back(
                flagLine("LANGUAGE", std::string(flag.prefix) + word, flagOf(options, flag)));
        for (size_t r = 0; r < options.rif.size(); ++r) {
            if (!options.rif[r].empty())
                lines.push_back(
                    joined("LANGUAGE", "RIF" + std::to_string(r + 1) + word, options.rif[r]));
        }
    }
    if (!language.otherName.empty())
        lines.push_back(joined("LANGUAGE", "OTHERNAME", language.otherName));
    lines.emplace_back(language.monthFirst ? "LANGUAGE DATEMD" : "LANGUAGE DATEDM");
    lines.push_back(joined("LANGUAGE", "DATESEP", std::string(1, language.dateSeparator)));
    if (!language.reportLabels.empty())
        lines.push_back(joined("LANGUAGE", "RLABELS", language.reportLabels));
    if (!language.plusLabels.empty())
        lines.push_back(joined("LANGUAGE", "PLABELS", language.plusLabels));
    lines.emplace_back(language.textEncoding == TextEncoding::Windows1252
                           ? "LANGUAGE ENCODING WINDOWS-1252"
                           : "LANGUAGE ENCODING UTF-8");
    return lines;
}

void applyLanguageLine(const KeywordLine& line, LanguageSettings& language) {
    const std::string& key = line.subKey;
    if (keyIs(key, "OTHERNAME")) {
        language.otherName = line.rest;
    } else if (keyIs(key, "DATEMD")) {
        language.monthFirst = true;
    } else if (keyIs(key, "DATEDM")) {
        language.monthFirst = false;
    } else if (keyIs(key, "DATESEP")) {
        if (line.rest == "-" || line.rest == "." || line.rest == "/")
            language.dateSeparator = line.rest[0];
    } else if (keyIs(key, "RLABELS")) {
        language.reportLabels = line.rest;
    } else if (keyIs(key, "PLABELS")) {
        language.plusLabels = line.rest;
    } else if (keyIs(key, "ENCODING")) {
        if (keyIs(line.rest, "WINDOWS-1252"))
            language.textEncoding = TextEncoding::Windows1252;
        else if (keyIs(line.rest, "UTF-8"))
            language.textEncoding = TextEncoding::Utf8;
    } else if (std::optional<FlagSubKey> flag = splitFlagSubKey(key)) {
        for (const LanguageFlag& known : kLanguageFlags) {
            if (std::optional<LanguageSlot> slot = slotAfter(flag->name, known.prefix)) {
                flagOf(language.slots[static_cast<size_t>(*slot)], known) = flag->value;
                return;
            }
        }
    } else {
        for (size_t r = 0; r < 4; ++r) {
            if (std::optional<LanguageSlot> slot = slotAfter(key, "RIF" + std::to_string(r + 1))) {
                language.slots[static_cast<size_t>(*slot)].rif[r] = line.rest;
                return;
            }
        }
    }
}

std::vector<std::string> timingLineLines(const TimingLineFlags& flags) {
    return {flagLine("TIMINGLINES", "SUBTRACT", flags.subtract),
            flagLine("TIMINGLINES", "IGNOREPLUS", flags.ignorePlus),
            flagLine("TIMINGLINES", "IGNOREEQUAL", flags.ignoreEqual)};
}

void applyTimingLineLine(const KeywordLine& line, TimingLineFlags& flags) {
    std::optional<FlagSubKey> flag = splitFlagSubKey(line.subKey);
    if (!flag)
        return;
    if (keyIs(flag->name, "SUBTRACT"))
        flags.subtract = flag->value;
    else if (keyIs(flag->name, "IGNOREPLUS"))
        flags.ignorePlus = flag->value;
    else if (keyIs(flag->name, "IGNOREEQUAL"))
        flags.ignoreEqual = flag->value;
}

std::vector<std::string> numberedListLines(std::string_view keyword,
                                           const std::map<int, std::string>& list) {
    std::vector<std::string> lines{std::string(keyword) + " REMOVEALL"};
    for (const auto& [number, text] : list) {
        const std::string_view value = trim(text);
        if (!value.empty())
            lines.push_back(joined(keyword, std::to_string(number), value));
    }
    return lines;
}

std::vector<std::string> listLines(std::string_view keyword, const std::vector<std::string>& list) {
    std::vector<std::string> lines{std::string(keyword) + " REMOVEALL"};
    for (const std::string& entry : list) {
        const std::string_view value = trim(entry);
        if (!value.empty())
            lines.push_back(std::string(keyword) + " " + std::string(value));
    }
    return lines;
}

std::vector<std::string> siCodeSetLines(int speaker) {
    return {numberLine("SICODESET", "SPEAKER", speaker == 1 ? 2 : 1)};
}

void applySiCodeSetLine(const KeywordLine& line, int& speaker) {
    if (!keyIs(line.subKey, "SPEAKER"))
        return;
    std::optional<int> n = parseWholeNumber(line.rest);
    if (n && (*n == 1 || *n == 2))
        speaker = *n - 1;
}

std::vector<std::string> defaultDatabaseLines(const std::string& name, const std::string& path,
                                              bool pcsdInclude) {
    std::vector<std::string> lines;
    if (!name.empty())
        lines.push_back("DEFDBNAME " + name);
    if (!path.empty())
        lines.push_back("DEFDBPATH " + path);
    lines.push_back(flagLine("PCSD", "INCLUDE", pcsdInclude));
    return lines;
}

std::vector<std::string> fontLines(std::string_view keyword, const FontSetting& font) {
    return {numberLine(keyword, "HEIGHT", font.height),
            numberLine(keyword, "WIDTH", font.width),
            numberLine(keyword, "WEIGHT", font.weight),
            numberLine(keyword, "ITALIC", font.italic),
            numberLine(keyword, "CHARSET", font.charset),
            numberLine(keyword, "PANDF", font.pitchAndFamily),
            joined(keyword, "FACENAME", font.faceName)};
}

void applyFontLine(const KeywordLine& line, FontSetting& font) {
    const std::string& key = line.subKey;
    auto number = [&](int& field) {
        if (std::optional<int> n = parseWholeNumber(line.rest))
            field = *n;
    };
    if (keyIs(key, "HEIGHT"))
        number(font.height);
    else if (keyIs(key, "WIDTH"))
        number(font.width);
    else if (keyIs(key, "WEIGHT"))
        number(font.weight);
    else if (keyIs(key, "ITALIC"))
        number(font.italic);
    else if (keyIs(key, "CHARSET"))
        number(font.charset);
    else if (keyIs(key, "PANDF"))
        number(font.pitchAndFamily);
    else if (keyIs(key, "FACENAME") && !line.rest.empty())
        font.faceName = fromUtf16(toUtf16(line.rest).substr(0, 31));
}

} // namespace tavi
