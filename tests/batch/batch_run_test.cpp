// A batch over real transcripts: rows in list order, the same values as the
// single-transcript measures, the system's messages for unreadable and
// erroneous transcripts, and the same rows whatever the number of threads.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/progress.h"
#include "batch/batch_columns.h"
#include "batch/batch_run.h"
#include "reports/grid_writer.h"
#include "support/recording_prompter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

fs::path data(const char* name) {
    return fs::path(TAVI_TEST_DATA_DIR) / "batch" / name;
}

BatchRunOptions optionsWith(std::initializer_list<const char*> names) {
    BatchRunOptions options;
    const VariableCatalogue& c = VariableCatalogue::standard();
    for (const char* name : names)
        chooseVariable(options.selections, c, c.find(name).front());
    return options;
}

int column(const Grid& g, const std::string& heading) {
    for (size_t i = 0; i < g.columns.size(); ++i)
        if (g.columns[i].heading == heading)
            return static_cast<int>(i);
    return -1;
}

class CountingProgress final : public Progress {
public:
    int total = -1, steps = 0, finished = 0;
    void start(int t, std::string_view) override { total = t; }
    void step() override { ++steps; }
    void finish() override { ++finished; }
};

TEST(BatchRun, RowsInOrderWithMessagesForUnusableTranscripts) {
    BatchRunOptions options = optionsWith({"TotNumUt", "NTW", "MLUw", "CAmm", "Name"});
    options.selections.plusList = {"Story"};
    std::vector<fs::path> files = {data("park.tvi"), data("missing.tvi"), data("broken.tvi"),
                                   data("corrupt.tvi"), data("zoo.tvi")};
    test::RecordingPrompter prompter;
    prompter.answers = {Answer::No};
    CountingProgress progress;
    std::optional<BatchResult> result = runBatch(files, options, prompter, progress);
    ASSERT_TRUE(result);
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{data("missing.tvi").string() + " could not be opened",
                                        data("broken.tvi").string() +
                                            " contains errors. Would you like it included?",
                                        data("corrupt.tvi").string() + " corrupted"}));
    EXPECT_EQ(progress.total, 5);
    EXPECT_EQ(progress.steps, 5);
    EXPECT_EQ(progress.finished, 1);
    EXPECT_EQ(result->transcripts, 2);
    EXPECT_EQ(result->leftOut, 3);
    EXPECT_EQ(result->data.title, "RDF");

    const Grid& g = result->data;
    ASSERT_EQ(g.rows.size(), 2u);
    EXPECT_EQ(g.rows[0][column(g, "Filename")], "park.tvi");
    EXPECT_EQ(g.rows[1][column(g, "Filename")], "zoo.tvi");
    EXPECT_EQ(g.rows[0][column(g, "Speaker")], "Child");
    EXPECT_EQ(g.rows[0][column(g, "Speaker#")], "1");
    EXPECT_EQ(g.rows[0][column(g, "CAmm")], "74"); // from DOB and DOE
    EXPECT_EQ(g.rows[0][column(g, "Name")], "Sam Lee");
    EXPECT_EQ(g.rows[1][column(g, "Story")], "NA");
    EXPECT_EQ(g.rows[0][column(g, "TotNumUt")], "7");
    EXPECT_EQ(g.rows[1][column(g, "TotNumUt")], "7");
    EXPECT_EQ(g.rows[1][column(g, "NTW")], "48");
    EXPECT_EQ(g.rows[1][column(g, "MLUw")], "6.86");

    // The header value holding a comma and quotes is quoted, quotes not doubled.
    std::string bytes = gridFileBytes(g, ',');
    EXPECT_NE(bytes.find(",\"Park, \"swings\"\","), std::string::npos) << bytes;

    ASSERT_EQ(result->key.columns.size(), 3u);
    EXPECT_EQ(result->key.columns[1].heading, "Description");
    EXPECT_EQ(result->key.columns[1].width, 500);
    EXPECT_EQ(result->key.rows.size(), g.columns.size());
    EXPECT_EQ(result->key.rows[0],
              (std::vector<std::string>{"Filename", "Filename", "General Information"}));
}

