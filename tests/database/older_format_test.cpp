// Conversion of the older three-file layout. No such files exist any more,
// so each test writes its own .sd1/.sd2/.sd3 trio.
#include <gtest/gtest.h>

#include "database/database_file.h"
#include "database/older_format.h"
#include "database/transcript_data.h"
#include "db_test_util.h"
#include "support/recording_prompter.h"

namespace tavi::db {
namespace {

using test::block;
using test::u16;

std::string sd1Bytes(const std::string& version, const std::string& first = "        1234",
                     const std::string& last = "        5678") {
    return u16(version) + u16(first) + u16(last) + u16("  1") + block("Narrative") + u16("  1") +
           block("Old stories") + u16("  0") + u16("102");
}

struct Trio {
    test::ScratchDir dir;
    std::filesystem::path sd1 = dir.path() / "old.sd1";
    std::vector<std::string> texts = {"$ C, E\nC one.\n", "$ C, E\r\nC two.\r\n"};

    explicit Trio(const std::string& version = " 18", bool withRecords = true) {
        dir.write("old.sd1", sd1Bytes(version));
        if (!withRecords)
            return;
        std::string records, sd3 = "junk before the entries";
        for (std::size_t i = 0; i < texts.size(); ++i) {
            sd2 r;
            r.key = "old" + std::to_string(i) + ";1";
            r.ageMonths = static_cast<std::int16_t>(60 + i);
            r.context = "Nar";
            r.position = 999; // positions of the old layout mean nothing here
            r.dataPosition = static_cast<std::int64_t>(sd3.size());
            sd3 += encodeTranscriptData(texts[i]);
            r.dataEnd = static_cast<std::int64_t>(sd3.size());
            records += encodeRecord(r);
        }
        dir.write("old.sd2", records);
        dir.write("old.sd3", sd3);
    }
};

TEST(OlderFormat, ConvertsTheThreeFilesIntoOne) {
    Trio trio;
    test::RecordingPrompter p;
    auto converted = convertOlderDatabase(trio.sd1, p);
    ASSERT_TRUE(converted);
    EXPECT_EQ(*converted, trio.dir.path() / "old.tvidb");
    EXPECT_EQ(p.messages, std::vector<std::string>{trio.sd1.string() +
                                                   " is an older database format. Would you "
                                                   "like to convert it?"});
    auto db = openDatabase(*converted, OpenFor::Reading, p);
    ASSERT_TRUE(db);
    EXPECT_EQ(db->header().version, 20);
    EXPECT_EQ(db->info().context, "Narrative");
    EXPECT_EQ(db->info().description, "Old stories");
    EXPECT_EQ(db->info().sampleType, 5);
    auto list = db->records(p);
    ASSERT_TRUE(list);
    ASSERT_EQ(list->size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ((*list)[i].key, "old" + std::to_string(i) + ";1");
        EXPECT_EQ((*list)[i].ageMonths, 60 + int(i));
        EXPECT_EQ(db->readTranscript((*list)[i], p), trio.texts[i]);
    }
    EXPECT_EQ(db->recordsBackward(p)->size(), 2u);
}

// The older header's positions point into the ".sd2" file: a first record at
// 0 (or 1, counted from one) is as readable as any other, and only a
// position that is not a number refuses the file.
TEST(OlderFormat, HeaderPositionsNeedOnlyBeReadable) {
    for (auto [first, last] :
         {std::pair{"           0", "        3168"}, std::pair{"           1", "        3169"}}) {
        Trio trio;
        trio.dir.write("old.sd1", sd1Bytes(" 18", first, last));
        test::RecordingPrompter p;
        auto converted = convertOlderDatabase(trio.sd1, p);
        ASSERT_TRUE(converted) << first << "/" << last;
        auto db = openDatabase(*converted, OpenFor::Reading, p);
        ASSERT_TRUE(db);
        EXPECT_EQ(db->records(p)->size(), 2u);
    }
    Trio trio;
    trio.dir.write("old.sd1", sd1Bytes(" 18", "        none", "        3168"));
    test::RecordingPrompter p;
    EXPECT_FALSE(convertOlderDatabase(trio.sd1, p));
    EXPECT_EQ(p.messages.back(), trio.sd1.string() + " could not be converted");
}

TEST(OlderFormat, MissingCompanionFilesMeanAnEmptyDatabase) {
    Trio trio(" 20", false);
    test::RecordingPrompter p;
    auto converted = convertOlderDatabase(trio.sd1, p);
    ASSERT_TRUE(converted);
    std::string sd2 = (trio.dir.path() / "old.sd2").string();
    EXPECT_EQ(p.messages.back(),
              sd2 + " could not be opened - assume no transcripts stored in database");
    auto db = openDatabase(*converted, OpenFor::Reading, p);
    ASSERT_TRUE(db);
    EXPECT_TRUE(db->records(p)->empty());
}

TEST(OlderFormat, RefusalsAndTheirMessages) {
    {
        Trio trio(" 19");
        test::RecordingPrompter p;
        EXPECT_FALSE(convertOlderDatabase(trio.sd1, p));
        EXPECT_EQ(p.messages.back(), "Incorrect version: " + trio.sd1.string() +
                                         " contains incorrect version (19) - not converted");
    }
    {
        Trio trio;
        test::RecordingPrompter p;
        p.answers = {Answer::No};
        EXPECT_FALSE(convertOlderDatabase(trio.sd1, p));
        EXPECT_EQ(p.messages.size(), 1u);
        EXPECT_FALSE(std::filesystem::exists(trio.dir.path() / "old.tvidb"));
    }
    {
        Trio trio;
        test::RecordingPrompter p;
        EXPECT_FALSE(convertOlderDatabase(trio.dir.path() / "none.sd1", p));
        EXPECT_EQ(p.messages.back(), (trio.dir.path() / "none.sd1").string() +
                                         " could not be opened - database not converted");
    }
    {
        Trio trio;
        trio.dir.write("old.tvidb", "precious");
        test::RecordingPrompter p;
        EXPECT_FALSE(convertOlderDatabase(trio.sd1, p));
        EXPECT_EQ(p.messages.back(), (trio.dir.path() / "old.tvidb").string() +
                                         " could not be created - database not converted");
        std::string kept;
        std::ifstream(trio.dir.path() / "old.tvidb") >> kept;
        EXPECT_EQ(kept, "precious");
    }
    {
        Trio trio;
        trio.dir.write("old.sd3", "short");
        test::RecordingPrompter p;
        EXPECT_FALSE(convertOlderDatabase(trio.sd1, p));
        EXPECT_EQ(p.messages[1], "Problem seeking transcript entries");
        EXPECT_EQ(p.messages[2], trio.sd1.string() + " could not be converted");
    }
}

} // namespace
} // namespace tavi::db
