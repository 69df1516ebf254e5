// `tavi settings` run as a user runs it: the files, folders and messages it
// prints, with --settings-dir naming the user-level folder.
#include <gtest/gtest.h>

#include <cstdio>
#include <sys/wait.h>

#include "../support/tavi_process.h"
#include "temp_folder.h"

namespace tavi {
namespace {

using test::runShell;
using ShellRun = test::TaviRun;

std::string quoted(const std::string& text) {
    return "'" + text + "'";
}

TEST(TaviSettingsCommand, PrintsFilesFoldersAndMessages) {
    test::TempFolder t;
    t.write("shared/TAVI_SYS.ini", "CUSTOMIZEPROMPT YES\nLISTDIR lists\n");
    t.write("mine/TAVI.ini", "TRANDIR Transcripts\n");
    t.write("mine/Transcripts/keep", "");
    std::string env = "env -u TAVI_DATA_USER TAVI_DATA_GROUP=" + quoted(t.folder() + "shared") +
                      " HOME=" + quoted(t.folder() + "home") +
                      " XDG_DOCUMENTS_DIR=" + quoted(t.folder()) + " ";
    ShellRun run = runShell(env + TAVI_BINARY " --settings-dir " + quoted(t.folder() + "mine") +
                            " settings 2>&1");
    ASSERT_EQ(run.status, 0) << run.out;
    const std::string& out = run.out;
    EXPECT_NE(out.find("Shared data folder: " + t.folder() + "shared/\n"), std::string::npos)
        << out;
    EXPECT_NE(out.find("User-level setup folder: " + t.folder() + "mine/\n"), std::string::npos);
    EXPECT_NE(out.find("program-level settings: " + t.folder() + "shared/TAVI_SYS.ini (read)"),
              std::string::npos);
    EXPECT_NE(out.find("user-level settings: " + t.folder() + "mine/TAVI.ini (read)"),
              std::string::npos);
    EXPECT_NE(out.find("label file: " + t.folder() + "mine/TAVI_Labels.ini (not found"),
              std::string::npos);
    EXPECT_NE(out.find("transcripts: " + t.folder() + "mine/Transcripts/\n"), std::string::npos);
    EXPECT_NE(out.find("Defaults can be saved: yes\n"), std::string::npos);
    EXPECT_NE(out.find("Messages while loading:\n  Problem with Explore list folder lists "
                       "specified in " +
                       t.folder() + "shared/TAVI_SYS.ini\n"),
              std::string::npos)
        << out;
    // `tavi` never creates "My TAVI Data".
    EXPECT_FALSE(std::filesystem::exists(t.folder() + "My TAVI Data"));

    ShellRun bad = runShell(env + TAVI_BINARY " settings extra 2>&1");
    EXPECT_EQ(bad.status, 2);
}

} // namespace
} // namespace tavi
