// Root identification files: what is written reads back the same, lines that
// do not fit are skipped and named, a form is found without regard to case,
// and the choices offered keep the form as the transcript writes it. The
// English file shipped with the program reads without a bad line.
#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

#include "analysis/rif_file.h"
#include "base/progress.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

TEST(RifFile, WrittenTextReadsBackTheSameWords) {
    RifWords words{{"went", {"went", {"go"}, {}}},
                   {"saw", {"saw", {"see", "saw"}, {}}},
                   {"gonna", {"gonna", {}, {"going to"}}},
                   {"niño", {"niño", {"niño"}, {"el niño", "la niña"}}}};
    const std::string text = rifFileText(words);
    EXPECT_NE(text.find("\nsaw:see,saw:\n"), std::string::npos);
    EXPECT_NE(text.find("\ngonna::going to\n"), std::string::npos);
    RifFileContents back = parseRifFile(text);
    EXPECT_EQ(back.words, words);
    EXPECT_TRUE(back.badLines.empty());

    // What the import reads, the file keeps: an imported list written out is
    // read as the same table.
    RifWords imported;
    test::RecordingPrompter p;
    NoProgress progress;
    importRifWords("ran: run :\nmice:mouse:\nwanna::want to\n", imported, p, progress);
    EXPECT_EQ(parseRifFile(rifFileText(imported)).words, imported);
}

TEST(RifFile, BadLinesAreSkippedAndNamedCommentsIgnored) {
    RifFileContents c = parseRifFile("\xEF\xBB\xBF# comment\r\n"
                                     "went:go:\r\n"
                                     "no colons\r\n"
                                     "\r\n"
                                     ":go:\r\n"
                                     "a:b:c:d\r\n"
                                     "ran:run:\r\n");
    EXPECT_EQ(c.words.size(), 2u);
    EXPECT_EQ(c.badLines, (std::vector<int>{3, 5, 6}));
    EXPECT_EQ(c.words.at("ran").definitions, std::vector<std::string>{"run"});
}

TEST(RifFile, ChoicesKeepTheWrittenFormAndFindItWithoutRegardToCase) {
    RifWords words = parseRifFile("saw:see,saw:\ngonna::going to\nÉté:être:\n").words;
    EXPECT_EQ(rootChoices(words, "Saw"),
              (std::vector<RootChoice>{{"Saw|see", "see", false}, {"Saw|saw", "saw", false}}));
    EXPECT_EQ(rootChoices(words, "GONNA"),
              (std::vector<RootChoice>{{"going to", "replace with \"going to\"", true}}));
    ASSERT_NE(findRifWord(words, "été"), nullptr);
    EXPECT_EQ(rootChoices(words, "été").front().text, "été|être");
    EXPECT_TRUE(rootChoices(words, "seen").empty());
    EXPECT_TRUE(rootChoices(words, "").empty());
}

TEST(RifFile, ShippedEnglishFileReadsCleanly) {
    std::optional<RifFileContents> c =
        readRifFile(std::filesystem::path(TAVI_SOURCE_DATA_DIR) / "English.rif");
    ASSERT_TRUE(c);
    EXPECT_TRUE(c->badLines.empty());
    EXPECT_GE(c->words.size(), 40u);
    EXPECT_EQ(rootChoices(c->words, "went").front().text, "went|go");
    EXPECT_EQ(rootChoices(c->words, "children").front().text, "children|child");
    EXPECT_FALSE(readRifFile("/nonexistent/none.rif"));
}

TEST(RifFile, WriteGoesThroughAnAtomicSaveAndReadsBack) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("tavi_rif_" + std::to_string(::getpid()) + ".rif");
    RifWords words{{"feet", {"feet", {"foot"}, {}}}};
    ASSERT_EQ(writeRifFile(file, words), WriteStatus::Ok);
    EXPECT_EQ(readRifFile(file)->words, words);
    std::filesystem::remove(file);
}

} // namespace
} // namespace tavi
