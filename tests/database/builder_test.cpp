// Building a database from transcripts: the order of steps, the record
// values taken from the header lines, the messages with their Cancel, the
// counters and the one summary message.
#include <gtest/gtest.h>

#include "database/db_builder.h"
#include "database/db_messages.h"
#include "database/sample_info.h"
#include "db_test_util.h"
#include "support/recording_prompter.h"
#include "transcript/transcript_file.h"

namespace tavi::db {
namespace {

const char* kGood = "$ Child, Examiner\n"
                    "+ Gender: F\n"
                    "+ DOB: 1-6-2019\n"
                    "+ DOE: 3-20-2024\n"
                    "+ CA: 5;2\n"
                    "+ Grade: K\n"
                    "+ Context: Con\n"
                    "+ Subgroup: Demo\n"
                    "+ Location: Clinic\n"
                    "+ Ethnicity: Hispanic\n"
                    "+ Select: yes\n"
                    "- 0:00\n"
                    "E what did you do today?\n"
                    "C I play/ed with my dog.\n"
                    "- 1:00\n";
const char* kBroken = "$ Child, Examiner\nC I go home\n";

struct Fixture {
    test::ScratchDir dir;
    std::filesystem::path dbPath = dir.path() / "db.tvidb";
    test::RecordingPrompter prompter;
    NoProgress progress;
    std::unique_ptr<Database> db;

    explicit Fixture(const std::string& context = "Conversation") {
        DescriptiveHeader info;
        info.context = context;
        EXPECT_TRUE(createDatabase(dbPath, info, prompter));
        db = openDatabase(dbPath, OpenFor::Writing, prompter);
    }
    BuildResult add(const std::vector<std::string>& files, const BuildOptions& options = {}) {
        BuildOptions withFolder = options;
        withFolder.transcriptFolder = dir.path().string();
        return addTranscripts(*db, files, withFolder, standardChecker(), {}, prompter, progress);
    }
    std::vector<sd2> stored() {
        test::RecordingPrompter p;
        auto again = openDatabase(dbPath, OpenFor::Reading, p);
        return again ? again->records(p).value_or(std::vector<sd2>{}) : std::vector<sd2>{};
    }
};

TEST(DatabaseBuilder, RecordValuesComeFromTheHeaderLines) {
    Fixture f;
    f.dir.write("kim.final.tvi", kGood);
    BuildOptions options;
    options.speaker = 2;
    BuildResult result = f.add({"kim.final.tvi"}, options);
    EXPECT_EQ(result.summary, "1 records added");
    EXPECT_EQ(f.prompter.messages, std::vector<std::string>{"1 records added"});
    auto list = f.stored();
    ASSERT_EQ(list.size(), 1u);
    const sd2& r = list[0];
    EXPECT_EQ(r.key, "kim;2");
    EXPECT_EQ(r.ageMonths, 5 * 12 + 2);
    EXPECT_EQ(r.gender, kGenderFemale);
    EXPECT_EQ(r.grade, "K");
    EXPECT_EQ(r.context, "Con");
    EXPECT_EQ(r.subgroup, "Demo");
    EXPECT_EQ(r.location, "Clinic");
    EXPECT_EQ(r.ethnicity, "Hispanic");
    EXPECT_EQ(r.select, "yes");
    EXPECT_EQ(r.buildOption1, 2);
    EXPECT_TRUE(r.flags & kFlagTimed);
    EXPECT_TRUE(r.flags & kFlagSecondSpeaker);
    EXPECT_EQ(result.listLines,
              std::vector<std::string>{"kim;2 - Con (Demo); Hispanic; Clinic; yes"});
    test::RecordingPrompter p;
    auto again = openDatabase(f.dbPath, OpenFor::Reading, p);
    EXPECT_EQ(again->readTranscript(r, p), std::string(kGood));
}

// A shared database keeps no name, identifier or date: the stored transcript
// loses those lines, the age worked out from the dates stays as "CA", and
// the stored sample still checks clean with the same record values.
TEST(DatabaseBuilder, DeidentifiedSamplesKeepTheAgeOnly) {
    const std::string named = "$ Child, Examiner\r\n"
                              "+ Name: Kim Lee\r\n"
                              "+ ParticipantId: K-17\r\n"
                              "+ Gender: F\r\n"
                              "+ DOB: 1-6-2019\r\n"
                              "+ DOE: 3-20-2024\r\n"
                              "+ Context: Con\r\n"
                              "C I play/ed with my dog.\r\n";
    Fixture f;
    f.dir.write("kim.tvi", named);
    f.dir.write("ann.tvi", "\xEF\xBB\xBF$ Child, Examiner\n+ name: Ann\n+ CA: 4;1\nC hi.\n");
    f.dir.write("bo.tvi", "$ Child, Examiner\n+ Name: Bo\nC hi.");
    BuildOptions options;
    options.deidentify = true;
    EXPECT_EQ(f.add({"kim.tvi", "ann.tvi", "bo.tvi"}, options).summary, "3 records added");
    auto list = f.stored();
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0].ageMonths, 5 * 12 + 2);
    EXPECT_EQ(list[1].ageMonths, 4 * 12 + 1);
    EXPECT_EQ(list[2].ageMonths, kUnknownAge);
    test::RecordingPrompter p;
    auto again = openDatabase(f.dbPath, OpenFor::Reading, p);
    std::string kim = again->readTranscript(list[0], p).value_or("");
    EXPECT_EQ(kim, "$ Child, Examiner\r\n"
                   "+ CA: 5;2\r\n"
                   "+ Gender: F\r\n"
                   "+ Context: Con\r\n"
                   "C I play/ed with my dog.\r\n");
    EXPECT_EQ(again->readTranscript(list[1], p), "$ Child, Examiner\n+ CA: 4;1\nC hi.\n");
    EXPECT_EQ(again->readTranscript(list[2], p), "$ Child, Examiner\nC hi.");
    for (const char* word : {"Kim", "K-17", "DOB", "DOE", "2019", "2024"})
        EXPECT_EQ(kim.find(word), std::string::npos) << word;
    EXPECT_FALSE(standardChecker()(splitTranscriptLines(kim)));
    EXPECT_EQ(sampleInfo(splitTranscriptLines(kim), DateOrder::MonthDayYear).ageMonths, 5 * 12 + 2);
    // A byte order mark before the first line stays where it was.
    EXPECT_EQ(deidentifiedText("\xEF\xBB\xBF+ Name: Al\n$ C, E\n", 30),
              "\xEF\xBB\xBF+ CA: 2;6\n$ C, E\n");
}

