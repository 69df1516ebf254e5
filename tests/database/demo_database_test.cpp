// The demonstration databases shipped in data/samples/ open with the current
// reader, and every stored sample reads back as a transcript the checker
// accepts: a format change that strands them fails here.
#include <gtest/gtest.h>

#include "database/database_file.h"
#include "support/recording_prompter.h"
#include "transcript/checker.h"
#include "transcript/transcript_file.h"

namespace tavi::db {
namespace {

TEST(DemoDatabases, OpenAndHoldCheckedSamples) {
    for (const char* name : {"demo-conversation.tvidb", "demo-narrative.tvidb"}) {
        std::filesystem::path path = std::filesystem::path(TAVI_SOURCE_DATA_DIR) / "samples" / name;
        test::RecordingPrompter p;
        auto db = openDatabase(path, OpenFor::Reading, p);
        ASSERT_TRUE(db) << name;
        auto records = db->records(p);
        ASSERT_TRUE(records) << name;
        EXPECT_EQ(records->size(), 16u) << name;
        for (const sd2& record : *records) {
            auto text = db->readTranscript(record, p);
            ASSERT_TRUE(text) << record.key;
            EXPECT_FALSE(checkTranscript(splitTranscriptLines(*text)).hasErrors) << record.key;
            EXPECT_GE(record.ageMonths, 36) << record.key;
            EXPECT_TRUE(record.flags & kFlagValues) << record.key;
        }
        EXPECT_TRUE(p.messages.empty()) << name;
    }
}

} // namespace
} // namespace tavi::db
