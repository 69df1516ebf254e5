// The transcript file and line model: decoding, line ends, writing, backup
// names, new transcripts, line kinds, time values and the listing texts.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_io.h"
#include "transcript/check_listing.h"
#include "transcript/line_kind.h"
#include "transcript/new_transcript.h"
#include "transcript/time_value.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

std::vector<std::string> texts(const TranLines& lines) {
    std::vector<std::string> out;
    for (const tranLine& l : lines)
        out.push_back(l.text);
    return out;
}

using Strings = std::vector<std::string>;

TEST(TranscriptFile, DecodingAndLineEnds) {
    LoadedTranscript t = decodeTranscript("\xEF\xBB\xBF$ A, B\r\nA hi.\rB ho.\nA go.");
    EXPECT_TRUE(t.hadBom);
    EXPECT_EQ(texts(t.lines), (Strings{"$ A, B", "A hi.", "B ho.", "A go."}));
    EXPECT_EQ(t.lines[3].line, 4);
    LoadedTranscript latin = decodeTranscript("C caf\xE9.\n");
    EXPECT_FALSE(latin.wasUtf8);
    EXPECT_EQ(latin.lines[0].text, "C caf\xC3\xA9.");
    EXPECT_TRUE(decodeTranscript("").lines.empty());
    EXPECT_TRUE(decodeTranscript("\xEF\xBB\xBF").lines.empty());
}

TEST(TranscriptFile, SaveWritesTheByteOrderMarkAndReadsBack) {
    auto dir = std::filesystem::temp_directory_path() / "tavi_transcript_file_test";
    std::filesystem::create_directories(dir);
    auto path = dir / "sample.tvi";
    ASSERT_EQ(saveTranscript(path, "$ Child\nC hi.\n"), WriteStatus::Ok);
    std::string bytes;
    ASSERT_TRUE(readFile(path, bytes));
    EXPECT_EQ(bytes, "\xEF\xBB\xBF$ Child\nC hi.\n");
    LoadedTranscript t = loadTranscript(path);
    EXPECT_TRUE(t.ok);
    EXPECT_EQ(texts(t.lines), (Strings{"$ Child", "C hi."}));
    EXPECT_FALSE(loadTranscript(dir / "missing.tvi").ok);
    std::filesystem::remove_all(dir);
}

// A file read as a text gives what decoding its bytes gives: kept as read
// when it is UTF-8 without a byte order mark, decoded otherwise.
TEST(TranscriptFile, ReadTextAgreesWithDecoding) {
    auto dir = std::filesystem::temp_directory_path() / "tavi_transcript_read_test";
    std::filesystem::create_directories(dir);
    const std::string long_(100000, 'a');
    for (const std::string& bytes :
         {std::string("$ Child\nC caf\xC3\xA9.\n"), std::string("\xEF\xBB\xBF$ Child\r\nC hi.\n"),
          std::string("C caf\xE9.\n"), std::string(), "C " + long_ + ".\n",
          "C " + long_ + "\xE9.\n"}) {
        auto path = dir / "read.tvi";
        ASSERT_EQ(writeFileAtomic(path, bytes), WriteStatus::Ok);
        std::string text = "left over";
        ASSERT_TRUE(readTranscriptText(path, text));
        EXPECT_EQ(text, decodeTranscript(bytes).text) << bytes.substr(0, 20);
    }
    std::string text;
    EXPECT_FALSE(readTranscriptText(dir / "missing.tvi", text));
    EXPECT_FALSE(readTranscriptText(dir, text));
    std::filesystem::remove_all(dir);
}

TEST(TranscriptFile, BackupNameAndLinkTexts) {
    EXPECT_EQ(backupPath("/data/story.final.tvi", "/backups"), "/backups/story.$VI");
    EXPECT_EQ(backupPath("Untitled", "/backups/"), "/backups/Untitled.$VI");
    EXPECT_EQ(backupFailedMessage("/backups/story.$VI"),
              "Warning: unable to save automatic backup file (/backups/story.$VI)");
    EXPECT_EQ(linkedCaption("a.tvi", "b.tvi"), "a.tvi LINKED WITH b.tvi");
    EXPECT_EQ(unlinkQuestion("a.tvi", "b.tvi"), "Unlink a.tvi and b.tvi?");
    EXPECT_EQ(unlinkedMessage("a.tvi", "b.tvi"), "a.tvi and b.tvi are no longer linked.");
}

