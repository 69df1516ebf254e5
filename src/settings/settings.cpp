// Loading the program-level and user-level keyword files into the record.
#include "settings/settings.h"

#include "base/text.h"
#include "settings/folder_resolution.h"
#include "settings/section_lines.h"

namespace tavi {

namespace {

struct FolderKeyword {
    std::string_view keyword;
    std::string SettingsFolders::*folder;
    std::string_view programMessage; // TAVI_SYS.ini
    std::string_view userMessage;    // TAVI.ini
};

constexpr std::array<FolderKeyword, 8> kFolderKeywords = {{
    {"BACKUPDIR", &SettingsFolders::backup, "Problem with backup folder ",
     "Problem with default backup folder "},
    {"TRANDIR", &SettingsFolders::transcript, "Problem with transcript folder ",
     "Problem with default transcript folder "},
    {"REPORTDIR", &SettingsFolders::report, "Problem with report folder ",
     "Problem with default report folder "},
    {"LISTDIR", &SettingsFolders::list, "Problem with Explore list folder ",
     "Problem with default word & code list folder "},
    {"DBASEDIR", &SettingsFolders::database, "Problem with database folder ",
     "Problem with default folder for built-in databases "},
    {"ALTDBASEDIR", &SettingsFolders::altDatabase, "Problem with alternate database folder ",
     "Problem with default folder for external databases "},
    {"HASHFILEDIR", &SettingsFolders::rif, "Problem with RIF folder ",
     "Problem with default RIF folder "},
    {"BATCHDIR", &SettingsFolders::batch,
     "Problem with folder for rectangular data file selections ",
     "Problem with default folder for rectangular data file selections "},
}};

const FolderKeyword* folderKeyword(std::string_view keyword) {
    for (const FolderKeyword& known : kFolderKeywords) {
        if (keyIs(keyword, known.keyword))
            return &known;
    }
    return nullptr;
}

// The folder of a settings file, as a folder text.
std::string folderOf(const std::string& file) {
    std::filesystem::path parent = std::filesystem::path(file).parent_path();
    return parent.empty() ? std::string() : folderText(parent.generic_string());
}

FontSetting* fontFor(std::string_view keyword, Settings& settings) {
    if (keyIs(keyword, "DISPTRANFONT"))
        return &settings.transcriptFont;
    if (keyIs(keyword, "DISPREPTFONT"))
        return &settings.reportFont;
    if (keyIs(keyword, "PRTREPTFONT"))
        return &settings.printFont;
    return nullptr;
}

struct NumberedList {
    std::string_view keyword;
    std::map<int, std::string> Settings::*list;
    int maxIndex;
};

constexpr std::array<NumberedList, 6> kNumberedLists = {{
    {"GCL", &Settings::gcl, 22},
    {"GCCODE", &Settings::gcCodes, 22},
    {"CURINSCODELIST", &Settings::insertCodeLists, 16},
    {"CURINSCODELISTTITLE", &Settings::insertCodeListTitles, 16},
    {"CURINSTEXT", &Settings::insertTexts, 9},
    {"CURINSTITLE", &Settings::insertTitles, 9},
}};

void applyMovingAverageWindow(const KeywordLine& line, Settings& settings) {
    if (!keyIs(line.subKey, "WINDOW"))
        return;
    std::optional<int> n = parseWholeNumber(line.rest);
    if (n && *n >= kMovingAverageWindowMin && *n <= kMovingAverageWindowMax)
        settings.movingAverageWindow = *n;
}

void applyBackup(const KeywordLine& line, Settings& settings) {
    std::optional<int> n = parseWholeNumber(line.value);
    if (!n)
        return;
    settings.backupInterval = (*n >= kBackupIntervalMin && *n <= kBackupIntervalMax) ? *n : 0;
}

void applyPdfPrinter(const KeywordLine& line, const PrinterCheck& printerExists,
                     Settings& settings) {
    if (keyIs(line.value, "N/A"))
        settings.pdfPrinterName.clear();
    else if (!line.value.empty() && (!printerExists || printerExists(line.value)))
        settings.pdfPrinterName = line.value;
}

// The settings of one user-level line whose keyword is `keyword` (upper case).
void applyUserLine(const std::string& keyword, const KeywordLine& line,
                   const PrinterCheck& printerExists, Settings& settings) {
    if (keyword == "SPNOSHOW" || keyword == "UGNOSHOW") {
        if (std::optional<bool> flag = yesNoValue(line.value))
            (keyword == "SPNOSHOW" ? settings.spNoShow : settings.ugNoShow) = *flag;
    } else if (keyword == "LANGUAGE") {
        applyLanguageLine(line, settings.language);
    } else if (keyword == "CURULCHARSET") {
        applyListValue(settings.upperLowerChars, line.value);
    } else if (keyword == "TIMINGLINES") {
        applyTimingLineLine(line, settings.timingLines);
    } else if (keyword == "PCSD") {
        std::optional<FlagSubKey> flag = splitFlagSubKey(line.subKey);
        if (flag && keyIs(flag->name, "INCLUDE"))
            settings.pcsdInclude = flag->value;
    } else if (keyword == "MATTRSET") {
        applyMovingAverageWindow(line, settings);
    } else if (keyword == "BACKUP") {
        applyBackup(line, settings);
    } else if (keyword == "PDFPRINTERNAME") {
        applyPdfPrinter(line, printerExists, settings);
    } else if (FontSetting* font = fontFor(keyword, settings)) {
        applyFontLine(line, *font);
    } else if (keyword == "ASET") {
        applyAnalysisSetLine(line, settings.analysisSet);
    } else if (keyword == "WBASE") {
        applyWordBaseLine(line, settings.wordBase);
    } else if (keyword == "TCUT") {
        applyTranscriptCutLine(line, settings.transcriptCut);
    } else if (keyword == "CURSYMBOLLIST") {
        applyListValue(settings.symbolList, line.value);
    } else if (keyword == "SICODESET") {
        applySiCodeSetLine(line, settings.siCodeSpeaker);
    } else if (keyword == "BMORPH") {
        applyListValue(settings.boundMorphemes, line.value);
    } else if (keyword.starts_with("DEF") || keyword == "SDINT") {
        settings.databaseDefaults[keyword] = line.value;
    } else {
        for (const NumberedList& numbered : kNumberedLists) {
            if (keyword == numbered.keyword)
                applyNumberedValue(settings.*numbered.list, line.value, numbered.maxIndex);
        }
    }
}

} // namespace

LanguageSlot LanguageSettings::reportSlot() const {
    return languageSlotFromWord(reportLabels).value_or(LanguageSlot::Primary);
}

const std::vector<KeywordLine>& Settings::sectionLines(std::string_view keyword) const {
    static const std::vector<KeywordLine> none;
    auto found = userSections.find(toUpperAscii(keyword));
    return found == userSections.end() ? none : found->second;
}

void Settings::replaceSectionLines(std::string_view keyword,
                                   const std::vector<std::string>& lines) {
    std::vector<KeywordLine>& section = userSections[toUpperAscii(keyword)];
    section.clear();
    for (const std::string& line : lines)
        section.push_back(parseKeywordLine(line));
}

std::optional<std::string> userSectionKeyword(std::string_view keyword) {
    for (std::string_view known : kUserSectionKeywords) {
        if (keyIs(keyword, known))
            return std::string(known);
    }
    return std::nullopt;
}

void applyProgramLevelLines(const std::vector<KeywordLine>& lines, const std::string& file,
                            Settings& settings, Prompter& prompter) {
    const std::string base =
        settings.folders.sharedData.empty() ? folderOf(file) : settings.folders.sharedData;
    for (const KeywordLine& line : lines) {
        if (keyIs(line.keyword, "INIDIR")) {
            std::string message =
                "Problem with user-level setup folder " + line.value + " specified in " + file;
            settings.folders.setup =
                resolveFolder(line.value, settings.folders.setup, base, true, message, prompter)
                    .folder;
        } else if (const FolderKeyword* known = folderKeyword(line.keyword)) {
            std::string& folder = settings.folders.*known->folder;
            std::string message =
                std::string(known->programMessage) + line.value + " specified in " + file;
            folder = resolveFolder(line.value, folder, base, false, message, prompter).folder;
        } else if (keyIs(line.keyword, "PDFPRINTERNAME")) {
            settings.pdfPrinterName = keyIs(line.value, "N/A") ? std::string() : line.value;
        } else if (keyIs(line.keyword, "CUSTOMIZEPROMPT")) {
            settings.customizeAllowed = keyIs(line.value, "YES");
        } else if (FontSetting* font = fontFor(line.keyword, settings)) {
            applyFontLine(line, *font);
        }
    }
}

void applyUserLevelLines(const std::vector<KeywordLine>& lines, const std::string& file,
                         const PrinterCheck& printerExists, Settings& settings,
                         Prompter& prompter) {
    const std::string base = folderOf(file);
    for (const KeywordLine& line : lines) {
        std::optional<std::string> keyword = userSectionKeyword(line.keyword);
        if (!keyword)
            continue;
        settings.userSections[*keyword].push_back(line);
        if (const FolderKeyword* known = folderKeyword(*keyword)) {
            std::string& folder = settings.folders.*known->folder;
            std::string message =
                std::string(known->userMessage) + line.value + " - using " + folder;
            folder = resolveFolder(line.value, folder, base, false, message, prompter).folder;
        } else {
            applyUserLine(*keyword, line, printerExists, settings);
        }
    }
}

} // namespace tavi
