// Saving a section as the program default: order of the rewritten file,
// the questions and refusals, and the result messages.
#include <gtest/gtest.h>

#include "settings/section_lines.h"
#include "settings/section_save.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

SectionSaveRequest asetRequest(const std::filesystem::path& file, const AnalysisSet& set) {
    SectionSaveRequest request;
    request.file = file;
    request.keyword = "ASET";
    request.lines = analysisSetLines(set);
    request.question = kSaveAnalysisSetQuestion;
    request.savingAllowed = true;
    return request;
}

TEST(SectionSave, NewSectionFirstOthersInOldOrderWhenSavedTwice) {
    test::TempFolder folder;
    std::filesystem::path file = folder.write("TAVI.ini", test::readTestData("present_tavi.ini"));

    AnalysisSet first;
    first.excludeImitations = 1;
    first.excludeCodes = "[EW]";
    test::RecordingPrompter prompter;
    ASSERT_EQ(saveSection(asetRequest(file, first), prompter), SaveOutcome::Saved);

    AnalysisSet second;
    second.excludeIncomplete = 0;
    second.excludeOneWord = 1;
    second.includeOnly = 1;
    second.includeCodes = "[X], [Y]";
    ASSERT_EQ(saveSection(asetRequest(file, second), prompter), SaveOutcome::Saved);

    EXPECT_EQ(folder.read("TAVI.ini"), test::readTestData("aset_saved_twice.ini"));
    const std::string saved = "Settings saved in " + file.string();
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{std::string(kSaveAnalysisSetQuestion), saved,
                                        std::string(kSaveAnalysisSetQuestion), saved}));
    // No temporary file is left beside it.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST(SectionSave, MissingFileAndFolderAreCreated) {
    test::TempFolder folder;
    std::filesystem::path file = folder.path() / "setup" / "TAVI.ini";
    SectionSaveRequest request;
    request.file = file;
    request.keyword = "MATTRSET";
    request.lines = {"MATTRSET WINDOW 50"};
    request.savedMessage = kListSavedIn;
    request.savingAllowed = true;
    test::RecordingPrompter prompter;
    EXPECT_EQ(saveSection(request, prompter), SaveOutcome::Saved);
    EXPECT_EQ(folder.read("setup/TAVI.ini"), "\xEF\xBB\xBFMATTRSET WINDOW 50\n");
    EXPECT_EQ(prompter.messages.back(), "List and settings saved in " + file.string());
}

TEST(SectionSave, RefusalsLeaveTheFileAlone) {
    test::TempFolder folder;
    const std::string present = "\xEF\xBB\xBF"
                                "ASET INCLUDEINC\n";
    std::filesystem::path file = folder.write("TAVI.ini", present);
    SectionSaveRequest request = asetRequest(file, AnalysisSet{});

    request.savingAllowed = false;
    test::RecordingPrompter refused;
    EXPECT_EQ(saveSection(request, refused), SaveOutcome::NotAllowed);
    EXPECT_EQ(refused.messages,
              (std::vector<std::string>{"Default settings cannot be saved on this computer."}));

    request.savingAllowed = true;
    for (Answer answer : {Answer::No, Answer::Cancel}) {
        test::RecordingPrompter declined;
        declined.answers = {answer};
        EXPECT_EQ(saveSection(request, declined), SaveOutcome::NotAnswered);
        EXPECT_EQ(declined.messages.size(), 1u);
    }

    test::RecordingPrompter invalid;
    request.validate = [&invalid] {
        invalid.inform("Error: illegal code specification (save cancelled)");
        return false;
    };
    EXPECT_EQ(saveSection(request, invalid), SaveOutcome::Invalid);
    EXPECT_EQ(invalid.messages.back(), "Error: illegal code specification (save cancelled)");
    EXPECT_EQ(folder.read("TAVI.ini"), present);

    // A file where the folder should be: the file cannot be created.
    SectionSaveRequest blocked = asetRequest(folder.path() / "TAVI.ini" / "TAVI.ini", {});
    test::RecordingPrompter cannot;
    EXPECT_EQ(saveSection(blocked, cannot), SaveOutcome::CannotWrite);
    EXPECT_EQ(cannot.messages.back(), "Cannot write to " + blocked.file.string() + " (not saved)");
}

TEST(SectionSave, MergeTrimsOnTheLeftAndComparesKeywordsWithoutCase) {
    std::vector<std::string> merged = mergedSectionLines(
        "  tcut FROMTYPE 1\r\n\r\n  \tDIST WORD  \rTCUTX 1\nTCUT\n", "TCUT", {"TCUT FROMTYPE 0"});
    EXPECT_EQ(merged, (std::vector<std::string>{"TCUT FROMTYPE 0", "DIST WORD  ", "TCUTX 1"}));
}

} // namespace
} // namespace tavi
