// The operations on an open database: appending by the chain algorithm,
// walking the chain both ways, reading stored transcripts back, clearing,
// removing, the contents listing, and what a failed write leaves behind.
#include <gtest/gtest.h>

#include "database/contents_listing.h"
#include "database/database_file.h"
#include "database/db_messages.h"
#include "database/transcript_data.h"
#include "db_test_util.h"
#include "support/recording_prompter.h"

namespace tavi::db {
namespace {

DescriptiveHeader conversation() {
    DescriptiveHeader h;
    h.context = "Conversation";
    return h;
}

std::unique_ptr<Database> memoryDatabase(const DescriptiveHeader& info = conversation()) {
    auto db = std::make_unique<Database>(std::make_unique<MemoryDbFile>(newDatabaseBytes(info)),
                                         "test.tvidb");
    test::RecordingPrompter p;
    EXPECT_TRUE(openDatabase(*db, p));
    return db;
}

const std::string& bytesOf(Database& db) {
    return static_cast<MemoryDbFile&>(db.file()).bytes();
}

sd2 sample(const std::string& key, int age, const std::string& subgroup = "") {
    sd2 r;
    r.key = key;
    r.ageMonths = static_cast<std::int16_t>(age);
    r.context = "Conversation";
    r.subgroup = subgroup;
    return r;
}

TEST(DatabaseOperations, OneRecordGoldenLayout) {
    auto db = memoryDatabase();
    std::size_t headerEnd = bytesOf(*db).size();
    test::RecordingPrompter p;
    sd2 r = sample("a;1", 50);
    std::string text = "$ Child, Adult\nC Hi.\n";
    ASSERT_TRUE(db->append(r, text, p));
    const std::string& b = bytesOf(*db);
    std::string data = encodeTranscriptData(text);
    ASSERT_EQ(b.size(), headerEnd + 1584 + data.size());
    std::string first = test::u16(std::to_string(headerEnd));
    EXPECT_EQ(b.substr(0, 54), test::u16(" 20") + test::u16(std::string(12 - 3, ' ')) + first +
                                   test::u16(std::string(9, ' ')) + first);
    EXPECT_EQ(b.substr(headerEnd + 1584), data);
    sd2 stored = decodeRecord(std::string_view(b).substr(headerEnd, 1584));
    EXPECT_EQ(stored.position, std::int64_t(headerEnd));
    EXPECT_EQ(stored.previous, 0);
    EXPECT_EQ(stored.dataPosition, std::int64_t(headerEnd + 1584));
    EXPECT_EQ(stored.dataEnd, std::int64_t(b.size()));
    EXPECT_EQ(stored.stored, 1);
    EXPECT_TRUE(p.messages.empty());
}

TEST(DatabaseOperations, ChainWalksBothWaysAndTranscriptsReadBack) {
    auto db = memoryDatabase();
    test::RecordingPrompter p;
    std::vector<std::string> texts = {"$ C, A\r\nC One.\r\n", "", "$ C\nC \xC3\xA9t\xC3\xA9.\n"};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        sd2 r = sample("s" + std::to_string(i) + ";1", 40 + int(i));
        ASSERT_TRUE(db->append(r, texts[i], p));
    }
    // Reopen from the bytes, as a later run would.
    Database again(std::make_unique<MemoryDbFile>(bytesOf(*db)), "test.tvidb");
    ASSERT_TRUE(openDatabase(again, p));
    auto forward = again.records(p);
    auto backward = again.recordsBackward(p);
    ASSERT_TRUE(forward && backward);
    ASSERT_EQ(forward->size(), 3u);
    ASSERT_EQ(backward->size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ((*forward)[i], (*backward)[2 - i]);
        EXPECT_EQ(again.readTranscript((*forward)[i], p), texts[i]);
    }
    EXPECT_EQ((*forward)[1].previous, (*forward)[0].position);
    EXPECT_EQ((*forward)[1].position, (*forward)[0].dataEnd);
    EXPECT_TRUE(p.messages.empty());
}

TEST(DatabaseOperations, ClearingKeepsTheDescriptiveHeader) {
    auto db = memoryDatabase();
    std::string empty = bytesOf(*db);
    test::RecordingPrompter p;
    ASSERT_TRUE(db->clearTranscripts(p)); // nothing stored: unchanged
    EXPECT_EQ(bytesOf(*db), empty);
    sd2 r = sample("a;1", 50);
    ASSERT_TRUE(db->append(r, "text", p));
    ASSERT_TRUE(db->clearTranscripts(p));
    EXPECT_EQ(bytesOf(*db), empty);
    // And it takes new records again.
    ASSERT_TRUE(db->append(r, "text", p));
    EXPECT_EQ(db->records(p)->size(), 1u);
    EXPECT_TRUE(p.messages.empty());
}

TEST(DatabaseOperations, RemovingRewritesTheChain) {
    auto db = memoryDatabase();
    test::RecordingPrompter p;
    for (const char* key : {"a;1", "b;1", "c;1"}) {
        sd2 r = sample(key, 50);
        ASSERT_TRUE(db->append(r, std::string(key) + " text", p));
    }
    ASSERT_TRUE(db->rewrite(
        db->info(), [](const sd2& r) { return r.key != "b;1"; }, "fail", p));
    Database again(std::make_unique<MemoryDbFile>(bytesOf(*db)), "test.tvidb");
    ASSERT_TRUE(openDatabase(again, p));
    auto list = again.records(p);
    ASSERT_TRUE(list);
    ASSERT_EQ(list->size(), 2u);
    EXPECT_EQ((*list)[1].key, "c;1");
    EXPECT_EQ((*list)[1].previous, (*list)[0].position);
    EXPECT_EQ(again.readTranscript((*list)[1], p), "c;1 text");
    EXPECT_EQ(again.recordsBackward(p)->size(), 2u);
}

TEST(DatabaseOperations, WriteRecordsPatchesInPlace) {
    auto db = memoryDatabase();
    test::RecordingPrompter p;
    sd2 r = sample("a;1", 50);
    ASSERT_TRUE(db->append(r, "x", p));
    r.subgroup = "late talkers";
    ASSERT_TRUE(db->writeRecords({r}, p));
    EXPECT_EQ(db->records(p)->front().subgroup, "late talkers");
    sd2 stray = r;
    stray.position = 1 << 20;
    EXPECT_FALSE(db->writeRecords({stray}, p));
    EXPECT_EQ(p.messages.back(), msg::kRecordSeek);
}

// A write that fails anywhere inside an append leaves the records stored
// before it readable, with the header unchanged.
TEST(DatabaseOperations, FailedAppendLeavesAReadableDatabase) {
    auto good = memoryDatabase();
    test::RecordingPrompter p;
    sd2 first = sample("first;1", 50);
    ASSERT_TRUE(good->append(first, "first transcript", p));
    std::string before = bytesOf(*good);
    std::string text(500, 't');
    std::size_t fullAppend = 1584 + encodeTranscriptData(text).size() + 1584 + 54;
    for (std::size_t budget : {std::size_t(0), std::size_t(100), std::size_t(1584),
                               std::size_t(1700), fullAppend - 54, fullAppend - 10}) {
        for (bool truncateWorks : {false, true}) {
            auto file = std::make_unique<test::FailingFile>(before, budget);
            file->truncateWorks = truncateWorks;
            test::FailingFile* raw = file.get();
            Database db(std::move(file), "test.tvidb");
            test::RecordingPrompter q;
            ASSERT_TRUE(openDatabase(db, q));
            sd2 second = sample("second;1", 60);
            EXPECT_FALSE(db.append(second, text, q)) << budget;
            ASSERT_FALSE(q.messages.empty());

            Database reread(std::make_unique<MemoryDbFile>(raw->bytes()), "test.tvidb");
            test::RecordingPrompter r;
            ASSERT_TRUE(openDatabase(reread, r)) << budget;
            auto list = reread.records(r);
            ASSERT_TRUE(list) << budget;
            ASSERT_EQ(list->size(), 1u) << budget;
            EXPECT_EQ(reread.readTranscript(list->front(), r), "first transcript");
            // A later append on the damaged file still gives a sound chain.
            sd2 third = sample("third;1", 70);
            ASSERT_TRUE(reread.append(third, "third", r)) << budget;
            EXPECT_EQ(reread.records(r)->size(), 2u);
            EXPECT_EQ(reread.recordsBackward(r)->size(), 2u);
            EXPECT_TRUE(r.messages.empty()) << r.messages.front();
        }
    }
}

// Damaged chain positions end in a message; neither walk follows them.
TEST(DatabaseOperations, DamagedChainIsReported) {
    auto db = memoryDatabase();
    test::RecordingPrompter p;
    for (const char* key : {"a;1", "b;1"}) {
        sd2 r = sample(key, 50);
        ASSERT_TRUE(db->append(r, "text", p));
    }
    std::string good = bytesOf(*db);
    auto second = static_cast<std::size_t>(db->header().lastRecord);
    struct Damage {
        std::size_t offset;
        std::string bytes;
    };
    for (const Damage& d : {Damage{second + 576, std::string("\x01\x02\x03\x04", 4)},
                            Damage{second + 568, std::string("\x07", 1)},
                            Damage{second - 1584 - 12 + 360, std::string("\x10", 1)}}) {
        std::string bytes = good;
        bytes.replace(d.offset, d.bytes.size(), d.bytes);
        Database damaged(std::make_unique<MemoryDbFile>(bytes), "d.tvidb");
        test::RecordingPrompter q;
        ASSERT_TRUE(openDatabase(damaged, q));
        EXPECT_FALSE(damaged.records(q));
        EXPECT_FALSE(damaged.recordsBackward(q));
        EXPECT_EQ(q.messages.size(), 2u);
    }
}

TEST(DatabaseOperations, HeaderMessages) {
    struct Case {
        std::string bytes;
        std::string message;
    };
    std::string positions = test::u16("           0") + test::u16("           0");
    std::vector<Case> cases = {
        {test::u16(" 2"), "Incorrect format: f.tvidb is missing version number"},
        {test::u16(" 19") + positions, "Incompatible version: f.tvidb has wrong version number"},
        {test::u16(" 20"), "Incorrect format: f.tvidb is missing index of first transcript data"},
        {test::u16(" 20") + test::u16("           0"),
         "Incorrect format: f.tvidb is missing index of last transcript data"},
        {test::u16(" 20") + positions + test::u16("  0"),
         "Incorrect format: f.tvidb is missing sampling context"},
        {test::u16(" 20") + positions + test::u16("  5"), "Problem reading database file"},
    };
    for (const Case& c : cases) {
        Database db(std::make_unique<MemoryDbFile>(c.bytes), "f.tvidb");
        test::RecordingPrompter p;
        EXPECT_FALSE(openDatabase(db, p));
        EXPECT_EQ(p.messages, std::vector<std::string>{c.message});
    }
    Database v18(std::make_unique<MemoryDbFile>(test::u16(" 18") + positions + test::u16("  1") +
                                                test::block("Narrative")),
                 "old.tvidb");
    test::RecordingPrompter p;
    EXPECT_TRUE(openDatabase(v18, p));
    EXPECT_EQ(v18.info().context, "Narrative");
}

TEST(DatabaseOperations, RestrictedDatabaseNeedsItsPassword) {
    DescriptiveHeader info = conversation();
    info.restricted = true;
    info.password = "abc";
    std::string bytes = newDatabaseBytes(info);
    for (const char* password : {"", "abd", "abc"}) {
        Database db(std::make_unique<MemoryDbFile>(bytes), "r.tvidb");
        test::RecordingPrompter p;
        bool opened = openDatabase(db, p, password);
        EXPECT_EQ(opened, std::string(password) == "abc");
        if (!opened) {
            EXPECT_EQ(p.messages, std::vector<std::string>{msg::kRestricted});
        }
    }
}

TEST(DatabaseOperations, ContentsListing) {
    std::vector<sd2> records = {sample("a;1", 40), sample("b;1", 65), sample("c;1", -1, "late"),
                                sample("d;1", 100)};
    records[3].context = "Narrative";
    records[3].location = "Madison";
    auto lines = contentsListing("demo.tvidb", "Conversation", records);
    std::vector<std::string> expected = {
        "Database Contents",
        "Database: demo.tvidb",
        "Context:  Conversation",
        "     Context: Conversation     Subgroup: <none>     Ages: 3;4 - 5;5     # Samples: 2",
        "     Context: Conversation     Subgroup: late     Ages: <none>     # Samples: 1",
        "     Context: Conversation     Subgroup: <all>     Ages: 3;4 - 5;5     # Samples: 3",
        "     Context: Narrative     Subgroup: <none>     Ages: 8;4     # Samples: 1     Loc: "
        "Madison",
    };
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(contentsListing("e.tvidb", "Play", {}).back(), "Empty database file");
}

TEST(DatabaseOperations, DiskDatabaseReadOnlyIsNeverWritten) {
    test::ScratchDir dir;
    auto path = dir.path() / "ro.tvidb";
    test::RecordingPrompter p;
    ASSERT_TRUE(createDatabase(path, conversation(), p));
    std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::group_read);
    auto db = openDatabase(path, OpenFor::Writing, p);
    ASSERT_TRUE(db);
    EXPECT_TRUE(db->readOnly());
    std::string readOnly = path.string() +
                           " is opened for READ ONLY - you cannot edit the contents unless you run "
                           "the software as an administrator or move the database files to an "
                           "unprotected folder.";
    EXPECT_EQ(p.messages, std::vector<std::string>{readOnly});
    auto size = std::filesystem::file_size(path);
    sd2 r = sample("a;1", 50);
    EXPECT_FALSE(db->append(r, "text", p));
    EXPECT_EQ(p.messages.back(), readOnly);
    EXPECT_EQ(std::filesystem::file_size(path), size);
}

} // namespace
} // namespace tavi::db
