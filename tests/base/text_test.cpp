// Bytes to text: byte order marks, the Windows-1252 fallback, line ends, UTF-16.
#include <gtest/gtest.h>

#include "base/format.h"
#include "base/text.h"

namespace tavi {
namespace {

TEST(DecodeText, RecognisesByteOrderMarkAndFallsBackToWindows1252) {
    DecodedText withBom = decodeText("\xEF\xBB\xBF"
                                     "caf\xC3\xA9");
    EXPECT_TRUE(withBom.hadBom);
    EXPECT_EQ(withBom.utf8, "caf\xC3\xA9");

    DecodedText legacy = decodeText("caf\xE9 \x93quoted\x94");
    EXPECT_FALSE(legacy.hadBom);
    EXPECT_FALSE(legacy.wasUtf8);
    EXPECT_EQ(legacy.utf8, "caf\xC3\xA9 \xE2\x80\x9Cquoted\xE2\x80\x9D");

    // Read as Windows-1252 by choice: valid UTF-8 without a byte order mark
    // is taken byte by byte; a byte order mark still means UTF-8.
    DecodedText chosen = decodeText("caf\xC3\xA9", TextEncoding::Windows1252);
    EXPECT_FALSE(chosen.wasUtf8);
    EXPECT_EQ(chosen.utf8, "caf\xC3\x83\xC2\xA9");
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                         "caf\xC3\xA9",
                         TextEncoding::Windows1252)
                  .utf8,
              "caf\xC3\xA9");

    // Only a byte order mark: empty text.
    EXPECT_EQ(decodeText("\xEF\xBB\xBF").utf8, "");
    // Invalid bytes after a byte order mark become U+FFFD, never a crash.
    EXPECT_EQ(decodeText("\xEF\xBB\xBF"
                         "a\xFF")
                  .utf8,
              "a\xEF\xBF\xBD");
    // Overlong and surrogate encodings are not UTF-8.
    EXPECT_FALSE(isValidUtf8("\xC0\xAF"));
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80"));
}

// ASCII is passed over several bytes at a time: a faulty or multi-byte
// sequence is found wherever it stands, at a word's edge or not.
TEST(DecodeText, FindsEveryNonAsciiByteInLongAsciiRuns) {
    for (size_t size : {7u, 8u, 9u, 16u, 23u, 64u}) {
        for (size_t at = 0; at < size; ++at) {
            std::string text(size, 'a');
            text[at] = '\xFF';
            EXPECT_FALSE(isValidUtf8(text)) << size << " " << at;
            text.replace(at, 1, "\xC3\xA9");
            EXPECT_TRUE(isValidUtf8(text)) << size << " " << at;
            text.pop_back(); // a sequence cut short at the end when it stood last
            EXPECT_EQ(isValidUtf8(text), at + 1 < size) << size << " " << at;
        }
    }
}

TEST(SplitLines, AcceptsEveryLineEndStyle) {
    auto lines = splitLines("a\r\nb\rc\nd");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "a");
    EXPECT_EQ(lines[1], "b");
    EXPECT_EQ(lines[2], "c");
    EXPECT_EQ(lines[3], "d");
    EXPECT_EQ(splitLines("a\n\nb\n").size(), 3u);
    EXPECT_TRUE(splitLines("").empty());
}

TEST(SplitAt, KeepsEmptyPiecesAtBothEndsAndBetween) {
    using V = std::vector<std::string_view>;
    EXPECT_EQ(splitAt("went:go:", ':'), (V{"went", "go", ""}));
    EXPECT_EQ(splitAt(",a,,b", ','), (V{"", "a", "", "b"}));
    EXPECT_EQ(splitAt("", ','), (V{""}));
}

TEST(Utf16, CountsCodeUnitsAndRoundTrips) {
    std::string text = "a\xC3\xA9\xF0\x9F\x98\x80"; // a, e acute, an emoji (two units)
    EXPECT_EQ(utf16Length(text), 4u);
    EXPECT_EQ(fromUtf16(toUtf16(text)), text);
}

TEST(Format, ProducesPrintfTextsOfAnyLength) {
    EXPECT_EQ(format("%0.2f", 2.345), "2.35");
    EXPECT_EQ(format("%d:0%d", 3, 7), "3:07");
    std::string longText(1000, 'x');
    EXPECT_EQ(format("%s!", longText.c_str()), longText + "!");
}

} // namespace
} // namespace tavi
