// Start-up as a whole on a made-up machine: which files are read in which
// order, the folders found, "My TAVI Data", and every start-up message.
#include <gtest/gtest.h>

#include "settings/data_folders.h"
#include "settings/startup.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

struct Machine {
    test::TempFolder root;
    StartupEnvironment env;
    test::RecordingPrompter prompter;

    Machine() {
        root.write("shared/TAVI_SYS.ini", "\xEF\xBB\xBF"
                                          "CUSTOMIZEPROMPT YES\n");
        root.write("home/Documents/keep", "");
        env.dataGroup = root.folder() + "shared";
        env.dataUser = root.folder() + "user";
        env.home = root.folder() + "home";
        env.currentDir = root.path();
        env.sourceDataDir = root.folder() + "no-source";
        env.installDataDir = root.folder() + "no-install";
    }
    std::string at(const std::string& relative) const { return root.folder() + relative; }
    LoadedSettings load() { return loadSettings(env, prompter); }
};

TEST(Startup, ReadsEveryFileInOrderFromItsFolder) {
    Machine m;
    m.root.write("shared/TaviSWL.txt", "P_QUES what\r\n\r\nP_NEG not\r\n");
    m.root.write("shared/TaviSymbols.txt", "[EW]\n");
    m.root.write("user/TAVI.ini", "MATTRSET WINDOW 50\nBACKUPDIR /no/such/backup\n");
    m.root.write("user/TAVI_SWL.ini", "SWLLANG 1\n");
    m.root.write("user/TAVI_Labels.ini", "ALT1 RL_AGE edad\n");
    m.prompter.answers = {Answer::Yes};
    LoadedSettings loaded = m.load();
    ASSERT_TRUE(loaded.ok);
    const Settings& s = loaded.settings;

    std::vector<std::string> order;
    for (const SettingsFileRecord& file : loaded.files) {
        order.push_back(file.path.substr(m.root.folder().size()));
        EXPECT_EQ(file.status, FileStatus::Read) << file.path;
    }
    EXPECT_EQ(order, (std::vector<std::string>{"shared/TaviSymbols.txt", "shared/TaviSWL.txt",
                                               "shared/TAVI_SYS.ini", "user/TAVI.ini",
                                               "user/TAVI_SWL.ini", "user/TAVI_Labels.ini"}));
    EXPECT_EQ(s.folders.sharedData, m.at("shared/"));
    EXPECT_EQ(s.folders.userData, m.at("user/"));
    EXPECT_EQ(s.folders.setup, m.at("user/"));
    EXPECT_EQ(s.folders.documents, m.at("home/Documents/"));
    EXPECT_EQ(s.folders.transcript, m.at("home/Documents/My TAVI Data/"));
    EXPECT_EQ(s.movingAverageWindow, 50);
    EXPECT_EQ(s.standardWordListLines, (std::vector<std::string>{"P_QUES what", "P_NEG not"}));
    EXPECT_EQ(s.symbolFileLines, std::vector<std::string>{"[EW]"});
    EXPECT_EQ(s.swlSettingsLines, std::vector<std::string>{"SWLLANG 1"});
    EXPECT_EQ(s.labels.get(LanguageSlot::Alt1, "RL_AGE"), "edad");
    EXPECT_TRUE(s.canSaveDefaults());
    EXPECT_EQ(m.prompter.messages,
              (std::vector<std::string>{
                  "Would you like to create the folder\n" + m.at("home/Documents/") +
                      "My TAVI Data\nfor easier access to TAVI data files? You should respond "
                      "'Yes' unless you are on a public computer.",
                  "Problem with default backup folder /no/such/backup - using " +
                      m.at("home/Documents/My TAVI Data/")}));
}

TEST(Startup, MissingFilesLeaveDefaultsAndUserFolderIsCreated) {
    Machine m;
    m.env.prepareDocumentsFolder = false;
    m.env.xdgDocumentsDir = m.at("nowhere");
    LoadedSettings loaded = m.load();
    ASSERT_TRUE(loaded.ok);
    EXPECT_TRUE(std::filesystem::is_directory(m.at("user")));
    EXPECT_EQ(loaded.files[3].status, FileStatus::Missing);
    EXPECT_EQ(loaded.settings.analysisSet, AnalysisSet{});
    EXPECT_EQ(loaded.settings.labels, LabelTable{});
    EXPECT_FALSE(loaded.settings.standardWordListFound);
    // The documents folder does not exist, so neither does the backup folder.
    EXPECT_EQ(m.prompter.messages,
              (std::vector<std::string>{"Problem with automatic backup directory - " +
                                        m.at("nowhere/")}));
}

