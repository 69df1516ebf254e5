// Byte-level checks of the database file format: the fixed header, long text
// fields and their block count rule, the restricted-access block, the
// descriptive header and the 1584-byte record.
#include <gtest/gtest.h>

#include "database/db_fields.h"
#include "database/db_header.h"
#include "database/sd2.h"
#include "database/transcript_data.h"
#include "db_test_util.h"

namespace tavi::db {
namespace {

using test::block;
using test::u16;

DescriptiveHeader conversation() {
    DescriptiveHeader h;
    h.context = "Conversation";
    return h;
}

TEST(DatabaseFormat, EmptyDatabaseBytes) {
    std::string expected = u16(" 20") + u16("           0") + u16("           0") + u16("  1") +
                           block("Conversation") +   // context
                           u16("  0") + u16("  0") + // description, further text
                           u16("  1") + block("[]") + u16("  1") + block("[]") + u16("  1") +
                           block("[]") + u16("  1") + block("[]") + // four empty code lists
                           u16("101") + u16("  0") + u16("  0") + u16("  6") + u16("  0") +
                           u16("  0");
    EXPECT_EQ(*encodeHeader({}) + encodeDescriptiveHeader(conversation()), expected);
}

TEST(DatabaseFormat, HeaderPositionsAreWrittenFrom32BitsAndReadInto64) {
    DbHeader h{20, 54, 2147483647};
    std::string bytes = *encodeHeader(h);
    EXPECT_EQ(bytes, u16(" 20") + u16("          54") + u16("  2147483647"));
    DbHeader back;
    ASSERT_EQ(decodeHeader(bytes, back), HeaderProblem::None);
    EXPECT_EQ(back, h);
    EXPECT_FALSE(encodeHeader({20, 54, 2147483648LL}));
    // The reader takes what "%I64d" takes, beyond 32 bits too.
    ASSERT_EQ(decodeHeader(u16(" 20") + u16(" 99999999999") + u16(" 99999999999"), back),
              HeaderProblem::None);
    EXPECT_EQ(back.firstRecord, 99999999999LL);
}

TEST(DatabaseFormat, VersionsAndHeaderProblems) {
    DbHeader h;
    std::string positions = u16("           0") + u16("           0");
    EXPECT_EQ(decodeHeader(u16(" 18") + positions, h), HeaderProblem::None);
    EXPECT_EQ(h.version, 18);
    EXPECT_EQ(decodeHeader(u16(" 19") + positions, h), HeaderProblem::WrongVersion);
    EXPECT_EQ(decodeHeader(u16("abc") + positions, h), HeaderProblem::WrongVersion);
    EXPECT_EQ(decodeHeader(u16(" 2"), h), HeaderProblem::MissingVersion);
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("    x"), h), HeaderProblem::MissingFirst);
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("           0") + u16("      "), h),
              HeaderProblem::MissingLast);
    // Positions that cannot belong to a chain.
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("         -92") + u16("        2748"), h),
              HeaderProblem::MissingFirst);
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("          10") + u16("          10"), h),
              HeaderProblem::MissingFirst);
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("           0") + u16("        2748"), h),
              HeaderProblem::MissingLast);
    EXPECT_EQ(decodeHeader(u16(" 20") + u16("        2748") + u16("        1000"), h),
              HeaderProblem::MissingLast);
}

