// The batch error check lists every transcript's problems in order, counts
// the transcripts and ends with the system's summary sentence; the batch
// defaults go to and come from the "BATCH" section of the settings file.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_io.h"
#include "batch/batch_check.h"
#include "batch/batch_defaults.h"
#include "settings/keyword_file.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

fs::path data(const char* name) {
    return fs::path(TAVI_TEST_DATA_DIR) / "batch" / name;
}

TEST(BatchCheck, ListingInOrderWithCountAndSummary) {
    std::vector<fs::path> files = {data("park.tvi"), data("broken.tvi"), data("missing.tvi")};
    for (unsigned threads : {1u, 3u}) {
        BatchCheckResult r = checkTranscripts(files, CheckOptions{}, threads);
        ASSERT_GE(r.lines.size(), 6u);
        EXPECT_EQ(r.lines.front(), "3 transcripts");
        EXPECT_EQ(r.lines[1], files[0].string());
        EXPECT_EQ(r.lines[2], files[1].string());
        EXPECT_TRUE(r.lines[3].starts_with("E")) << r.lines[3];
        size_t missingAt = r.lines.size() - 3;
        EXPECT_EQ(r.lines[missingAt], files[2].string());
        EXPECT_EQ(r.lines[missingAt + 1], files[2].string() + " could not be opened");
        EXPECT_GT(r.errors, 0);
        EXPECT_EQ(r.unreadable, 1);
        EXPECT_EQ(r.lines.back(),
                  r.errors == 1 ? "1 error found." : std::to_string(r.errors) + " errors found.");
    }
    // The same, transcript by transcript, for the desktop program's report.
    BatchCheckResult byFile = checkTranscripts(files, CheckOptions{}, 2);
    ASSERT_EQ(byFile.files.size(), 3u);
    EXPECT_EQ(byFile.files[1].file, files[1]);
    EXPECT_EQ(byFile.files[1].errors, byFile.errors);
    EXPECT_FALSE(byFile.files[1].problems.empty());
    EXPECT_TRUE(byFile.files[0].read && byFile.files[0].problems.empty());
    EXPECT_FALSE(byFile.files[2].read);
    BatchCheckResult clean = checkTranscripts({data("park.tvi"), data("zoo.tvi")}, {});
    EXPECT_EQ(clean.lines,
              (std::vector<std::string>{"2 transcripts", data("park.tvi").string(),
                                        data("zoo.tvi").string(), "No errors or warnings found."}));
}

TEST(BatchDefaults, SavedFirstInTheSettingsFileAndReadBack) {
    fs::path dir = fs::temp_directory_path() / "tavi_batch_defaults";
    fs::remove_all(dir);
    fs::create_directories(dir);
    Settings settings;
    settings.folders.setup = dir.string() + "/";
    settings.customizeAllowed = true;
    ASSERT_EQ(writeKeywordFile(settings.userSettingsFile(), {"ASET INCLUDEINC", "BATCH SMR 1"}),
              WriteStatus::Ok);

    BatchSelections s;
    s.groups["SMR"] = {11, 12};
    s.missingText = "-";
    test::RecordingPrompter prompter;
    EXPECT_EQ(saveBatchDefaults(s, settings, prompter), SaveOutcome::Saved);
    EXPECT_EQ(
        prompter.messages,
        (std::vector<std::string>{"Would you like to save these settings as the program default?",
                                  "Settings saved in " + settings.userSettingsFile()}));
    std::vector<KeywordLine> lines = *readKeywordFile(settings.userSettingsFile());
    EXPECT_EQ(lines.front().text, "BATCH SPEAKER 1ST");
    EXPECT_EQ(lines.back().text, "ASET INCLUDEINC");

    Settings loaded;
    loaded.userSections["BATCH"] = {};
    for (const KeywordLine& l : lines)
        if (l.keyword == "BATCH")
            loaded.userSections["BATCH"].push_back(l);
    EXPECT_EQ(defaultBatchSelections(loaded), s);
    EXPECT_EQ(defaultBatchSelections(Settings{}), BatchSelections{});

    s.missingDecimal = "x";
    prompter.messages.clear();
    EXPECT_NE(saveBatchDefaults(s, settings, prompter), SaveOutcome::Saved);
    EXPECT_EQ(prompter.messages.back(), "'Missing decimal value' must be numeric");
}

} // namespace
} // namespace tavi
