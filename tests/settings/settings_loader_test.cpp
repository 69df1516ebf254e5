// Loading TAVI.ini and TAVI_SYS.ini lines into the settings record: limits,
// case rules, lists, folders with their messages, and foreign files.
#include <gtest/gtest.h>

#include "settings/folder_resolution.h"
#include "settings/settings.h"
#include "settings/startup.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

struct Loader {
    test::TempFolder folder;
    Settings settings = defaultSettings(folder.folder(), folder.folder(), folder.folder(), {});
    test::RecordingPrompter prompter;
    PrinterCheck printers;

    void user(const std::string& text) {
        applyUserLevelLines(parseKeywordText(text), folder.folder() + "TAVI.ini", printers,
                            settings, prompter);
    }
    void program(const std::string& text) {
        applyProgramLevelLines(parseKeywordText(text), folder.folder() + "TAVI_SYS.ini", settings,
                               prompter);
    }
};

TEST(UserLevelFile, MovingAverageWindowLimits) {
    Loader l;
    EXPECT_EQ(l.settings.movingAverageWindow, 100);
    l.user("MATTRSET WINDOW 9");
    EXPECT_EQ(l.settings.movingAverageWindow, 100);
    l.user("MATTRSET WINDOW 10");
    EXPECT_EQ(l.settings.movingAverageWindow, 10);
    l.user("MATTRSET WINDOW 999\nMATTRSET WINDOW 1000");
    EXPECT_EQ(l.settings.movingAverageWindow, 999);
    l.user("MATTRSET WINDOW ten\nMATTRSET SIZE 50\nMATTRSET WINDOW");
    EXPECT_EQ(l.settings.movingAverageWindow, 999);
    l.user("mattrset window 25");
    EXPECT_EQ(l.settings.movingAverageWindow, 25);
    EXPECT_TRUE(l.prompter.messages.empty());
}

TEST(UserLevelFile, BackupIntervalLimits) {
    Loader l;
    EXPECT_FALSE(l.settings.backupOn());
    l.user("BACKUP 50");
    EXPECT_EQ(l.settings.backupInterval, 50);
    l.user("BACKUP 49");
    EXPECT_FALSE(l.settings.backupOn());
    l.user("BACKUP 5000");
    EXPECT_EQ(l.settings.backupInterval, 5000);
    l.user("BACKUP often"); // does not parse: unchanged
    EXPECT_EQ(l.settings.backupInterval, 5000);
    l.user("BACKUP 5001");
    EXPECT_FALSE(l.settings.backupOn());
}