TEST(Startup, SetupFolderFromIniDirUnlessSettingsDirGiven) {
    Machine m;
    m.env.prepareDocumentsFolder = false;
    m.root.write("shared/TAVI_SYS.ini", "INIDIR ../site\nCUSTOMIZEPROMPT YES\n");
    m.root.write("site/TAVI.ini", "MATTRSET WINDOW 20\n");
    m.root.write("mine/TAVI.ini", "MATTRSET WINDOW 30\n");
    EXPECT_EQ(m.load().settings.movingAverageWindow, 20);

    m.env.settingsDir = std::filesystem::path("mine"); // relative to the current folder
    LoadedSettings mine = m.load();
    EXPECT_EQ(mine.settings.folders.userData, m.at("mine/"));
    EXPECT_EQ(mine.settings.folders.setup, m.at("mine/"));
    EXPECT_EQ(mine.settings.movingAverageWindow, 30);

    // A setup folder that is the shared data folder: TAVI.ini is not read.
    m.env.settingsDir.reset();
    m.root.write("shared/TAVI_SYS.ini", "INIDIR " + m.at("shared") + "\n");
    m.root.write("shared/TAVI.ini", "MATTRSET WINDOW 40\n");
    LoadedSettings skipped = m.load();
    EXPECT_EQ(skipped.files[3].status, FileStatus::Skipped);
    EXPECT_EQ(skipped.settings.movingAverageWindow, 100);
    EXPECT_FALSE(skipped.settings.canSaveDefaults()); // no CUSTOMIZEPROMPT YES
    EXPECT_TRUE(m.prompter.messages.empty());
}

TEST(Startup, NotInstalledWhenNoDataFolderIsFound) {
    Machine m;
    m.env.dataGroup.reset();
    LoadedSettings loaded = m.load();
    EXPECT_FALSE(loaded.ok);
    EXPECT_EQ(m.prompter.messages,
              std::vector<std::string>{"TAVI " TAVI_VERSION
                                       " has not been installed and cannot be run from this "
                                       "executable."});

    // The source tree's data folder serves a build tree.
    m.prompter.messages.clear();
    m.env.sourceDataDir = m.at("shared");
    m.env.prepareDocumentsFolder = false;
    EXPECT_EQ(m.load().settings.folders.sharedData, m.at("shared/"));
    // An installed share/tavi beside the program comes first.
    m.root.write("prefix/share/tavi/TAVI_SYS.ini", "");
    m.env.executable = m.at("prefix/bin/tavi");
    EXPECT_EQ(m.load().settings.folders.sharedData, m.at("prefix/share/tavi/"));
}

TEST(Startup, MyTaviDataRenamedOrDeclined) {
    Machine m;
    m.root.write("home/Documents/TAVI/old.tvi", "");
    LoadedSettings renamed = m.load();
    const std::string docs = m.at("home/Documents/");
    EXPECT_TRUE(std::filesystem::exists(docs + "My TAVI Data/old.tvi"));
    EXPECT_EQ(m.prompter.messages,
              std::vector<std::string>{"The folder\n" + docs + "TAVI\nhas been renamed to\n" +
                                       docs + "My TAVI Data\nto be compatible with this release."});
    EXPECT_TRUE(renamed.settings.canSaveDefaults());

    Machine declined;
    declined.prompter.answers = {Answer::No};
    LoadedSettings no = declined.load();
    EXPECT_FALSE(no.settings.canSaveDefaults());
    EXPECT_FALSE(std::filesystem::exists(declined.at("home/Documents/My TAVI Data")));
    EXPECT_EQ(no.settings.folders.transcript, declined.at("home/Documents/"));
}