TEST(DatabaseFormat, LongTextBlockCountRule) {
    std::string eighty(80, 'a');
    EXPECT_EQ(encodeLongText(eighty), u16("  2") + u16(eighty)); // count 2, one block
    EXPECT_EQ(decodeLongText(encodeLongText(eighty)), eighty);
    EXPECT_EQ(encodeLongText(""), u16("  0"));
    EXPECT_EQ(decodeLongText(u16("  0")), "");
    EXPECT_EQ(encodeLongText(std::string(79, 'b')), u16("  1") + block(std::string(79, 'b')));
    std::string hundred(100, 'c');
    EXPECT_EQ(encodeLongText(hundred), u16("  2") + u16(std::string(80, 'c')) +
                                           block("cccccccccc"
                                                 "cccccccccc"));
    EXPECT_EQ(decodeLongText(encodeLongText(hundred)), hundred);
    std::string oneSixty(160, 'd');
    EXPECT_EQ(encodeLongText(oneSixty).size(), 6u + 320u); // count 3, two blocks
    EXPECT_EQ(decodeLongText(encodeLongText(oneSixty)), oneSixty);
}

TEST(DatabaseFormat, ExactMultipleTextsReadBackInsideTheHeader) {
    // Texts of 80 and 160 characters are followed by more items; each must
    // read back exactly and leave the items after it intact.
    for (std::string description :
         {std::string(80, 'x'), std::string(160, 'y'), std::string(79, 'z') + "[",
          std::string(78, 'w') + "  1" + std::string(79, 'v')}) {
        DescriptiveHeader h = conversation();
        h.description = description;
        h.further = std::string(80, 'f');
        h.codeLists[ErrorCodes] = {"[EW]", "[EO]"};
        h.enforcement = "YNNNN";
        h.ageSpan = 12;
        DescriptiveHeader back;
        ASSERT_TRUE(decodeDescriptiveHeader(encodeDescriptiveHeader(h), back)) << description;
        EXPECT_EQ(back, h) << description;
    }
}

TEST(DatabaseFormat, RestrictedBlockGivesThePassword) {
    std::string bytes = block("RESTRICTED  abc ") + encodeDescriptiveHeader(conversation());
    DescriptiveHeader h;
    ASSERT_TRUE(decodeDescriptiveHeader(bytes, h));
    EXPECT_TRUE(h.restricted);
    EXPECT_EQ(h.password, "abc");
    EXPECT_EQ(h.context, "Conversation");

    DescriptiveHeader written = conversation();
    written.restricted = true;
    written.password = "secret";
    EXPECT_EQ(encodeDescriptiveHeader(written).substr(0, 160), block("RESTRICTED secret"));
}

TEST(DatabaseFormat, AbsentCodeListsKeepTheirContents) {
    // An older header without code lists: the sample type follows item 3.
    std::string bytes = u16("  1") + block("Narrative") + u16("  0") + u16("  0") + u16("102");
    DescriptiveHeader h;
    h.codeLists[FluencyCodes] = {"[FP]"};
    ASSERT_TRUE(decodeDescriptiveHeader(bytes, h));
    EXPECT_EQ(h.context, "Narrative");
    EXPECT_EQ(h.codeLists[FluencyCodes], std::vector<std::string>{"[FP]"});
    EXPECT_EQ(h.sampleType, 5);
    EXPECT_EQ(h.ageSpan, kDefaultAgeSpan);
}

TEST(DatabaseFormat, CodeListsSplitTrimAndDropEmptyItems) {
    EXPECT_EQ(joinCodeList({"EW", " [EO] ", ""}), "[EW] [EO]");
    EXPECT_EQ(splitCodeList("[EW]   [EO] []"), (std::vector<std::string>{"[EW]", "[EO]"}));
}

TEST(DatabaseFormat, SampleTypeAndAgeSpanRules) {
    EXPECT_EQ(sampleTypeFromCode(101), 4);
    EXPECT_EQ(sampleTypeFromCode(104), 4);
    EXPECT_EQ(sampleTypeFromCode(102), 5);
    EXPECT_EQ(sampleTypeFromCode(103), 6);
    EXPECT_EQ(sampleTypeFromCode(std::nullopt), 4);
    for (auto [field, span] :
         {std::pair{"  0", 6}, {" 61", 6}, {" 60", 60}, {"  1", 1}, {"abc", 6}}) {
        std::string bytes = u16("  1") + block("Play") + u16("  0") + u16("  0") + u16("  1") +
                            block("[]") + u16("  1") + block("[]") + u16("  1") + block("[]") +
                            u16("  1") + block("[]") + u16("999") + u16("  0") + u16("  0") +
                            u16(field) + u16("  0") + u16("  0");
        DescriptiveHeader h;
        ASSERT_TRUE(decodeDescriptiveHeader(bytes, h)) << field;
        EXPECT_EQ(h.ageSpan, span) << field;
        EXPECT_EQ(h.sampleType, 4);
    }
}

