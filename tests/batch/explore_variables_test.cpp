// The "Explore" group of a batch: the explore options of the selections give
// the columns (selected utterances, then each chosen count per list entry) and
// their values per transcript and speaker, described in the key.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "base/progress.h"
#include "batch/batch_columns.h"
#include "batch/batch_run.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

class NoSteps final : public Progress {
public:
    void start(int, std::string_view) override {}
    void step() override {}
    void finish() override {}
};

TEST(BatchExplore, CountsPerEntryAndSpeakerWithTheirKey) {
    const fs::path dir =
        fs::temp_directory_path() / ("tavi_batch_explore_" + std::to_string(getpid()));
    fs::create_directories(dir);
    const fs::path file = dir / "dogs.tvi";
    std::ofstream(file) << "$ Child, Examiner\n"
                           "E do you have a doggy?\n"    // the examiner says "dog*" first
                           "C I have a dog.\n"           // dog
                           "C my dog/s are big [EU].\n"  // dog/s, [EU]
                           "C (the) the cat is small.\n" // neither
                           "C and the Dog run/3s.\n";    // Dog

    BatchRunOptions options;
    options.selections.general = {true, true, false, false, false, false};
    options.selections.speaker = BatchSelections::kBothSpeakers;
    ExploreOptions& e = options.selections.explore;
    e.selectedUtterances = e.occurrences = e.utterances = e.differentForms = e.differentWords =
        e.presence = e.mentionedFirst = true;
    e.lengthFrom = 4; // the selected utterances: four words or more
    e.wordList = {{false, "dog*"}, {true, "EU"}};

    test::RecordingPrompter prompter;
    NoSteps progress;
    std::optional<BatchResult> result = runBatch({file}, options, prompter, progress);
    ASSERT_TRUE(result);
    const std::vector<std::string> headings = [&] {
        std::vector<std::string> h;
        for (const GridColumn& c : result->data.columns)
            h.push_back(c.heading);
        return h;
    }();
    EXPECT_EQ(headings, (std::vector<std::string>{
                            "Filename", "Speaker#", "ExplSelUtts", "dog*_Occ", "dog*_Utt",
                            "dog*_Forms", "dog*_Words", "dog*_Pres", "dog*_First", "[EU]_Occ",
                            "[EU]_Utt", "[EU]_Forms", "[EU]_Words", "[EU]_Pres", "[EU]_First"}));
    ASSERT_EQ(result->data.rows.size(), 2u);
    // Every utterance has four words or more, so all are selected and the items
    // are counted over all; "dog" and "Dog" are one form. The examiner said
    // "doggy" first.
    EXPECT_EQ(result->data.rows[0],
              (std::vector<std::string>{"dogs.tvi", "1", "4", "3", "3", "2", "1", "1", "0", "1",
                                        "1", "1", "1", "1", "1"}));
    EXPECT_EQ(result->data.rows[1],
              (std::vector<std::string>{"dogs.tvi", "2", "1", "1", "1", "1", "1", "1", "1", "0",
                                        "0", "0", "0", "0", "0"}));
    ASSERT_GE(result->key.rows.size(), 4u);
    EXPECT_EQ(result->key.rows[3],
              (std::vector<std::string>{"dog*_Occ", "dog* - number of occurrences", "Explore"}));
    fs::remove_all(dir);
}

TEST(BatchExplore, OptionsBecomeCriteria) {
    ExploreOptions e;
    e.utteranceChoice = 1;
    e.areaChoice = 2;
    e.rootIdChoice = 1;
    e.codeTypeChoice = 2;
    e.wordBaseAnd = true;
    e.wordBaseNot = true;
    e.mazeRevisions = true;
    e.wordBaseChoices = {2, 14, 99};
    e.lengthFrom = 2;
    e.lengthTo = 5;
    e.lengthInMorphemes = true;
    e.wordList = {{false, "go*"}, {true, "EW"}, {false, "[EO]"}};
    ExploreCriteria c = exploreCriteriaOf(e);
    EXPECT_EQ(c.utterances, ExploreUtterances::AnalysisSet);
    EXPECT_EQ(c.area, ExploreArea::Both);
    EXPECT_EQ(c.roots, ExploreRoots::Identified);
    EXPECT_EQ(c.codes, ExploreCodes::Utterance);
    EXPECT_TRUE(c.all && c.negate && c.mazeRevisions && c.lengthInMorphemes);
    EXPECT_EQ(c.types, (std::set<ExploreType>{ExploreType::Question, ExploreType::Maze}));
    EXPECT_EQ(c.lengthFrom, 2);
    EXPECT_EQ(c.lengthTo, 5);
    EXPECT_EQ(c.items, (std::vector<std::string>{"go*", "[EW]", "[EO]"}));
    EXPECT_EQ(exploreCriteriaOf(ExploreOptions{}).codes, ExploreCodes::Either);
    EXPECT_FALSE(anyExploreCount(e));
    e.presence = true;
    EXPECT_TRUE(anyExploreCount(e));
}

} // namespace
} // namespace tavi