TEST(NewTranscript, ComposedInOrder) {
    NewTranscriptValues v;
    v.targetSpeaker = "Child";
    v.secondSpeaker = "Examiner, Adult";
    v.name = "Sam";
    v.gender = "F";
    v.dob = "05-12-2018";
    v.context = "Nar";
    v.subgroup = "TD";
    v.mode = "Oral";
    v.startTime = "0:00";
    EXPECT_EQ(composeNewTranscript(v), "$ Child, Examiner Adult\n"
                                       "+ Name: Sam\n"
                                       "+ Gender: Female\n"
                                       "+ DOB: 05-12-2018\n"
                                       "+ Context: Narrative\n"
                                       "+ Subgroup: TD\n"
                                       "+ MODE: Oral\n"
                                       "- 0:00\n");
    v = {};
    v.targetSpeaker = "Child";
    v.secondSpeaker = "Mom";
    v.context = "Dinner talk";
    EXPECT_EQ(composeNewTranscript(v), "$ Child, Mom\n+ Context: Dinner talk\n");
}

TEST(LineKinds, ByFirstCharacter) {
    EXPECT_EQ(classifyLine("$ A"), LineKind::SpeakerLabels);
    EXPECT_EQ(classifyLine("+ Name: x"), LineKind::Header);
    EXPECT_EQ(classifyLine("= note"), LineKind::Comment);
    EXPECT_EQ(classifyLine("- 1:00"), LineKind::Timing);
    EXPECT_EQ(classifyLine(":"), LineKind::Pause);
    EXPECT_EQ(classifyLine("; 0:05"), LineKind::Pause);
    EXPECT_EQ(classifyLine("@begin"), LineKind::Section);
    EXPECT_EQ(classifyLine("C hi."), LineKind::Utterance);
    EXPECT_EQ(classifyLine("\xC3\x89 hi."), LineKind::Utterance);
    EXPECT_EQ(classifyLine("(hi)"), LineKind::Invalid);
    EXPECT_EQ(classifyLine(" \t"), LineKind::Blank);
}

TEST(TimeValues, FieldsAndRounding) {
    auto read = [](std::string_view text) {
        TimeValue t = readTimeValue(text);
        return t.valid ? t.elapsed() : -1;
    };
    EXPECT_EQ(read("1:02:03"), 3723);
    EXPECT_EQ(read("75"), 75);
    EXPECT_EQ(read("0;10"), 10);
    EXPECT_EQ(read("0:10.5"), 10);
    EXPECT_EQ(read("0:10.50"), 11);
    EXPECT_EQ(read("0:10.050"), 11); // the fraction is read as a whole number
    EXPECT_EQ(read("1:02:03:14"), 3723);
    EXPECT_EQ(read("1:02:03:15"), 3724);
    EXPECT_EQ(read("  2:30 and then"), 150);
    EXPECT_EQ(read(".5"), 0);
    TimeValue up = readTimeValue("0:59.5000");
    EXPECT_EQ(up.minutes, 0);
    EXPECT_EQ(up.seconds, 60); // the added second is not carried
    for (std::string_view bad : {"1:", "1.2:3", "1:2:3:4:5", "1.2.3", ":", ".", "abc", "1;"})
        EXPECT_EQ(read(bad), -1) << bad;
    EXPECT_TRUE(readTimeValue("   ").valid);
    EXPECT_FALSE(readTimeValue("").given);
}

TEST(Listing, ProblemLinesAndSummary) {
    EXPECT_EQ(formatProblem(err{108, 12, 0, "missing end of utterance punctuation."}),
              "E108 on entry 12: missing end of utterance punctuation.");
    EXPECT_EQ(formatProblem(err{-8, 3, 0, "x."}), "Warning #8 on entry 3: x.");
    EXPECT_EQ(checkSummary(0, 0), "No errors or warnings found.");
    EXPECT_EQ(checkSummary(1, 0), "1 error found.");
    EXPECT_EQ(checkSummary(0, 1), "1 warning found.");
    EXPECT_EQ(checkSummary(3, 0), "3 errors found.");
    EXPECT_EQ(checkSummary(0, 2), "2 warnings found.");
    EXPECT_EQ(checkSummary(2, 5), "2 errors and 5 warnings found.");
    EXPECT_EQ(checkSummary(1, 1), "1 error and 1 warning found.");
    EXPECT_EQ(checkSummary(4, 1), "4 errors and 1 warning found.");
}

} // namespace
} // namespace tavi
