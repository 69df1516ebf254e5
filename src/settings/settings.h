// The application's settings record: every setting of the program-level file
// (TAVI_SYS.ini) and the user-level file (TAVI.ini), the folders in force, the
// label table and the raw list files. One record lives for the whole run and
// is passed to whatever needs it; nothing here is global.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_set.h"
#include "analysis/transcript_cut.h"
#include "analysis/word_base.h"
#include "base/prompter.h"
#include "base/text.h"
#include "settings/keyword_file.h"
#include "settings/label_table.h"

namespace tavi {

// A font as the settings files describe it ("DISPTRANFONT HEIGHT 16" ...).
struct FontSetting {
    int height = 0; // point size; 0 leaves the front end's default
    int width = 0;
    int weight = 400;
    int italic = 0;
    int charset = 0;
    int pitchAndFamily = 0; // "PANDF"
    std::string faceName;   // up to 31 characters

    bool operator==(const FontSetting&) const = default;
};

// The options of one transcript language slot. Their meaning belongs to the
// language settings dialog; the settings only keep them.
struct LanguageSlotOptions {
    bool uc = false;                // "UC<slot>_YES"
    bool ansi = false;              // "ANSI<slot>_YES"
    bool ugc = false;               // "UGC<slot>_YES"
    std::array<bool, 4> uw{};       // "UW1<slot>_YES" ... "UW4<slot>_YES"
    std::array<bool, 4> vl{};       // "VL1<slot>_YES" ... "VL4<slot>_YES"
    std::array<std::string, 4> rif; // "RIF1<slot> file" ... "RIF4<slot> file"

    bool operator==(const LanguageSlotOptions&) const = default;
};

// The "LANGUAGE" section.
struct LanguageSettings {
    std::array<LanguageSlotOptions, kLanguageSlotCount> slots;
    std::string otherName;    // "OTHERNAME": the name of the other language
    bool monthFirst = true;   // "DATEMD" (true) or "DATEDM"
    char dateSeparator = '-'; // "DATESEP": one of "-", ".", "/"
    std::string reportLabels; // "RLABELS", kept as written
    std::string plusLabels;   // "PLABELS", kept as written
    // "ENCODING UTF-8" or "ENCODING WINDOWS-1252": how transcripts and lists
    // without a byte order mark are read.
    TextEncoding textEncoding = TextEncoding::Utf8;

    // The slot whose labels reports use: "RLABELS" names it (PRIMARY, ALT1,
    // ALT2 or OTHER); anything else is the primary slot.
    LanguageSlot reportSlot() const;

    bool operator==(const LanguageSettings&) const = default;
};

// The "TIMINGLINES" flags.
struct TimingLineFlags {
    bool subtract = true;
    bool ignorePlus = true;
    bool ignoreEqual = true;

    bool operator==(const TimingLineFlags&) const = default;
};

// Every folder in force, each held with a trailing "/".
struct SettingsFolders {
    std::string sharedData; // the program folder: TAVI_SYS.ini, TaviSWL.txt, TaviSymbols.txt
    std::string userData;
    std::string documents;
    std::string setup;       // the user-level setup folder: TAVI.ini, TAVI_SWL.ini, TAVI_Labels.ini
    std::string backup;      // "BACKUPDIR"
    std::string transcript;  // "TRANDIR"
    std::string report;      // "REPORTDIR"
    std::string list;        // "LISTDIR": Explore word and code lists
    std::string database;    // "DBASEDIR": built-in databases
    std::string altDatabase; // "ALTDBASEDIR": external databases
    std::string rif;         // "HASHFILEDIR": root identification files
    std::string batch;       // "BATCHDIR": rectangular data file selections
    std::string templates;   // scoring templates (macro analysis)

    bool operator==(const SettingsFolders&) const = default;
};

inline constexpr int kMovingAverageWindowMin = 10;
inline constexpr int kMovingAverageWindowMax = 999;
inline constexpr int kBackupIntervalMin = 50;
inline constexpr int kBackupIntervalMax = 5000;
inline constexpr std::string_view kDefaultPdfPrinter = "Microsoft Print to PDF";

// The section keywords of the user-level file, in the loader's fixed order;
// "SMR" (the lines of the Standard Measures Report) comes last.
// clang-format off
inline constexpr std::array<std::string_view, 75> kUserSectionKeywords = {
    "SPNOSHOW", "UGNOSHOW", "LANGUAGE", "CURULCHARSET", "TIMINGLINES", "PCSD", "MATTRSET",
    "BACKUP", "BACKUPDIR", "TRANDIR", "REPORTDIR", "LISTDIR", "DBASEDIR", "ALTDBASEDIR",
    "HASHFILEDIR", "PDFPRINTERNAME", "DISPTRANFONT", "DISPREPTFONT", "PRTREPTFONT", "PFORMAT",
    "ASET", "WBASE", "TCUT", "RIFSET", "SICODESET", "HEADER", "DIST", "WR", "BM", "CT", "WC",
    "UC", "SWL", "GCL", "SUL", "OMITERR", "FLUENCY", "NONMAINSTREAM", "CODESWITCH", "YOLREPT",
    "YOL", "YOLIST", "EXPLWC", "EXPLWCLIST", "DEFORDER", "DEFLANGUAGE", "DEFBILINGUAL",
    "DEFCONTEXT", "DEFSUBGRP", "DEFDBNAME", "DEFDBPATH", "SDINT", "PAIR", "CURSYMBOLLIST",
    "CURINSCODELIST", "CURINSCODELISTTITLE", "CURINSTEXT", "CURINSTITLE", "BATCHDIR", "GCCODE",
    "YOLINS", "YOLDEL", "YOLSAVE", "BATCH", "BMORPH", "EMULTINS", "EMULTDEL", "EMULTSAVE",
    "EMULTREPT", "EMULT", "EMULTLIST", "GENVOC", "GENBM", "GENCODELIST", "SMR"};
// clang-format on

struct Settings {
    SettingsFolders folders;

