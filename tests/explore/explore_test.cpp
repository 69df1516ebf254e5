// Explore: each criterion finds the utterances the transcript was written to
// hold, alone and joined; the criteria survive their settings lines; code
// insertion is undone byte for byte by deletion; a separate transcript checks
// clean and measures like the utterances it keeps.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "explore/explore.h"
#include "explore/explore_edit.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

// Lines:                                     Child utterances and what they hold
constexpr std::string_view kSample =
    "$ Child, Examiner\n"                // 1
    "+ Name: Test\n"                     // 2
    "- 0:00\n"                           // 3
    "E what did you see?\n"              // 4
    "C I saw a dog.\n"                   // 5 Q, 4 words
    "C (um) the dog/s ran [EU].\n"       // 6 maze, [EU], 3 words, 4 morphemes
    "C he go/3s[EW:went] home!\n"        // 7 "!", word code
    "C because it rain/ed.\n"            // 8 "because"
    "E did he?\n"                        // 9
    "C yes.\n"                           // 10 Q, Y, O
    "C XX.\n"                            // 11 unintelligible
    "C the cat *is sleep/ing :03 now.\n" // 12 omission, pause, 4 words
    "C and the doggy went >\n";          // 13 abandoned

AnalysisContext context() {
    return analysisContext(Settings{}, nullptr);
}

std::vector<int> linesFound(const ExploreCriteria& c, std::string_view text = kSample) {
    return matchLines(exploreText(text, context(), c).matches);
}

ExploreCriteria withTypes(std::initializer_list<ExploreType> types) {
    ExploreCriteria c;
    c.types = types;
    return c;
}

TEST(Explore, SampleChecksCleanSoTheSearchesReadIt) {
    ExploreResult r = exploreText(kSample, context(), ExploreCriteria{});
    EXPECT_FALSE(r.analysis.hasErrors());
    EXPECT_EQ(r.searched, 8);
    EXPECT_EQ(matchLines(r.matches), (std::vector<int>{5, 6, 7, 8, 10, 11, 12, 13}));
}

TEST(Explore, EachUtteranceTypeAlone) {
    EXPECT_EQ(linesFound(withTypes({ExploreType::Exclamation})), (std::vector<int>{7}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::Abandoned})), (std::vector<int>{13}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::RespQuestion})), (std::vector<int>{5, 10}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::OneWord})), (std::vector<int>{10}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::Unintelligible})), (std::vector<int>{11}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::Maze})), (std::vector<int>{6}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::Pause})), (std::vector<int>{12}));
    EXPECT_EQ(linesFound(withTypes({ExploreType::Omission})), (std::vector<int>{12}));

    ExploreCriteria examiner = withTypes({ExploreType::Question});
    examiner.speaker = ExploreSpeaker::Second;
    EXPECT_EQ(linesFound(examiner), (std::vector<int>{4, 9}));
    examiner.speaker = ExploreSpeaker::Either;
    examiner.types = {ExploreType::Exclamation, ExploreType::Question};
    EXPECT_EQ(linesFound(examiner), (std::vector<int>{4, 7, 9}));
}

TEST(Explore, MazeKindsNarrowTheMazeCriterion) {
    ExploreCriteria c = withTypes({ExploreType::Maze});
    c.mazeRevisions = true;
    EXPECT_TRUE(linesFound(c).empty());
    c.mazeFilledPauses = true;
    EXPECT_EQ(linesFound(c), (std::vector<int>{6}));
}

TEST(Explore, LengthInWordsOrMorphemes) {
    ExploreCriteria c;
    c.lengthFrom = 4;
    c.lengthTo = 4;
    EXPECT_EQ(linesFound(c), (std::vector<int>{5, 12, 13}));
    c.lengthInMorphemes = true;
    EXPECT_EQ(linesFound(c), (std::vector<int>{5, 6, 7, 8, 13}));
    c.lengthFrom = 5;
    c.lengthTo = 0; // no upper bound
    EXPECT_EQ(linesFound(c), (std::vector<int>{12}));
}

