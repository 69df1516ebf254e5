// From transcript text to measures, through the real segmentation and the
// `tavi measures` command. The transcript is tests/data/analysis/counted.tvi;
// every expected value was counted by hand from it.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "../support/tavi_process.h"
#include "analysis/measures.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

using Id = MeasureId;
const std::string kCounted = std::string(TAVI_TEST_DATA_DIR) + "/analysis/counted.tvi";

SegmentedTranscript counted() {
    LoadedTranscript t = loadTranscript(kCounted);
    EXPECT_TRUE(t.ok);
    return segmentTranscript(t.lines);
}

// Child: "a big dog/s." (Q), "he run/3s (the) to the park." (Q),
// "X want (um)." (partly intelligible), "I like/ed [EW:liked] it!",
// "{points}." (nonverbal). Analysis set: the 1st, 2nd and 4th.
TEST(EndToEnd, HandCountedChild) {
    MeasureResult r = computeMeasures(counted(), MeasureOptions{});
    const SpeakerMeasures& c = r.speakers[0];
    EXPECT_EQ(c[Id::TotNumUt].asCount(), 5);
    EXPECT_EQ(c[Id::TotASetUt].asCount(), 3);
    EXPECT_EQ(c.formatted(Id::MLUw), "3.67"); // 11 / 3
    EXPECT_EQ(c.formatted(Id::MLUm), "4.67"); // 14 / 3
    EXPECT_EQ(c.formatted(Id::BrownStg), "Post V");
    EXPECT_EQ(c.formatted(Id::ExpAgeRange), "41 - --");
    EXPECT_EQ(c[Id::NTW].asCount(), 11);
    EXPECT_EQ(c[Id::NDW].asCount(), 11);
    EXPECT_EQ(c[Id::AllWords].asCount(), 14); // 12 main-body words, 2 maze words
    EXPECT_EQ(c.formatted(Id::TimeMin), "1.50");
    EXPECT_EQ(c.formatted(Id::WPM), "8.00");
    EXPECT_EQ(c.formatted(Id::PctIntelUt), "75.0%"); // 3 of 4 verbal utterances
    EXPECT_EQ(c.formatted(Id::PctIntelWd), "92.3%"); // 12 of 13
    EXPECT_EQ(c[Id::TotNumMz].asCount(), 2);
    EXPECT_EQ(c.formatted(Id::PctMzWds), "14.3%");
    EXPECT_EQ(c[Id::RespToQues].asCount(), 2);
    EXPECT_EQ(c.formatted(Id::PctRespQues), "100%");
    EXPECT_EQ(c.formatted(Id::MeanTurnUt), "1.67");
    EXPECT_EQ(c.formatted(Id::MedTurnUt), "2.00");
    EXPECT_EQ(c.formatted(Id::MeanTurnWd), "4.00"); // turns of 3, 6 and 3 words
    EXPECT_EQ(c.formatted(Id::MedTurnWd), "3.00");
    EXPECT_EQ(c[Id::Exclamations].asCount(), 1);
    EXPECT_EQ(c.formatted(Id::PctUtWErrors), "20.0%");
    EXPECT_EQ(c.formatted(Id::PctWordErrors), "8.3%");
    EXPECT_EQ(c[Id::MzFPSingleWd].asCount(), 1);
    EXPECT_EQ(r.speakers[1][Id::TotNumUt].asCount(), 3);
    EXPECT_EQ(r.speakers[1][Id::Questions].asCount(), 2);
}

std::string run(const std::string& args, int* status) {
    std::filesystem::path dir = std::filesystem::temp_directory_path() / "tavi_measures_test";
    std::filesystem::create_directories(dir);
    std::string cmd = std::string(TAVI_BINARY) + " --settings-dir " + dir.string() + " measures " +
                      args + " 2>&1";
    tavi::test::TaviRun r = tavi::test::runShell(cmd);
    *status = r.status;
    return r.out;
}

MeasureResult measuresOf(std::string_view text) {
    LoadedTranscript t = decodeTranscript(text);
    return computeMeasures(segmentTranscript(t.lines), MeasureOptions{});
}

// Words the notation takes away or joins are not counted: text after an
// earlier terminator, and the pieces of a word with a code inside it.
TEST(EndToEnd, DroppedTextAndCodesInsideWords) {
    const std::string speakers = "$ Child, Examiner\n";
    EXPECT_EQ(measuresOf(speakers + "C I go. home.\n").speakers[0][Id::NTW].asCount(), 2);
    EXPECT_EQ(measuresOf(speakers + "C I go (um.) now.\n").speakers[0][Id::NTW].asCount(), 2);
    const MeasureResult inside = measuresOf(speakers + "C I go[EW:x]ing home.\n");
    EXPECT_EQ(inside.speakers[0][Id::NTW].asCount(), 3);
    EXPECT_EQ(inside.speakers[0][Id::NDW].asCount(), 3);
}

// Pause times of 10^9 seconds each: the sum does not wrap.
TEST(EndToEnd, HugePauseTimes) {
    const MeasureResult r =
        measuresOf("$ Child, Examiner\nC I :999999999 go :999999999 home :999999999 now.\n");
    const SpeakerMeasures& c = r.speakers[0];
    EXPECT_EQ(c[Id::NumPauseWiUt].asCount(), 3);
    EXPECT_EQ(c[Id::PauseTimeWiUt].asCount(), 2147483647); // the largest count
    EXPECT_EQ(c.formatted(Id::AvgPauseWiUt), "999999999.00");
}

TEST(MeasuresCommand, TextJsonSpeakerAndFlags) {
    int status = -1;
    std::string text = run(kCounted, &status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(text.find("MLUw\t3.67\n"), std::string::npos) << text;
    EXPECT_NE(text.find("NSS\t   ---\n"), std::string::npos);
    EXPECT_NE(text.find("BrownStg\tPost V\n"), std::string::npos);

    std::string json = run("--json " + kCounted, &status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(json.find("\"MLUw\": 3.6666666666666665"), std::string::npos) << json;
    EXPECT_NE(json.find("\"NSS\": null"), std::string::npos);
    EXPECT_NE(json.find("\"TotNumUt\": 5"), std::string::npos);
    EXPECT_NE(json.find("\"ExpAgeRange\": \"41 - --\""), std::string::npos);

    EXPECT_NE(run("--speaker 2 " + kCounted, &status).find("TotNumUt\t3\n"), std::string::npos);
    EXPECT_NE(run("--include-unintelligible --include-nonverbal " + kCounted, &status)
                  .find("TotASetUt\t5\n"),
              std::string::npos);
    std::string cut = run("--to-code NOPE " + kCounted, &status);
    EXPECT_NE(cut.find("Final cut marker not found - end of transcript used\n"), std::string::npos);
    EXPECT_NE(run("--utts 2 " + kCounted, &status).find("TotNumUt\t2\n"), std::string::npos);

    EXPECT_NE(run("--window 5 " + kCounted, &status).find("Enter a number between 10 and 999."),
              std::string::npos);
    EXPECT_EQ(status, 2);
    run("/nonexistent.tvi", &status);
    EXPECT_EQ(status, 2);
}

} // namespace
} // namespace tavi
