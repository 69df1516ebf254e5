// Saving settings for every user: the rewritten program-level file, the
// question, and the refusal when the file cannot be written.
#include <gtest/gtest.h>

#include "settings/keyword_file.h"
#include "settings/program_save.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

TEST(ProgramSave, NewLinesFirstOtherLinesKeptAndReadBack) {
    test::TempFolder folder;
    const std::filesystem::path file = folder.write("TAVI_SYS.ini", "CUSTOMIZEPROMPT YES\r\n"
                                                                    "  TRANDIR old/transcripts\r\n"
                                                                    "\r\n"
                                                                    "DISPTRANFONT HEIGHT 12\r\n"
                                                                    "trandir older\r\n"
                                                                    "PDFPRINTERNAME Lab PDF\r\n");
    test::RecordingPrompter prompter;
    ProgramSaveRequest request{file,
                               {"TRANDIR", "CUSTOMIZEPROMPT"},
                               {"TRANDIR /srv/lab/transcripts/", "CUSTOMIZEPROMPT NO"}};
    ASSERT_EQ(saveProgramSection(request, prompter), SaveOutcome::Saved);
    EXPECT_EQ(folder.read("TAVI_SYS.ini"), "\xEF\xBB\xBF"
                                           "TRANDIR /srv/lab/transcripts/\n"
                                           "CUSTOMIZEPROMPT NO\n"
                                           "DISPTRANFONT HEIGHT 12\n"
                                           "PDFPRINTERNAME Lab PDF\n");
    EXPECT_EQ(prompter.messages, (std::vector<std::string>{std::string(kSaveProgramQuestion),
                                                           "Settings saved in " + file.string()}));
    // The loader's reading of the same file.
    const auto lines = readKeywordFile(file);
    ASSERT_TRUE(lines);
    ASSERT_EQ(lines->size(), 4u);
    EXPECT_EQ((*lines)[0].value, "/srv/lab/transcripts/");

    // A missing file is created with its folder.
    const std::filesystem::path fresh = folder.path() / "etc" / "TAVI_SYS.ini";
    ASSERT_EQ(saveProgramSection({fresh, {"INIDIR"}, {"INIDIR /home/shared/"}}, prompter),
              SaveOutcome::Saved);
    EXPECT_EQ(folder.read("etc/TAVI_SYS.ini"), "\xEF\xBB\xBF"
                                               "INIDIR /home/shared/\n");
}

TEST(ProgramSave, AnswerOtherThanYesOrUnwritableFileSavesNothing) {
    test::TempFolder folder;
    const std::filesystem::path file = folder.write("TAVI_SYS.ini", "BATCHDIR batch\n");
    test::RecordingPrompter prompter;
    prompter.answers = {Answer::No, Answer::Cancel};
    ProgramSaveRequest request{file, {"BATCHDIR"}, {"BATCHDIR /tmp/"}};
    EXPECT_EQ(saveProgramSection(request, prompter), SaveOutcome::NotAnswered);
    EXPECT_EQ(saveProgramSection(request, prompter), SaveOutcome::NotAnswered);
    EXPECT_EQ(folder.read("TAVI_SYS.ini"), "BATCHDIR batch\n");
    EXPECT_EQ(prompter.messages.size(), 2u);

    // A file whose folder cannot exist (its parent is a file), as an
    // installed /etc/tavi/TAVI_SYS.ini is for a user who is no administrator.
    const std::filesystem::path blocked = folder.path() / "TAVI_SYS.ini" / "TAVI_SYS.ini";
    prompter.messages.clear();
    EXPECT_EQ(saveProgramSection({blocked, {"BATCHDIR"}, {"BATCHDIR /tmp/"}}, prompter),
              SaveOutcome::CannotWrite);
    ASSERT_EQ(prompter.messages.size(), 2u);
    EXPECT_EQ(prompter.messages[1], programCannotSaveMessage(blocked));
    EXPECT_TRUE(prompter.messages[1].starts_with("Default settings cannot be saved on this "
                                                 "computer.\n"));
    EXPECT_NE(prompter.messages[1].find(blocked.string()), std::string::npos);
    EXPECT_NE(prompter.messages[1].find("administrator"), std::string::npos);
}

} // namespace
} // namespace tavi