TEST(Explore, WordItemsWithWildcardsAndTheMatchedWords) {
    ExploreCriteria c;
    c.items = {"dog*"};
    ExploreResult r = exploreText(kSample, context(), c);
    ASSERT_EQ(matchLines(r.matches), (std::vector<int>{5, 6, 13}));
    EXPECT_EQ(r.matches[1].items, (std::vector<std::string>{"dog/s"}));
    EXPECT_EQ(r.matches[2].items, (std::vector<std::string>{"doggy"}));
    c.items = {"*ause", "HOME"};
    EXPECT_EQ(linesFound(c), (std::vector<int>{7, 8}));
    c.items = {"um"};
    EXPECT_TRUE(linesFound(c).empty());
    c.area = ExploreArea::Mazes;
    EXPECT_EQ(linesFound(c), (std::vector<int>{6}));
}

TEST(Explore, CodeItemsByWordOrUtterance) {
    ExploreCriteria c;
    c.items = {"[E*]"};
    EXPECT_EQ(linesFound(c), (std::vector<int>{6, 7}));
    c.codes = ExploreCodes::Word;
    ExploreResult r = exploreText(kSample, context(), c);
    ASSERT_EQ(matchLines(r.matches), (std::vector<int>{7}));
    EXPECT_EQ(r.matches[0].items, (std::vector<std::string>{"[EW:went]"}));
    c.codes = ExploreCodes::Utterance;
    EXPECT_EQ(linesFound(c), (std::vector<int>{6}));
}

TEST(Explore, CriteriaJoinWithAndOrAndNot) {
    ExploreCriteria c = withTypes({ExploreType::RespQuestion});
    c.lengthFrom = 2;
    EXPECT_EQ(linesFound(c), (std::vector<int>{5, 6, 7, 8, 10, 12, 13}));
    c.all = true;
    EXPECT_EQ(linesFound(c), (std::vector<int>{5}));
    c.negate = true;
    EXPECT_EQ(linesFound(c), (std::vector<int>{6, 7, 8, 10, 11, 12, 13}));
    c = ExploreCriteria{};
    c.items = {"[EU]", "because"};
    c.all = true;
    EXPECT_TRUE(linesFound(c).empty());
    c.all = false;
    EXPECT_EQ(linesFound(c), (std::vector<int>{6, 8}));
}

TEST(Explore, CriteriaSurviveTheirSettingsLines) {
    ExploreCriteria c;
    c.speaker = ExploreSpeaker::Either;
    c.utterances = ExploreUtterances::AnalysisSet;
    c.area = ExploreArea::Both;
    c.roots = ExploreRoots::Identified;
    c.codes = ExploreCodes::Utterance;
    c.all = true;
    c.negate = true;
    c.types = {ExploreType::Question, ExploreType::Omission};
    c.mazeRepetitions = true;
    c.lengthFrom = 3;
    c.lengthTo = 9;
    c.lengthInMorphemes = true;
    c.items = {"go*", "[EW]"};
    ExploreCriteria back;
    for (const std::string& text : exploreCriteriaLines("EMULT", c))
        applyExploreCriteriaLine(parseKeywordLine(text), back);
    for (const std::string& text : exploreItemLines(exploreListKeyword("EMULT"), c))
        applyExploreItemLine(parseKeywordLine(text), back);
    EXPECT_EQ(back, c);
    EXPECT_EQ(exploreListKeyword("YOL"), "YOLIST");
}

TEST(Explore, WordListFilesAndItemMatching) {
    EXPECT_EQ(parseWordListFile("\xEF\xBB\xBF"
                                "go*\r\n; a remark\r\n\r\n  because \r\n[EW*]"),
              (std::vector<std::string>{"go*", "because", "[EW*]"}));
    EXPECT_EQ(parseWordListFile(wordListFileText({"a", "*b"})),
              (std::vector<std::string>{"a", "*b"}));
    EXPECT_TRUE(exploreItemMatches("*ing", "Running"));
    EXPECT_TRUE(exploreItemMatches("*un*", "running"));
    EXPECT_FALSE(exploreItemMatches("run", "running"));
    EXPECT_FALSE(exploreItemMatches("*ing*x", "ing"));
}

