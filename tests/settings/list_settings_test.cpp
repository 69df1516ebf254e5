// The sections of the list editors and of the timing-line, default-database
// and SI code dialogs: what a dialog saves is what the next start-up loads,
// saving twice leaves one group at the top of TAVI.ini, and the user's word
// lists in TAVI_SWL.ini replace the program's.
#include <gtest/gtest.h>

#include "base/text.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"
#include "settings/settings.h"
#include "settings/startup.h"
#include "settings/word_list_settings.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

struct Saver {
    test::TempFolder folder;
    test::RecordingPrompter prompter;
    std::filesystem::path file = folder.write("TAVI.ini", "ASET EXCLUDEIMIT\n"
                                                          "CURINSCODELIST 3 [OLD]\n"
                                                          "PCSD INCLUDE_YES\n"
                                                          "MATTRSET WINDOW 50\n");

    SaveOutcome save(std::string keyword, std::vector<std::string> lines,
                     std::vector<std::string> alsoReplaced = {}) {
        SectionSaveRequest request;
        request.file = file;
        request.keyword = std::move(keyword);
        request.lines = std::move(lines);
        request.question = kSaveListQuestion;
        request.savedMessage = kListSavedIn;
        request.savingAllowed = true;
        return saveSections(request, alsoReplaced, prompter);
    }
    // The file as the next start-up reads it.
    Settings load() {
        Settings settings = defaultSettings(folder.folder(), folder.folder(), folder.folder(), {});
        applyUserLevelLines(*readKeywordFile(file), file.string(), {}, settings, prompter);
        return settings;
    }
    std::vector<std::string> lines() { return keywordTextLines(folder.read("TAVI.ini")); }
};

TEST(ListSettings, NumberedAndPlainListsRoundTripAndStayOneGroup) {
    Saver s;
    const std::map<int, std::string> codes{{0, "[EW] error at word level [EO]"}, {16, "[X]"}};
    const std::map<int, std::string> titles{{0, "Errors"}, {16, "Last"}, {5, "  "}};
    auto saveCodes = [&] {
        std::vector<std::string> lines = numberedListLines("CURINSCODELIST", codes);
        for (std::string& line : numberedListLines("CURINSCODELISTTITLE", titles))
            lines.push_back(std::move(line));
        return s.save("CURINSCODELIST", lines, {"CURINSCODELISTTITLE"});
    };
    ASSERT_EQ(saveCodes(), SaveOutcome::Saved);
    ASSERT_EQ(saveCodes(), SaveOutcome::Saved);
    const std::vector<std::string> expectedTop{"CURINSCODELIST REMOVEALL",
                                               "CURINSCODELIST 0 [EW] error at word level [EO]",
                                               "CURINSCODELIST 16 [X]",
                                               "CURINSCODELISTTITLE REMOVEALL",
                                               "CURINSCODELISTTITLE 0 Errors",
                                               "CURINSCODELISTTITLE 16 Last",
                                               "ASET EXCLUDEIMIT",
                                               "PCSD INCLUDE_YES",
                                               "MATTRSET WINDOW 50"};
    EXPECT_EQ(s.lines(), expectedTop);
    Settings loaded = s.load();
    EXPECT_EQ(loaded.insertCodeLists, codes); // the old entry 3 is gone
    EXPECT_EQ(loaded.insertCodeListTitles,
              (std::map<int, std::string>{{0, "Errors"}, {16, "Last"}}));

    const std::vector<std::string> symbols{"\xC2\xB1\tplus or minus", " ", "@"};
    ASSERT_EQ(s.save("CURSYMBOLLIST", listLines("CURSYMBOLLIST", symbols)), SaveOutcome::Saved);
    ASSERT_EQ(s.save("CURSYMBOLLIST", listLines("CURSYMBOLLIST", symbols)), SaveOutcome::Saved);
    EXPECT_EQ(s.lines().front(), "CURSYMBOLLIST REMOVEALL");
    EXPECT_EQ(s.load().symbolList, (std::vector<std::string>{"\xC2\xB1\tplus or minus", "@"}));
    EXPECT_EQ(s.load().insertCodeLists, codes);

    // An entry number beyond the list's limit is refused on loading.
    s.folder.write("TAVI.ini", "CURINSTEXT 10 too far\nCURINSTEXT 9 last\nCURINSTITLE 0 T\n");
    loaded = s.load();
    EXPECT_EQ(loaded.insertTexts, (std::map<int, std::string>{{9, "last"}}));
    EXPECT_EQ(loaded.insertTitles, (std::map<int, std::string>{{0, "T"}}));
}