TEST(DatabaseBuilder, SameTranscriptTwiceIsADuplicate) {
    Fixture f;
    f.dir.write("a.tvi", kGood);
    f.add({"a.tvi"});
    auto size = std::filesystem::file_size(f.dbPath);
    f.prompter.messages.clear();
    BuildResult result = f.add({"a.tvi"});
    EXPECT_EQ(f.prompter.messages,
              (std::vector<std::string>{"Duplicate record for a;1 - not stored",
                                        "No records added (1 duplicate records)"}));
    EXPECT_EQ(result.counters.duplicates, 1);
    EXPECT_EQ(std::filesystem::file_size(f.dbPath), size);
    // Within one build too.
    f.dir.write("b.tvi", kGood);
    f.prompter.messages.clear();
    result = f.add({"b.tvi", "b.tvi"});
    EXPECT_EQ(result.summary, "1 records added (1 duplicate records)");
}

TEST(DatabaseBuilder, EveryFileFails) {
    Fixture f;
    f.dir.write("bad.tvi", kBroken);
    f.dir.write("good.tvi", kGood);
    f.add({"good.tvi"});
    f.prompter.messages.clear();
    std::string missing = (f.dir.path() / "missing.tvi").string();
    std::string bad = (f.dir.path() / "bad.tvi").string();
    BuildResult result = f.add({"missing.tvi", "bad.tvi", "good.tvi"});
    EXPECT_EQ(f.prompter.messages,
              (std::vector<std::string>{missing + " could not be opened - not stored",
                                        bad + " contains errors - not stored",
                                        "Duplicate record for good;1 - not stored",
                                        "No records added (1 duplicate records, 1 with errors)"}));
    EXPECT_EQ(result.counters.added, 0);
    EXPECT_EQ(f.stored().size(), 1u);
}

TEST(DatabaseBuilder, EnforcedValuesReplaceTheTranscripts) {
    Fixture f("Narration");
    f.dir.write("a.tvi", kGood);
    BuildOptions options;
    for (bool& on : options.enforce)
        on = true;
    options.values[EnforceSubgroup] = "demo"; // matches without regard to case
    options.values[EnforceEthnicity] = "Other";
    options.values[EnforceLocation] = ""; // no database value: not enforced
    options.values[EnforceSelect] = "no";
    BuildResult result = f.add({"a.tvi"}, options);
    EXPECT_EQ(f.prompter.messages,
              (std::vector<std::string>{
                  "Non-matching context for a;1 - stored as Narration",
                  "Non-matching ethnicity for a;1 - stored as Other",
                  "Non-matching +Select value for a;1 - stored as no",
                  "1 records added (1 non-matching context, 1 non-matching ethnicity, 1 "
                  "non-matching +Select value)"}));
    auto list = f.stored();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].context, "Narration");
    EXPECT_EQ(list[0].subgroup, "Demo");
    EXPECT_EQ(list[0].ethnicity, "Other");
    EXPECT_EQ(list[0].select, "no");
    EXPECT_EQ(list[0].buildOption2, 0x1F);
}