TEST(ExploreEdit, InsertThenDeleteGivesTheOriginalBytes) {
    const std::string crlf = [] {
        std::string t;
        for (char ch : kSample)
            t += ch == '\n' ? std::string("\r\n") : std::string(1, ch);
        return t;
    }();
    for (const std::string& text : {std::string(kSample), crlf}) {
        ExploreCriteria c;
        c.items = {"dog*", "go"};
        ExploreResult r = exploreText(text, context(), c);
        for (CodePlace place : {CodePlace::Utterance, CodePlace::Words}) {
            CodeEdit inserted = insertExploreCode(text, r.matches, "XY", place);
            EXPECT_EQ(inserted.changed, 4);
            ExploreResult again = exploreText(inserted.text, context(), ExploreCriteria{});
            EXPECT_FALSE(again.analysis.hasErrors()) << inserted.text;
            ExploreCriteria coded;
            coded.items = {"[XY]"};
            coded.codes = place == CodePlace::Words ? ExploreCodes::Word : ExploreCodes::Utterance;
            EXPECT_EQ(linesFound(coded, inserted.text), (std::vector<int>{5, 6, 7, 13}));
            CodeEdit removed = deleteExploreCode(
                inserted.text, utteranceLines(again.analysis.check.segmented), "[XY]");
            EXPECT_EQ(removed.changed, 4);
            EXPECT_EQ(removed.text, text);
        }
    }
    CodeEdit utterance = insertExploreCode(
        kSample, exploreText(kSample, context(), withTypes({ExploreType::Exclamation})).matches,
        "[Q]", CodePlace::Utterance);
    EXPECT_NE(utterance.text.find("C he go/3s[EW:went] home [Q]!\n"), std::string::npos);
}

TEST(ExploreEdit, DeleteOnlyInTheGivenLinesAndByItem) {
    const std::string text = "$ Child\nC a [EW:x] b [EU].\nC c[EW:y] d [EU].\n";
    EXPECT_EQ(deleteExploreCode(text, {2}, "EW").text, "$ Child\nC a b [EU].\nC c[EW:y] d [EU].\n");
    CodeEdit all = deleteExploreCode(text, {2, 3}, "E*");
    EXPECT_EQ(all.changed, 4);
    EXPECT_EQ(all.text, "$ Child\nC a b.\nC c d.\n");
}

TEST(ExploreEdit, SeparateTranscriptChecksCleanAndMeasuresLikeItsUtterances) {
    ExploreCriteria c;
    c.lengthFrom = 3;
    ExploreResult r = exploreText(kSample, context(), c);
    ASSERT_EQ(matchLines(r.matches), (std::vector<int>{5, 6, 7, 8, 12, 13}));
    const std::string separate =
        separateTranscriptText(splitTranscriptLines(kSample), r.matches, SeparateOptions{});
    EXPECT_EQ(separate.substr(0, 31), "$ Child, Examiner\n+ Name: Test\n");
    TranscriptAnalysis kept = analyseText(separate, context());
    EXPECT_FALSE(kept.hasErrors());
    EXPECT_FALSE(kept.check.hasWarnings);
    // The words and morphemes of the found utterances of the original's analysis set.
    int words = 0, morphemes = 0, inSet = 0;
    for (const ExploreMatch& m : r.matches) {
        const size_t u = static_cast<size_t>(m.utterance);
        if (!r.analysis.result.selection.analysisSetFlags[u])
            continue;
        ++inSet;
        for (const Word& w : r.analysis.check.segmented.utterances[u].words)
            if (w.isMainBodyWord()) {
                ++words;
                morphemes += 1 + static_cast<int>(w.boundMorphemes().size());
            }
    }
    const SpeakerMeasures& m = kept.measures();
    EXPECT_EQ(m.find("TotNumUt")->asCount(), 6);
    EXPECT_EQ(m.find("NTW")->asCount(), words);
    ASSERT_TRUE(m.find("MLUm")->isReal());
    EXPECT_DOUBLE_EQ(m.find("MLUm")->asReal(), static_cast<double>(morphemes) / inSet);
}

TEST(ExploreEdit, WritingKeepsABackupOfThePresentFile) {
    fs::path dir = fs::temp_directory_path() / ("tavi_explore_" + std::to_string(getpid()));
    fs::remove_all(dir);
    fs::create_directories(dir);
    fs::path file = dir / "story.tvi";
    std::ofstream(file, std::ios::binary) << "$ Child\nC hi.\n";
    ASSERT_EQ(writeEditedTranscript(file, "$ Child\nC hi [Q].\n", dir / "backup"),
              EditWriteStatus::Ok);
    std::string bytes;
    ASSERT_TRUE(readFile(file, bytes));
    EXPECT_EQ(bytes, "\xEF\xBB\xBF$ Child\nC hi [Q].\n");
    ASSERT_TRUE(readFile(dir / "backup" / "story.$VI", bytes));
    EXPECT_EQ(bytes, "$ Child\nC hi.\n");
    fs::remove_all(dir);
}

} // namespace
} // namespace tavi