    // Program-level settings (TAVI_SYS.ini).
    std::string programSettingsFile; // the TAVI_SYS.ini read at start-up, or the first looked for
    bool customizeAllowed = false;   // "CUSTOMIZEPROMPT YES"
    bool dataFolderDeclined = false; // the user said No to creating "My TAVI Data"

    // User-level settings (TAVI.ini), in the order of the keyword table.
    bool spNoShow = false; // "SPNOSHOW"
    bool ugNoShow = false; // "UGNOSHOW"
    LanguageSettings language;
    std::vector<std::string> upperLowerChars; // "CURULCHARSET"
    TimingLineFlags timingLines;
    bool pcsdInclude = false;      // "PCSD INCLUDE_YES"
    int movingAverageWindow = 100; // "MATTRSET WINDOW n", 10..999
    int backupInterval = 0;        // "BACKUP n", 50..5000; 0 is off
    std::string pdfPrinterName{kDefaultPdfPrinter};
    FontSetting transcriptFont;                      // "DISPTRANFONT"
    FontSetting reportFont;                          // "DISPREPTFONT"
    FontSetting printFont;                           // "PRTREPTFONT"
    AnalysisSet analysisSet;                         // "ASET"
    WordBase wordBase;                               // "WBASE"
    TranscriptCut transcriptCut;                     // "TCUT"
    std::map<int, std::string> gcl;                  // "GCL n text", n 0..22
    std::map<int, std::string> gcCodes;              // "GCCODE n text", n 0..22
    std::vector<std::string> symbolList;             // "CURSYMBOLLIST"
    std::map<int, std::string> insertCodeLists;      // "CURINSCODELIST", n 0..16
    std::map<int, std::string> insertCodeListTitles; // "CURINSCODELISTTITLE", n 0..16
    std::map<int, std::string> insertTexts;          // "CURINSTEXT", n 0..9
    std::map<int, std::string> insertTitles;         // "CURINSTITLE", n 0..9
    std::vector<std::string> boundMorphemes;         // "BMORPH"
    int siCodeSpeaker = 0; // "SICODESET SPEAKER n": 0 the 1st speaker (n 1), 1 the 2nd (n 2)
    // "DEFORDER" ... "DEFDBPATH" and "SDINT": one value each, by keyword.
    std::map<std::string, std::string, std::less<>> databaseDefaults;

    // Every line of TAVI.ini whose keyword is in the keyword table, by keyword
    // (upper case), in file order. Sections that other parts of the program own
    // (report settings, batch selections, explore criteria ...) are read from here.
    std::map<std::string, std::vector<KeywordLine>, std::less<>> userSections;

    // Files read at start-up, kept for the parts that parse them.
    std::vector<std::string> swlSettingsLines;      // TAVI_SWL.ini, trimmed lines
    std::vector<std::string> symbolFileLines;       // TaviSymbols.txt, trimmed lines
    std::vector<std::string> standardWordListLines; // TaviSWL.txt, trimmed lines
    bool standardWordListFound = false;

    LabelTable labels;

    // The lines of one user-level section (empty when the file had none).
    const std::vector<KeywordLine>& sectionLines(std::string_view keyword) const;
    // Puts a section's new lines in place of its old ones, as after saving it
    // as the program default (typed fields are the caller's to set).
    void replaceSectionLines(std::string_view keyword, const std::vector<std::string>& lines);
    // Defaults can be saved: "CUSTOMIZEPROMPT YES" and the data folder was not declined.
    bool canSaveDefaults() const { return customizeAllowed && !dataFolderDeclined; }
    // Where TAVI.ini is read and saved.
    std::string userSettingsFile() const { return folders.setup + "TAVI.ini"; }
    std::string labelFile() const { return folders.setup + "TAVI_Labels.ini"; }
    std::string swlSettingsFile() const { return folders.setup + "TAVI_SWL.ini"; }
    bool backupOn() const { return backupInterval > 0; }
};

// Whether a keyword is a section keyword of the user-level file; its upper-case form.
std::optional<std::string> userSectionKeyword(std::string_view keyword);

// Applies the lines of the program-level file (TAVI_SYS.ini), read from
// `file`. Relative folder values are taken below the shared data folder (the
// file's folder when none is set), also when the file is the installed one in
// /etc/tavi/; problems are
// reported through the prompter as "<message><value> specified in <file>".
void applyProgramLevelLines(const std::vector<KeywordLine>& lines, const std::string& file,
                            Settings& settings, Prompter& prompter);

// Whether a printer of that name exists; empty: every name is taken.
using PrinterCheck = std::function<bool(std::string_view name)>;

// Applies the lines of the user-level file (TAVI.ini), read from `file`.
// Folder problems are reported as "<message><value> - using <folder kept>".
void applyUserLevelLines(const std::vector<KeywordLine>& lines, const std::string& file,
                         const PrinterCheck& printerExists, Settings& settings, Prompter& prompter);

} // namespace tavi