// Every measure of the catalogue, for both speakers, equals what the single
// transcript's measure record holds.
TEST(BatchRun, RowsMatchTheSingleTranscriptMeasures) {
    BatchRunOptions options;
    chooseAllVariables(options.selections, VariableCatalogue::standard());
    options.selections.speaker = BatchSelections::kBothSpeakers;
    std::vector<fs::path> files = {data("zoo.tvi"), data("park.tvi")};
    test::RecordingPrompter prompter;
    NoProgress progress;
    std::optional<BatchResult> result = runBatch(files, options, prompter, progress);
    ASSERT_TRUE(result);
    ASSERT_EQ(result->data.rows.size(), 4u);
    std::vector<BatchColumn> columns =
        batchColumns(options.selections, VariableCatalogue::standard());
    for (size_t f = 0; f < files.size(); ++f) {
        CheckOptions check;
        check.keepSegmentation = true;
        CheckResult checked = checkTranscript(loadTranscript(files[f]).lines, check);
        MeasureResult single = computeMeasures(checked.segmented, options.analysis.measures);
        for (int speaker = 0; speaker < 2; ++speaker) {
            const std::vector<std::string>& row = result->data.rows[f * 2 + speaker];
            EXPECT_EQ(row[1], std::to_string(speaker + 1));
            for (size_t c = 0; c < columns.size(); ++c) {
                if (columns[c].variable < 0)
                    continue;
                const BatchVariable& v =
                    VariableCatalogue::standard().variable(columns[c].variable);
                if (v.source != ValueSource::Measure)
                    continue;
                const Value* value = single.speakers[speaker].find(v.measure);
                // A scoring-template column of a template the transcript
                // does not hold is empty.
                const Value missing;
                if (!value && !measureIdByName(v.measure))
                    value = &missing;
                ASSERT_NE(value, nullptr) << v.name;
                EXPECT_EQ(row[c], batchValueText(*value, v, options.selections))
                    << files[f] << " speaker " << speaker << " " << v.name;
            }
        }
    }
}

TEST(BatchRun, SameRowsWithOneThreadAndMany) {
    std::vector<fs::path> files;
    for (int i = 0; i < 40; ++i)
        files.push_back(data(i % 3 == 0 ? "zoo.tvi" : i % 3 == 1 ? "park.tvi" : "broken.tvi"));
    BatchRunOptions options;
    chooseAllVariables(options.selections, VariableCatalogue::standard());
    std::vector<Grid> grids;
    std::vector<std::vector<std::string>> messages;
    for (unsigned threads : {1u, 4u, 7u}) {
        options.threads = threads;
        test::RecordingPrompter prompter;
        for (int i = 0; i < 40; ++i)
            prompter.answers.push_back(i % 2 ? Answer::Yes : Answer::No);
        NoProgress progress;
        std::optional<BatchResult> result = runBatch(files, options, prompter, progress);
        ASSERT_TRUE(result);
        grids.push_back(result->data);
        messages.push_back(prompter.messages);
    }
    for (size_t i = 1; i < grids.size(); ++i) {
        EXPECT_EQ(grids[i].rows, grids[0].rows);
        EXPECT_EQ(messages[i], messages[0]);
    }
}

// A progress whose Cancel is pressed after `after` steps.
class CancellingProgress final : public Progress {
public:
    explicit CancellingProgress(int after) : after_(after) {}
    int steps = 0;
    void start(int, std::string_view) override {}
    void step() override { ++steps; }
    void finish() override {}
    bool cancelled() override { return steps >= after_; }

private:
    int after_;
};

TEST(BatchRun, CancelledProgressStopsTheRunWithNothing) {
    BatchRunOptions options = optionsWith({"MLUw"});
    std::vector<fs::path> files = {data("park.tvi"), data("zoo.tvi"), data("park.tvi")};
    test::RecordingPrompter prompter;
    CancellingProgress progress(1);
    EXPECT_FALSE(runBatch(files, options, prompter, progress));
    EXPECT_EQ(progress.steps, 1);
    CancellingProgress never(100);
    EXPECT_TRUE(runBatch(files, options, prompter, never));
}

TEST(BatchRun, NothingToRun) {
    test::RecordingPrompter prompter;
    NoProgress progress;
    BatchRunOptions options = optionsWith({"MLUw"});
    EXPECT_FALSE(runBatch({}, options, prompter, progress));
    options.selections = BatchSelections::empty();
    options.selections.missingText = options.selections.missingInteger =
        options.selections.missingDecimal = "0";
    EXPECT_FALSE(runBatch({data("zoo.tvi")}, options, prompter, progress));
    options.selections.missingInteger = "1.5";
    EXPECT_FALSE(runBatch({data("zoo.tvi")}, options, prompter, progress));
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{
                  "No transcripts selected", "No variables selected",
                  "'Missing integer value' must be a whole number (not a decimal)"}));
}

TEST(BatchRun, CancelStopsTheRunAndMissingCutMarkersAreAsked) {
    BatchRunOptions options = optionsWith({"TotNumUt"});
    options.analysis.measures.cut.startType = TranscriptCut::FromCode;
    options.analysis.measures.cut.startCode = "START";
    test::RecordingPrompter prompter;
    prompter.answers = {Answer::No, Answer::Cancel};
    NoProgress progress;
    EXPECT_FALSE(runBatch({data("zoo.tvi"), data("park.tvi"), data("zoo.tvi")}, options, prompter,
                          progress));
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{
                  data("zoo.tvi").string() +
                      " - begin cut marker not found. Would you like this transcript included?",
                  data("park.tvi").string() +
                      " - begin cut marker not found. Would you like this transcript included?"}));
}

} // namespace
} // namespace tavi