// An installed program reads the program-level file from the installation's
// configuration folder first; relative folders in it stay below the shared
// data folder, which is never written to.
TEST(Startup, InstalledProgramReadsItsConfigurationFolderFirst) {
    Machine m;
    m.env.prepareDocumentsFolder = false;
    m.env.dataGroup.reset();
    m.env.executable = m.at("prefix/bin/tavi");
    m.root.write("prefix/share/tavi/TAVI_SYS.ini", "CUSTOMIZEPROMPT NO\n");
    m.root.write("prefix/share/tavi/samples/keep", "");
    m.root.write("prefix/etc/tavi/TAVI_SYS.ini", "CUSTOMIZEPROMPT YES\nDBASEDIR samples\n");
    LoadedSettings installed = m.load();
    EXPECT_EQ(installed.files[2].path, m.at("prefix/etc/tavi/TAVI_SYS.ini"));
    EXPECT_EQ(installed.files[2].status, FileStatus::Read);
    EXPECT_TRUE(installed.settings.customizeAllowed);
    EXPECT_EQ(installed.settings.folders.database, m.at("prefix/share/tavi/samples/"));
    EXPECT_TRUE(m.prompter.messages.empty());

    // Removed by the administrator: the shared data folder's file, if any.
    std::filesystem::remove(m.at("prefix/etc/tavi/TAVI_SYS.ini"));
    LoadedSettings fallback = m.load();
    EXPECT_EQ(fallback.files[2].path, m.at("prefix/share/tavi/TAVI_SYS.ini"));
    EXPECT_FALSE(fallback.settings.customizeAllowed);
    std::filesystem::remove(m.at("prefix/share/tavi/TAVI_SYS.ini"));
    LoadedSettings none = m.load();
    EXPECT_EQ(none.files[2].path, m.at("prefix/etc/tavi/TAVI_SYS.ini"));
    EXPECT_EQ(none.files[2].status, FileStatus::Missing);

    // TAVI_DATA_GROUP names the program folder with its own file.
    m.root.write("prefix/etc/tavi/TAVI_SYS.ini", "CUSTOMIZEPROMPT YES\n");
    m.env.dataGroup = m.at("shared");
    EXPECT_EQ(m.load().files[2].path, m.at("shared/TAVI_SYS.ini"));
}

TEST(Startup, ConfigurationFolderOnlyForAnInstalledLayout) {
    StartupEnvironment env;
    env.currentDir = "/work";
    env.executable = "/usr/bin/tavi";
    EXPECT_EQ(installedConfigFolder(env, "/usr/share/tavi/"), "/etc/tavi/");
    EXPECT_EQ(programSettingsFiles(env, "/usr/share/tavi/"),
              (std::vector<std::string>{"/etc/tavi/TAVI_SYS.ini", "/usr/share/tavi/TAVI_SYS.ini"}));
    env.executable = "/opt/tavi/bin/tavi-gui";
    EXPECT_EQ(installedConfigFolder(env, "/opt/tavi/share/tavi/"), "/opt/tavi/etc/tavi/");
    // A build tree using the source tree's data folder.
    env.executable = "/work/build/bin/tavi";
    EXPECT_EQ(installedConfigFolder(env, "/work/data/"), std::nullopt);
    EXPECT_EQ(programSettingsFiles(env, "/work/data/"),
              std::vector<std::string>{"/work/data/TAVI_SYS.ini"});
    env.executable.clear();
    EXPECT_EQ(installedConfigFolder(env, "/usr/share/tavi/"), std::nullopt);
}

TEST(Startup, UserDataFolderFromTheEnvironmentInOrder) {
    StartupEnvironment env;
    env.currentDir = "/work";
    env.home = "/home/ann";
    EXPECT_EQ(findUserDataFolder(env), "/home/ann/.config/tavi/");
    env.xdgConfigHome = "/cfg";
    EXPECT_EQ(findUserDataFolder(env), "/cfg/tavi/");
    env.dataUser = "here\\tavi";
    EXPECT_EQ(findUserDataFolder(env), "/work/here/tavi/");
    env.settingsDir = std::filesystem::path("/elsewhere");
    EXPECT_EQ(findUserDataFolder(env), "/elsewhere/");
    env.xdgDocumentsDir = "/docs";
    EXPECT_EQ(findDocumentsFolder(env), "/docs/");
}

} // namespace
} // namespace tavi
