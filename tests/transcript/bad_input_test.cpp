// Any bytes are a transcript: the reader, segmentation and checker must never
// crash, hang or read out of bounds, whatever they are given.
#include <gtest/gtest.h>

#include <random>

#include "transcript/checker.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

CheckResult checkBytes(std::string_view bytes) {
    LoadedTranscript t = decodeTranscript(bytes);
    CheckOptions options;
    options.keepSegmentation = true;
    return checkTranscript(t.lines, options);
}

TEST(BadInput, EmptyBomOnlyAndBlankFiles) {
    EXPECT_TRUE(checkBytes("").problems.empty());
    EXPECT_TRUE(checkBytes("\xEF\xBB\xBF").problems.empty());
    EXPECT_TRUE(checkBytes("\n\r\n\r\r").problems.empty());
}

TEST(BadInput, NulBytesInvalidUtf8AndLoneCr) {
    std::string nul("$ C\nC a\0b.\n\0\n", 13);
    CheckResult r = checkBytes(nul);
    ASSERT_EQ(r.problems.size(), 3u);
    EXPECT_EQ(r.problems[0].message, "utterance contains invalid character (^@).");
    EXPECT_EQ(r.problems[1].message, "invalid identifier (^@).");
    EXPECT_EQ(r.problems[2].message, "speaker id is not followed by blank space.");
    r = checkBytes("$ C\rC a\xFF\xFE b.\rC go.");
    EXPECT_FALSE(r.hasErrors);
    EXPECT_EQ(r.segmented.utterances.size(), 2u);
    r = checkBytes("\xEF\xBB\xBF$ C\nC a\xFF b.\n"); // after a BOM: U+FFFD, a word character
    EXPECT_FALSE(r.hasErrors);
}

TEST(BadInput, MillionCharacterLines) {
    std::string words = "$ C\nC ";
    for (int i = 0; i < 200000; ++i)
        words += "dog/s ";
    words += ".\n";
    CheckResult r = checkBytes(words);
    EXPECT_FALSE(r.hasErrors);
    EXPECT_EQ(r.segmented.utterances[0].words.size(), 200000u);
    std::string brackets = "$ C\nC " + std::string(1000000, '(') + std::string(1000000, '[') +
                           std::string(1000000, '_') + std::string(1000000, ':') + "\n";
    EXPECT_TRUE(checkBytes(brackets).hasErrors);
    EXPECT_TRUE(checkBytes(std::string(1000000, '-')).hasErrors);
}

TEST(BadInput, RandomBytesAndRandomNotation) {
    std::mt19937 rng(20261122);
    const std::string notation = "$+=-:;@CE ()[]{}<>/+*%|\\_&#.!?~>^,\"\n\r\t0123456789XxyZ'";
    for (int round = 0; round < 300; ++round) {
        std::string bytes;
        size_t size = rng() % 400;
        for (size_t i = 0; i < size; ++i)
            bytes.push_back(round % 2 ? static_cast<char>(rng() & 0xFF)
                                      : notation[rng() % notation.size()]);
        if (round % 3 == 0)
            bytes = "$ Child, Examiner\n" + bytes;
        CheckResult r = checkBytes(bytes);
        for (size_t i = 1; i < r.problems.size(); ++i)
            ASSERT_LE(r.problems[i - 1].line, r.problems[i].line);
        // Checking without keeping the words finds exactly the same problems.
        CheckResult quick = checkText(decodeTranscript(bytes).text);
        ASSERT_EQ(quick.problems.size(), r.problems.size());
        for (size_t i = 0; i < r.problems.size(); ++i)
            ASSERT_EQ(quick.problems[i].message, r.problems[i].message);
    }
}

} // namespace
} // namespace tavi