TEST(DatabaseBuilder, CancelStopsAfterTheCurrentFile) {
    Fixture f("Narration");
    f.dir.write("a.tvi", kGood);
    f.dir.write("b.tvi", kGood);
    BuildOptions options;
    options.enforce[EnforceContext] = true;
    f.prompter.confirmations = {false};
    BuildResult result = f.add({"a.tvi", "b.tvi"}, options);
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(result.summary, "1 records added (1 non-matching context)");
    auto list = f.stored();
    ASSERT_EQ(list.size(), 1u); // a is kept, b never read
    EXPECT_EQ(list[0].key, "a;1");
}

TEST(DatabaseBuilder, RemovingAsksFirst) {
    Fixture f;
    f.dir.write("a.tvi", kGood);
    f.dir.write("b.tvi", kGood);
    f.add({"a.tvi", "b.tvi"});
    f.prompter.messages.clear();
    f.prompter.confirmations = {false};
    EXPECT_FALSE(removeRecord(*f.db, "a;1", f.prompter));
    EXPECT_EQ(f.stored().size(), 2u);
    EXPECT_TRUE(removeRecord(*f.db, "a;1", f.prompter));
    EXPECT_EQ(f.prompter.messages,
              (std::vector<std::string>{"Remove record a;1?", "Remove record a;1?"}));
    auto list = f.stored();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].key, "b;1");
    EXPECT_FALSE(removeRecord(*f.db, "zzz;1", f.prompter));
    EXPECT_EQ(f.prompter.messages.back(), msg::kRemoveFailed);
    // The database keeps taking records after the rewrite.
    f.add({"a.tvi"});
    EXPECT_EQ(f.stored().size(), 2u);
}

TEST(DatabaseBuilder, ClosingNeedsTheSamplingContext) {
    Fixture f;
    DescriptiveHeader edited = f.db->info();
    edited.context = "  ";
    EXPECT_FALSE(closeBuilder(*f.db, edited, f.prompter));
    EXPECT_EQ(f.prompter.messages.back(), "Missing sampling context");
    edited.context = "Play";
    edited.description = "Play samples";
    EXPECT_TRUE(closeBuilder(*f.db, edited, f.prompter));
    test::RecordingPrompter p;
    EXPECT_EQ(openDatabase(f.dbPath, OpenFor::Reading, p)->info().description, "Play samples");
}

TEST(DatabaseBuilder, NamesAndKeys) {
    EXPECT_EQ(baseName("/data/x.y.tvi"), "x");
    EXPECT_EQ(baseName("C:story.tvi"), "story");
    EXPECT_EQ(baseName("a\\b\\c.tvi"), "c");
    EXPECT_EQ(fullTranscriptPath("a.tvi", "/t/"), "/t/a.tvi");
    EXPECT_EQ(fullTranscriptPath("a.tvi", "/t"), "/t/a.tvi");
    EXPECT_EQ(fullTranscriptPath("sub/a.tvi", "/t"), "sub/a.tvi");
    EXPECT_EQ(recordKey(std::string(50, 'k'), 1), std::string(39, 'k'));
    EXPECT_EQ(recordKey("abc", 2), "abc;2");
}

TEST(DatabaseBuilder, AgeAndGenderRules) {
    EXPECT_EQ(ageFromCa("4;7"), 55);
    EXPECT_EQ(ageFromCa("4"), 48);
    EXPECT_EQ(ageFromCa("4;12"), -1);
    EXPECT_EQ(ageFromDates("5-20-2019", "5-19-2024", DateOrder::MonthDayYear), 59);
    EXPECT_EQ(ageFromDates("20.5.19", "20.5.24", DateOrder::DayMonthYear), 60);
    EXPECT_EQ(ageFromDates("1-1-98", "1-1-03", DateOrder::MonthDayYear), 60);
    EXPECT_EQ(ageFromDates("13-1-2019", "1-1-2024", DateOrder::MonthDayYear), -1);
    EXPECT_EQ(genderCode("Male"), kGenderMale);
    EXPECT_EQ(genderCode("n"), kGenderNonBinary);
    EXPECT_EQ(genderCode("?"), kGenderUnknown);
    EXPECT_TRUE(valuesMatch("Con", "conversation"));
    EXPECT_TRUE(valuesMatch(" Nar ", "Narrative"));
    EXPECT_FALSE(valuesMatch("Con", "Narration"));
}

TEST(DatabaseBuilder, SummaryWording) {
    BuildCounters c;
    EXPECT_EQ(buildSummary(c), "No records added");
    c.added = 3;
    c.duplicates = 1;
    c.withErrors = 2;
    EXPECT_EQ(buildSummary(c), "3 records added (1 duplicate records, 2 with errors)");
    c = {};
    c.nonMatching[EnforceLocation] = 4;
    c.nonMatching[EnforceSubgroup] = 1;
    EXPECT_EQ(buildSummary(c),
              "No records added (1 non-matching subgroup, 4 non-matching location)");
}

} // namespace
} // namespace tavi::db