TEST(UserLevelFile, FlagsListsAndValues) {
    Loader l;
    l.printers = [](std::string_view name) { return name == "PDF Writer"; };
    l.user("SPNOSHOW yes\nUGNOSHOW YES\nUGNOSHOW maybe\n"
           "TIMINGLINES SUBTRACT_NO\nTIMINGLINES ignoreequal_no\n"
           "PCSD INCLUDE_YES\n"
           "CURULCHARSET A\nCURULCHARSET B\nCURULCHARSET REMOVEALL\nCURULCHARSET \xC3\x89\n"
           "CURSYMBOLLIST one\nBMORPH s\nBMORPH ed\n"
           "GCL 22 [GC:INTJ]\nGCL 23 [GC:NONE]\nCURINSTEXT 9 text\nCURINSTEXT 10 no\n"
           "DEFDBNAME Demo\nSDINT 1.5\n"
           "PDFPRINTERNAME No Such Printer\n"
           "DISPTRANFONT FACENAME DejaVu Sans Mono\nDISPTRANFONT HEIGHT 12\n"
           "WBASE EXCLPAREN_NO\nTCUT TOTYPE 5\nTCUT TOUTTWD 50\n"
           "ASET\nASET INCLUDENONV\n"
           "UNKNOWN keyword\nSPNOSHOWX YES\n");
    const Settings& s = l.settings;
    EXPECT_TRUE(s.spNoShow);
    EXPECT_TRUE(s.ugNoShow);
    EXPECT_EQ(s.timingLines, (TimingLineFlags{false, true, false}));
    EXPECT_TRUE(s.pcsdInclude);
    EXPECT_EQ(s.upperLowerChars, std::vector<std::string>{"\xC3\x89"});
    EXPECT_EQ(s.symbolList, std::vector<std::string>{"one"});
    EXPECT_EQ(s.boundMorphemes, (std::vector<std::string>{"s", "ed"}));
    EXPECT_EQ(s.gcl, (std::map<int, std::string>{{22, "[GC:INTJ]"}}));
    EXPECT_EQ(s.insertTexts, (std::map<int, std::string>{{9, "text"}}));
    EXPECT_EQ(s.databaseDefaults.at("DEFDBNAME"), "Demo");
    EXPECT_EQ(s.databaseDefaults.at("SDINT"), "1.5");
    EXPECT_EQ(s.pdfPrinterName, kDefaultPdfPrinter); // no such printer: unchanged
    EXPECT_EQ(s.transcriptFont.faceName, "DejaVu Sans Mono");
    EXPECT_EQ(s.transcriptFont.height, 12);
    EXPECT_FALSE(s.wordBase.excludeParenthetical);
    EXPECT_EQ(s.transcriptCut.endType, TranscriptCut::ToUtteranceCount);
    EXPECT_EQ(s.transcriptCut.endValue, 50);
    AnalysisSet set;
    set.excludeNonverbal = 0;
    EXPECT_EQ(s.analysisSet, set);
    EXPECT_TRUE(l.prompter.messages.empty());

    // Every known section's lines are kept for its owner; unknown ones are not.
    ASSERT_EQ(s.sectionLines("aset").size(), 2u);
    EXPECT_EQ(s.sectionLines("ASET")[1].subKey, "INCLUDENONV");
    EXPECT_TRUE(s.sectionLines("UNKNOWN").empty());
    EXPECT_EQ(s.userSections.count("SPNOSHOWX"), 0u);

    l.settings.replaceSectionLines("aset", {"ASET EXCLUDEIMIT"});
    ASSERT_EQ(s.sectionLines("ASET").size(), 1u);
    EXPECT_EQ(s.sectionLines("ASET")[0].subKey, "EXCLUDEIMIT");

    l.user("PDFPRINTERNAME PDF Writer");
    EXPECT_EQ(l.settings.pdfPrinterName, "PDF Writer");
    l.user("PDFPRINTERNAME n/a");
    EXPECT_EQ(l.settings.pdfPrinterName, "");
}

TEST(UserLevelFile, ForeignFileWithoutByteOrderMarkIsRead) {
    Loader l;
    l.user(test::readTestData("legacy_cp1252_crlf.ini"));
    const Settings& s = l.settings;
    EXPECT_EQ(s.pdfPrinterName, "");
    EXPECT_EQ(s.language.otherName, "Fran\xC3\xA7"
                                    "ais");
    EXPECT_EQ(s.movingAverageWindow, 50);
    EXPECT_FALSE(s.timingLines.ignorePlus);
    EXPECT_EQ(s.analysisSet.excludeCodes, "[EW], [OM]");
    EXPECT_EQ(s.upperLowerChars, std::vector<std::string>{"\xC3\x89\xC3\xA9"});
    ASSERT_EQ(s.sectionLines("BATCH").size(), 2u);
    EXPECT_EQ(s.sectionLines("BATCH")[1].text, "batch XTEXT_YES");
    EXPECT_TRUE(l.prompter.messages.empty());
}

TEST(UserLevelFile, FoldersRelativeAbsoluteAndRefused) {
    Loader l;
    const std::string base = l.folder.folder();
    l.folder.write("Data/keep", "");
    l.folder.write("Reports/keep", "");
    l.settings.folders.transcript = base + "Reports/";
    // Lower-case keyword, relative value: below the folder of the settings file.
    l.user("backupdir Data\nREPORTDIR " + base + "Reports\\\nLISTDIR " + base +
           "Missing\n"
           "TRANDIR Nowhere\nDBASEDIR\n");
    const SettingsFolders& f = l.settings.folders;
    EXPECT_EQ(f.backup, base + "Data/");
    EXPECT_EQ(f.report, base + "Reports/");
    EXPECT_EQ(f.list, base);
    EXPECT_EQ(f.database, base);
    EXPECT_EQ(
        l.prompter.messages,
        (std::vector<std::string>{
            "Problem with default word & code list folder " + base + "Missing - using " + base,
            "Problem with default transcript folder Nowhere - using " + base + "Reports/"}));
}