TEST(ListSettings, TimingDefaultDatabaseAndSiCodeSettingsRoundTrip) {
    Saver s;
    const TimingLineFlags flags{false, true, false};
    ASSERT_EQ(s.save("TIMINGLINES", timingLineLines(flags)), SaveOutcome::Saved);
    ASSERT_EQ(s.save("TIMINGLINES", timingLineLines(flags)), SaveOutcome::Saved);
    EXPECT_EQ(s.load().timingLines, flags);
    EXPECT_EQ(s.lines().at(3), "ASET EXCLUDEIMIT");

    auto saveDatabase = [&](const std::string& name, const std::string& path, bool include) {
        return s.save("DEFDBNAME", defaultDatabaseLines(name, path, include),
                      {"DEFDBPATH", "PCSD"});
    };
    ASSERT_EQ(saveDatabase("Narrative Story Retell.tvidb", "/data/db/", false), SaveOutcome::Saved);
    ASSERT_EQ(saveDatabase("Conversation.tvidb", "/data/db two/", false), SaveOutcome::Saved);
    Settings loaded = s.load();
    EXPECT_EQ(loaded.databaseDefaults.at("DEFDBNAME"), "Conversation.tvidb");
    EXPECT_EQ(loaded.databaseDefaults.at("DEFDBPATH"), "/data/db two/");
    EXPECT_FALSE(loaded.pcsdInclude); // the old "PCSD INCLUDE_YES" is replaced
    EXPECT_EQ(loaded.timingLines, flags);
    const std::vector<std::string> saved = s.lines();
    EXPECT_EQ(std::vector<std::string>(saved.begin(), saved.begin() + 3),
              (std::vector<std::string>{"DEFDBNAME Conversation.tvidb", "DEFDBPATH /data/db two/",
                                        "PCSD INCLUDE_NO"}));
    // No default database: the name and path lines go away.
    ASSERT_EQ(saveDatabase("", "", true), SaveOutcome::Saved);
    loaded = s.load();
    EXPECT_FALSE(loaded.databaseDefaults.contains("DEFDBNAME"));
    EXPECT_FALSE(loaded.databaseDefaults.contains("DEFDBPATH"));
    EXPECT_TRUE(loaded.pcsdInclude);

    ASSERT_EQ(s.save("SICODESET", siCodeSetLines(1)), SaveOutcome::Saved);
    EXPECT_EQ(s.lines().front(), "SICODESET SPEAKER 2");
    EXPECT_EQ(s.load().siCodeSpeaker, 1);
    ASSERT_EQ(s.save("SICODESET", siCodeSetLines(0)), SaveOutcome::Saved);
    EXPECT_EQ(s.load().siCodeSpeaker, 0);
    s.folder.write("TAVI.ini", "SICODESET SPEAKER 2\nSICODESET SPEAKER 3\nSICODESET OTHER 1\n");
    EXPECT_EQ(s.load().siCodeSpeaker, 1);
}

TEST(WordListSettings, SavedListsReplaceTheProgramsAtTheNextStart) {
    test::TempFolder root;
    root.write("shared/TaviSWL.txt", "P_QUES what\nP_NEG not\n");
    root.write("user/TAVI_SWL.ini", "SWLLANG 1\n");
    StartupEnvironment env;
    env.dataGroup = root.folder() + "shared";
    env.dataUser = root.folder() + "user";
    env.home = root.folder() + "home";
    env.currentDir = root.path();
    env.sourceDataDir = root.folder() + "no-source";
    env.installDataDir = root.folder() + "no-install";
    env.prepareDocumentsFolder = false;
    test::RecordingPrompter prompter;
    LoadedSettings first = loadSettings(env, prompter);
    ASSERT_TRUE(first.ok);
    Settings& settings = first.settings;
    // Nothing of the user's yet: the program's lists are in force.
    EXPECT_EQ(wordListLinesInForce(settings), settings.standardWordListLines);

    WordListSettings lists = parseWordListSettings(settings.swlSettingsLines);
    EXPECT_EQ(lists.otherLines, std::vector<std::string>{"SWLLANG 1"});
    EXPECT_EQ(wordListTitle(lists, 0, 13), "Extra List 1");
    lists.entries = {"P_QUES what", "P_QUES why", "A1_EXTRA2 bonjour", "P_SAUX $ have to"};
    lists.titles["P_EXTRA1"] = "Feelings";
    lists.titles["O_FPAUSE"] = " ";

    settings.customizeAllowed = false;
    EXPECT_EQ(saveWordListSettings(lists, settings, prompter), SaveOutcome::NotAllowed);
    settings.customizeAllowed = true;
    prompter.answers = {Answer::No};
    EXPECT_EQ(saveWordListSettings(lists, settings, prompter), SaveOutcome::NotAnswered);
    EXPECT_EQ(root.read("user/TAVI_SWL.ini"), "SWLLANG 1\n");
    ASSERT_EQ(saveWordListSettings(lists, settings, prompter), SaveOutcome::Saved);
    ASSERT_EQ(saveWordListSettings(lists, settings, prompter), SaveOutcome::Saved);
    const std::string path = root.folder() + "user/TAVI_SWL.ini";
    EXPECT_EQ(prompter.messages.back(), "List and settings saved in " + path);
    EXPECT_EQ(root.read("user/TAVI_SWL.ini"), "\xEF\xBB\xBFSWLLANG 1\n"
                                              "TITLE P_EXTRA1 Feelings\n"
                                              "P_QUES what\n"
                                              "P_QUES why\n"
                                              "A1_EXTRA2 bonjour\n"
                                              "P_SAUX $ have to\n");

    LoadedSettings second = loadSettings(env, prompter);
    WordListSettings read = parseWordListSettings(second.settings.swlSettingsLines);
    lists.titles.erase("O_FPAUSE");
    EXPECT_EQ(read, lists);
    EXPECT_EQ(wordListTitle(read, 0, 13), "Feelings");
    EXPECT_TRUE(wordListsAvailable(second.settings));
    EXPECT_EQ(wordListLinesInForce(second.settings), second.settings.swlSettingsLines);

    // Without the program's file the user's lists still stand.
    std::filesystem::remove(root.path() / "shared/TaviSWL.txt");
    EXPECT_TRUE(wordListsAvailable(loadSettings(env, prompter).settings));
}

} // namespace
} // namespace tavi
