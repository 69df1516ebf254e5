// The keyword file reader and writer: grammar, tolerance of foreign files,
// case rules, lists, and the exact bytes written.
#include <gtest/gtest.h>

#include "settings/keyword_file.h"
#include "temp_folder.h"

namespace tavi {
namespace {

TEST(KeywordLineGrammar, SplitsKeywordValueSubKeyAndRest) {
    KeywordLine line = parseKeywordLine("  ASET   EXCLUDEUCODE  [EW], [OM]  ");
    EXPECT_EQ(line.text, "ASET   EXCLUDEUCODE  [EW], [OM]");
    EXPECT_EQ(line.keyword, "ASET");
    EXPECT_EQ(line.value, "EXCLUDEUCODE  [EW], [OM]");
    EXPECT_EQ(line.subKey, "EXCLUDEUCODE");
    EXPECT_EQ(line.rest, "[EW], [OM]");

    KeywordLine folder = parseKeywordLine("TRANDIR /home/ann/My Transcripts/");
    EXPECT_EQ(folder.value, "/home/ann/My Transcripts/"); // whole value keeps its blank
    EXPECT_EQ(folder.subKey, "/home/ann/My");

    KeywordLine bare = parseKeywordLine("ASET");
    EXPECT_EQ(bare.keyword, "ASET");
    EXPECT_EQ(bare.value, "");
    EXPECT_EQ(bare.subKey, "");
    EXPECT_EQ(bare.rest, "");

    KeywordLine tabbed = parseKeywordLine("MATTRSET\tWINDOW\t50");
    EXPECT_EQ(tabbed.keyword, "MATTRSET");
    EXPECT_EQ(tabbed.subKey, "WINDOW");
    EXPECT_EQ(tabbed.rest, "50");
}

TEST(KeywordFileReader, ToleratesForeignFiles) {
    // No byte order mark, CR LF and lone CR line ends, blank lines, blanks
    // around lines, and a line of junk: every real line survives.
    std::string bytes = "\r\n  SPNOSHOW YES \r\n\r\n\t\r\n#$%& junk\rTIMINGLINES SUBTRACT_NO\r\n";
    std::vector<std::string> lines = keywordTextLines(bytes);
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "SPNOSHOW YES");
    EXPECT_EQ(lines[1], "#$%& junk");
    EXPECT_EQ(lines[2], "TIMINGLINES SUBTRACT_NO");

    // A file written in the Windows code page (not valid UTF-8) is still read.
    std::vector<KeywordLine> legacy = parseKeywordText("LANGUAGE OTHERNAME Espa\xF1ol\n");
    ASSERT_EQ(legacy.size(), 1u);
    EXPECT_EQ(legacy[0].rest, "Espa\xC3\xB1ol");

    // With a byte order mark the text is UTF-8 and the mark is not part of the keyword.
    std::vector<KeywordLine> marked = parseKeywordText("\xEF\xBB\xBF"
                                                       "LANGUAGE OTHERNAME Espa\xC3\xB1ol\n");
    ASSERT_EQ(marked.size(), 1u);
    EXPECT_EQ(marked[0].keyword, "LANGUAGE");
    EXPECT_EQ(marked[0].rest, "Espa\xC3\xB1ol");

    // A missing file is no error, just nothing.
    EXPECT_FALSE(readKeywordFile("/nonexistent/folder/TAVI.ini").has_value());
}

TEST(KeywordValues, CaseRulesFlagsAndNumbers) {
    EXPECT_TRUE(keyIs("aset", "ASET"));
    EXPECT_FALSE(keyIs("ASETX", "ASET"));
    EXPECT_EQ(yesNoValue("yes"), true);
    EXPECT_EQ(yesNoValue("No"), false);
    EXPECT_EQ(yesNoValue("Y"), std::nullopt);

    auto flag = splitFlagSubKey("subtract_yes");
    ASSERT_TRUE(flag);
    EXPECT_EQ(flag->name, "subtract");
    EXPECT_TRUE(flag->value);
    flag = splitFlagSubKey("IGNOREPLUS_NO");
    ASSERT_TRUE(flag);
    EXPECT_EQ(flag->name, "IGNOREPLUS");
    EXPECT_FALSE(flag->value);
    EXPECT_FALSE(splitFlagSubKey("EXCLUDEQUES"));

    EXPECT_EQ(parseWholeNumber("100"), 100);
    EXPECT_EQ(parseWholeNumber("-3"), -3);
    EXPECT_EQ(parseWholeNumber("+7"), 7);
    EXPECT_EQ(parseWholeNumber(""), std::nullopt);
    EXPECT_EQ(parseWholeNumber("12x"), std::nullopt);
    EXPECT_EQ(parseWholeNumber("1.5"), std::nullopt);
    EXPECT_EQ(parseWholeNumber("99999999999"), std::nullopt);
}

TEST(KeywordLists, RemoveAllEmptiesAndOtherValuesAppend) {
    std::vector<std::string> list{"old"};
    applyListValue(list, "a");
    applyListValue(list, "removeall");
    applyListValue(list, "b c");
    applyListValue(list, "");
    EXPECT_EQ(list, (std::vector<std::string>{"b c"}));

    std::map<int, std::string> numbered;
    EXPECT_TRUE(applyNumberedValue(numbered, "0 [EW]", 16));
    EXPECT_TRUE(applyNumberedValue(numbered, "16 [OM] word", 16));
    EXPECT_FALSE(applyNumberedValue(numbered, "17 [X]", 16));
    EXPECT_FALSE(applyNumberedValue(numbered, "-1 [X]", 16));
    EXPECT_FALSE(applyNumberedValue(numbered, "two [X]", 16));
    EXPECT_EQ(numbered, (std::map<int, std::string>{{0, "[EW]"}, {16, "[OM] word"}}));
    EXPECT_TRUE(applyNumberedValue(numbered, "REMOVEALL", 16));
    EXPECT_TRUE(numbered.empty());
}

TEST(KeywordFileWriter, WritesByteOrderMarkAndOneLinePerEntry) {
    test::TempFolder folder;
    std::filesystem::path file = folder.path() / "new" / "sub" / "TAVI.ini";
    // The folder does not exist yet: the writer creates it.
    ASSERT_EQ(writeKeywordFile(file, {"ASET INCLUDEINC", "MATTRSET WINDOW 50"}), WriteStatus::Ok);
    EXPECT_EQ(folder.read("new/sub/TAVI.ini"), "\xEF\xBB\xBF"
                                               "ASET INCLUDEINC\nMATTRSET WINDOW 50\n");
    // What the writer writes, the reader reads back.
    auto back = readKeywordFile(file);
    ASSERT_TRUE(back);
    ASSERT_EQ(back->size(), 2u);
    EXPECT_EQ((*back)[1].rest, "50");
}

} // namespace
} // namespace tavi