TEST(DatabaseFormat, RecordFieldsAtTheirOffsets) {
    sd2 r;
    r.key = "sample1;1";
    r.flags = 0x0102;
    r.ageMonths = 55;
    r.gender = 2;
    r.context = "Conversation";
    r.grade = "K";
    r.ethnicity = std::string(30, 'e'); // cut to 19 characters
    r.dataPosition = 0x123456789A;
    r.position = 1000;
    r.previous = 500;
    r.select = "yes";
    r.sets[0] = {120, 30, 300};
    r.buildOption1 = 1;
    std::string b = encodeRecord(r);
    ASSERT_EQ(b.size(), 1584u);
    EXPECT_EQ(b.substr(0, 20), u16("sample1;1") + std::string(2, '\0'));
    EXPECT_EQ(b.substr(80, 6), std::string("\x02\x01\x37\x00\x02\x00", 6));
    EXPECT_EQ(b.substr(88, 24), u16("Conversation"));
    EXPECT_EQ(b.substr(352, 8), std::string("\x9A\x78\x56\x34\x12\x00\x00\x00", 8));
    EXPECT_EQ(b.substr(370, 40), u16(std::string(19, 'e')) + std::string(2, '\0'));
    EXPECT_EQ(b.substr(410, 4), u16("K") + std::string(2, '\0'));
    EXPECT_EQ(b.substr(428, 12), std::string("\x78\0\0\0\x1E\0\0\0\x2C\x01\0\0", 12));
    EXPECT_EQ(b.substr(548, 4), std::string("\x01\0\0\0", 4));
    EXPECT_EQ(b.substr(556, 2), std::string("\x01\0", 2));
    EXPECT_EQ(b.substr(568, 16), std::string("\xE8\x03\0\0\0\0\0\0\xF4\x01\0\0\0\0\0\0", 16));
    EXPECT_EQ(b.substr(584, 6), u16("yes"));

    sd2 back = decodeRecord(b);
    r.ethnicity.resize(19);
    EXPECT_EQ(back, r);
}

TEST(DatabaseFormat, FixedFieldsNeverSplitASurrogatePair) {
    std::string smile = "\xF0\x9F\x98\x80"; // two UTF-16 units
    EXPECT_EQ(cutToUnits(std::string(38, 'a') + smile, 39), std::string(38, 'a'));
    EXPECT_EQ(decodeFixedText(encodeFixedText(std::string(38, 'a') + smile, 40)),
              std::string(38, 'a'));
    EXPECT_EQ(decodeFixedText(encodeFixedText(std::string(37, 'a') + smile, 40)),
              std::string(37, 'a') + smile);
}

TEST(DatabaseFormat, TranscriptDataReadsBackExactly) {
    std::string text = "$ Child, Examiner\r\n+ Context: Con\nC I sa\xC3\xAF\xE2\x80\x9Chi.\r\n";
    std::string bytes = encodeTranscriptData(text);
    EXPECT_EQ(bytes.substr(0, 4), std::string("\x2F\0\0\0", 4));
    EXPECT_EQ(decodeTranscriptData(bytes), text);
    EXPECT_FALSE(decodeTranscriptData(bytes.substr(0, bytes.size() - 1)));
    EXPECT_FALSE(decodeTranscriptData(std::string("\xFF\xFF\xFF\xFF", 4)));
}

} // namespace
} // namespace tavi::db