TEST(ProgramLevelFile, FoldersCustomizeAndFonts) {
    Loader l;
    const std::string base = l.folder.folder();
    l.folder.write("db/keep", "");
    l.program("DBASEDIR db\nALTDBASEDIR /no/such/tavi/folder\nHASHFILEDIR rif\n"
              "INIDIR setup/here\nINIDIR " +
              base +
              "ini\n"
              "CUSTOMIZEPROMPT yes\nPDFPRINTERNAME Any Name\nPRTREPTFONT WEIGHT 700\n"
              "BACKUP 100\n");
    const Settings& s = l.settings;
    EXPECT_EQ(s.folders.database, base + "db/");
    EXPECT_EQ(s.folders.altDatabase, base);
    EXPECT_EQ(s.folders.setup, base + "ini/"); // absolute setup folder created
    EXPECT_TRUE(std::filesystem::is_directory(base + "ini"));
    EXPECT_TRUE(s.customizeAllowed);
    EXPECT_EQ(s.pdfPrinterName, "Any Name");
    EXPECT_EQ(s.printFont.weight, 700);
    EXPECT_FALSE(s.backupOn()); // not a program-level keyword
    const std::string file = base + "TAVI_SYS.ini";
    EXPECT_EQ(
        l.prompter.messages,
        (std::vector<std::string>{
            "Problem with alternate database folder /no/such/tavi/folder specified in " + file,
            "Problem with RIF folder rif specified in " + file,
            "Problem with user-level setup folder setup/here specified in " + file}));

    l.program("CUSTOMIZEPROMPT 1\nPDFPRINTERNAME N/A");
    EXPECT_FALSE(l.settings.customizeAllowed);
    EXPECT_EQ(l.settings.pdfPrinterName, "");
}

TEST(FolderResolution, EveryStepOfTheRule) {
    test::TempFolder t;
    const std::string base = t.folder() + "base/";
    const std::string current = t.folder() + "current/";
    t.write("base/Here/keep", "");
    t.write("current/Below/keep", "");
    test::RecordingPrompter p;
    auto resolve = [&](std::string_view value, bool create = false) {
        return resolveFolder(value, current, base, create, "refused", p);
    };
    EXPECT_EQ(resolve("  ").folder, current);               // empty keeps the folder
    EXPECT_EQ(resolve("Here").folder, base + "Here/");      // relative below the base
    EXPECT_EQ(resolve("Below").folder, current + "Below/"); // then below the current folder
    EXPECT_EQ(resolve("./Here/../Here").folder, base + "Here/");
    EXPECT_EQ(resolve(t.folder() + "base\\Here").folder, base + "Here/");
    EXPECT_TRUE(p.messages.empty());

    FolderResolution missing = resolve("Gone");
    EXPECT_TRUE(missing.rejected);
    EXPECT_EQ(missing.folder, current);
    FolderResolution absent = resolve(t.folder() + "absent");
    EXPECT_TRUE(absent.rejected);
    EXPECT_FALSE(std::filesystem::exists(t.folder() + "absent"));
    FolderResolution relativeNotCreated = resolve("NotMade", true);
    EXPECT_TRUE(relativeNotCreated.rejected);
    EXPECT_EQ(p.messages, (std::vector<std::string>{"refused", "refused", "refused"}));

    p.messages.clear();
    EXPECT_EQ(resolve(t.folder() + "made/deep", true).folder, t.folder() + "made/deep/");
    t.write("file", "x");
    FolderResolution cannot = resolve(t.folder() + "file/sub", true);
    EXPECT_TRUE(cannot.rejected);
    EXPECT_EQ(p.messages,
              (std::vector<std::string>{"Error creating folder " + t.folder() + "file/sub/"}));

    EXPECT_TRUE(isAbsoluteFolderValue("C:\\TAVI"));
    EXPECT_TRUE(isAbsoluteFolderValue("\\share"));
    EXPECT_FALSE(isAbsoluteFolderValue("Data/Sub"));
    EXPECT_EQ(folderText("a\\b"), "a/b/");
    EXPECT_EQ(folderText(""), "");
}

} // namespace
} // namespace tavi
