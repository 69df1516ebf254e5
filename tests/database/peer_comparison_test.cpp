// Comparing a transcript with its database peers: the single-precision
// statistics, the one comparison rule and its edges, equating and its
// reasons, the selection's checks in order, ages and the record test.
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/peer_stats.h"
#include "database/peer_selection.h"
#include "db_test_util.h"
#include "support/recording_prompter.h"

namespace tavi::db {
namespace {

PeerStat statOf(std::initializer_list<float> values) {
    PeerStatAccumulator sum;
    for (float x : values)
        sum.add(x);
    return sum.result();
}

TEST(PeerStatistics, SampleSdWithNMinusOneAndItsEdges) {
    PeerStat three = statOf({12.0f, 8.0f, 10.0f});
    EXPECT_EQ(three.n, 3);
    EXPECT_EQ(three.mean, 10.0f);
    EXPECT_EQ(three.sd, 2.0f); // (308 - 900 / 3) / 2 = 4
    EXPECT_EQ(three.min, 8.0f);
    EXPECT_EQ(three.max, 12.0f);

    PeerStat one = statOf({7.3f});
    EXPECT_EQ(one.mean, 7.3f);
    EXPECT_EQ(one.sd, 0.0f);
    EXPECT_EQ(one.min, 7.3f);
    EXPECT_EQ(one.max, 7.3f);

    // Identical values whose single-precision sums round: never a negative
    // variance, never NaN.
    PeerStat same = statOf({0.1f, 0.1f, 0.1f, 0.1f, 0.1f, 0.1f, 0.1f});
    EXPECT_EQ(same.sd, 0.0f);

    PeerStatAccumulator text;
    text.add(3.0f);
    text.add(5.0f);
    PeerStat noSpread = text.result(false);
    EXPECT_EQ(noSpread.mean, 4.0f);
    EXPECT_EQ(noSpread.sd, 0.0f);
    EXPECT_FALSE(noSpread.hasSd);
    EXPECT_FALSE(measureCarriesSd(MeasureId::BrownStg));
    EXPECT_TRUE(measureCarriesSd(MeasureId::MLUw));
}

TEST(PeerComparisonRule, AtTheIntervalDiffersAndThreeSdIsWorded) {
    const PeerStat s = statOf({8.0f, 10.0f, 12.0f}); // mean 10, SD 2
    auto at = compareWithPeers(12.0, s, 1.0f);
    ASSERT_TRUE(at && at->z);
    EXPECT_EQ(*at->z, 1.0f);
    EXPECT_EQ(at->standing, PeerStanding::Above); // |z| equal to the interval differs
    EXPECT_EQ(at->distance, "1.00 SD");
    EXPECT_EQ(compareWithPeers(8.0, s, 1.0f)->standing, PeerStanding::Below);
    EXPECT_EQ(compareWithPeers(11.9, s, 1.0f)->standing, PeerStanding::Comparable);
    EXPECT_EQ(compareWithPeers(12.0, s, 1.5f)->standing, PeerStanding::Comparable);

    EXPECT_EQ(compareWithPeers(16.0, s, 1.0f)->distance, "3.00 SD"); // exactly 3
    EXPECT_EQ(compareWithPeers(17.0, s, 1.0f)->distance, "more than 3 SD");
    auto far = compareWithPeers(3.0, s, 1.0f);
    EXPECT_EQ(far->standing, PeerStanding::Below);
    EXPECT_EQ(far->distance, "more than 3 SD");

    // SD 0 (one sample, identical values): comparable, without z.
    auto flat = compareWithPeers(50.0, statOf({7.0f}), 1.0f);
    ASSERT_TRUE(flat);
    EXPECT_EQ(flat->standing, PeerStanding::Comparable);
    EXPECT_FALSE(flat->z);
    EXPECT_TRUE(flat->distance.empty());

    // No comparison without a value or without samples.
    EXPECT_FALSE(compareWithPeers(std::nullopt, s, 1.0f));
    EXPECT_FALSE(compareWithPeers(1.0, PeerStat{}, 1.0f));

    EXPECT_EQ(shortestFloat(7.3f), "7.3");
    EXPECT_EQ(shortestFloat(26.0f), "26");
    EXPECT_EQ(sdIntervalFromText("1.5"), 1.5f);
    EXPECT_EQ(sdIntervalFromText(""), kDefaultSdInterval);
    EXPECT_EQ(sdIntervalFromText("-2"), kDefaultSdInterval);
    EXPECT_EQ(sdIntervalFromText("2x"), kDefaultSdInterval);
}

TEST(PeerEquating, UnavailableMethodsGiveTheirReasons) {
    TranscriptAmount none; // 0 NTW, 0 utterances, no timing
    EXPECT_FALSE(equatingAvailable(EquatingMethod::TotalWords, none, DatabaseTiming::All));
    EXPECT_EQ(equatingOptionText(EquatingMethod::TotalWords, none, DatabaseTiming::All, ""),
              "Same number of total words - NOT AVAILABLE (0 NTW in transcript)");
    EXPECT_EQ(
        equatingOptionText(EquatingMethod::AnalysisSetUtterances, none, DatabaseTiming::All, ""),
        "Same number of analysis-set utterances - NOT AVAILABLE (0 utts in transcript)");
    EXPECT_EQ(equatingOptionText(EquatingMethod::ElapsedTime, none, DatabaseTiming::All, ""),
              "Same amount of elapsed time - NOT AVAILABLE (timing not marked in transcript)");

    TranscriptAmount timed{12, 80, 95};
    EXPECT_EQ(equatingOptionText(EquatingMethod::ElapsedTime, timed, DatabaseTiming::None, ""),
              "Same amount of elapsed time - NOT AVAILABLE (timing not marked in database)");
    EXPECT_EQ(equatingOptionText(EquatingMethod::ElapsedTime, timed, DatabaseTiming::Some, ""),
              "Same amount of elapsed time (1:35)");

    test::RecordingPrompter prompter;
    EXPECT_EQ(resolveEquating(EquatingMethod::TotalWords, none, DatabaseTiming::All, prompter),
              EquatingMethod::EntireTranscript);
    EXPECT_EQ(resolveEquating(EquatingMethod::ElapsedTime, TranscriptAmount{3, 9, std::nullopt},
                              DatabaseTiming::All, prompter),
              EquatingMethod::EntireTranscript);
    EXPECT_EQ(resolveEquating(EquatingMethod::ElapsedTime, timed, DatabaseTiming::None, prompter),
              EquatingMethod::EntireTranscript);
    EXPECT_EQ(resolveEquating(EquatingMethod::ElapsedTime, timed, DatabaseTiming::Some, prompter),
              EquatingMethod::ElapsedTime);
    EXPECT_EQ(resolveEquating(EquatingMethod::TotalWords, timed, DatabaseTiming::All, prompter),
              EquatingMethod::TotalWords);
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{
                  "No methods available - using all matched samples",
                  "Timing information is not provided for the transcript. Comparison cannot be "
                  "based on elapsed time and has been reset.",
                  "Timing information is not provided for transcripts in this database. "
                  "Comparison cannot be based on elapsed time and has been reset.",
                  "Note: timing information is missing for some transcripts in this database."}));

    TranscriptCut cut = equatingCut(EquatingMethod::TotalWords, timed, TranscriptCut{}, false, 1);
    EXPECT_EQ(cut.endType, TranscriptCut::ToWordCount);
    EXPECT_EQ(cut.endValue, 80);
    EXPECT_EQ(cut.endSpeaker, 1);
    TranscriptCut fromUtt3;
    fromUtt3.startType = TranscriptCut::FromUtterance;
    fromUtt3.startUtterance = 3;
    EXPECT_EQ(equatingCut(EquatingMethod::EntireTranscript, timed, fromUtt3, true, 0), fromUtt3);
    EXPECT_TRUE(equatingCut(EquatingMethod::EntireTranscript, timed, fromUtt3, false, 0)
                    .isEntireTranscript());
    EXPECT_EQ(equatingCut(EquatingMethod::ElapsedTime, timed, fromUtt3, true, 0).startUtterance, 3);
}

TEST(PeerAges, YearsMonthsOrDecimalYears) {
    EXPECT_EQ(ageYearsToMonths(*parseAgeYears("7;3")), 87);
    EXPECT_EQ(ageYearsToMonths(*parseAgeYears("7.25")), 87);
    EXPECT_EQ(ageYearsToMonths(*parseAgeYears(" 10;11 ")), 131);
    EXPECT_FALSE(parseAgeYears("7;12"));
    EXPECT_FALSE(parseAgeYears("seven"));
    EXPECT_FALSE(parseAgeYears("-3"));
    EXPECT_EQ(formatAgeMonths(87), "7;3");
}

sd2 record(int age, std::int16_t gender, std::string grade = "2", std::string subgroup = "Demo") {
    sd2 r;
    r.key = "s;1";
    r.ageMonths = static_cast<std::int16_t>(age);
    r.gender = gender;
    r.grade = std::move(grade);
    r.subgroup = std::move(subgroup);
    return r;
}

TEST(PeerRecordTest, BoundsInclusiveSwappedRangeAndEachCriterion) {
    PeerTarget target;
    target.ageMonths = 84;
    PeerSelection span;
    span.ageSpan = 6;
    auto bounds = ageBounds(span, target);
    ASSERT_TRUE(bounds);
    EXPECT_TRUE(recordMatches(record(78, 1), span, bounds));
    EXPECT_TRUE(recordMatches(record(90, 1), span, bounds));
    EXPECT_FALSE(recordMatches(record(77, 1), span, bounds));
    EXPECT_FALSE(recordMatches(record(91, 1), span, bounds));
    EXPECT_FALSE(recordMatches(record(-1, 1), span, bounds)); // unknown age

    PeerSelection range;
    range.age = AgeCriterion::Range;
    range.ageFrom = "8;0";
    range.ageTo = "7;0"; // swapped: the bounds are put in order
    auto swapped = ageBounds(range, target);
    ASSERT_TRUE(swapped);
    EXPECT_EQ(swapped->low, 84);
    EXPECT_EQ(swapped->high, 96);
    EXPECT_EQ(criteriaLine(range, target), "Age 7;0 - 8;0");

    PeerSelection all;
    all.age = AgeCriterion::None;
    EXPECT_TRUE(recordMatches(record(-1, 0), all, std::nullopt));
    all.useGrade = true;
    all.grade = "2";
    all.useGender = true;
    all.gender = "f";
    EXPECT_TRUE(recordMatches(record(50, 2), all, std::nullopt));
    EXPECT_FALSE(recordMatches(record(50, 1), all, std::nullopt));
    EXPECT_FALSE(recordMatches(record(50, 2, "3"), all, std::nullopt));
    all.subgroup = "demo";
    EXPECT_TRUE(recordMatches(record(50, 2), all, std::nullopt));
    EXPECT_FALSE(recordMatches(record(50, 2, "2", "Clinic"), all, std::nullopt));
    all.location = "Home";
    EXPECT_FALSE(recordMatches(record(50, 2), all, std::nullopt));

    span.useGrade = true;
    span.grade = "2";
    span.useGender = true;
    span.gender = "F";
    span.subgroup = "Demo";
    EXPECT_EQ(criteriaLine(span, target),
              "Age +/- 6 months (6;6 - 7;6), Grade 2, Female, Subgroup Demo");
}

TEST(PeerSelectionChecks, FirstFailureInOrderAndWarnings) {
    test::ScratchDir dir;
    const auto dbFile = dir.write("x.tvidb", "not really a database");
    PeerTarget target;
    target.ageMonths = 84;
    target.gender = kGenderMale;

    auto firstMessage = [&](PeerSelection selection) {
        test::RecordingPrompter prompter;
        bool ok = checkPeerSelection(selection, target, prompter);
        return ok ? std::string("ok") : prompter.messages.at(0);
    };
    PeerSelection s;
    s.ageSpan = 0;
    s.useGender = true;
    EXPECT_EQ(firstMessage(s), "Missing database name");
    s.database = dir.path() / "missing.tvidb";
    EXPECT_EQ(firstMessage(s), "Enter an age plus or minus value between 1 and 60.");
    s.age = AgeCriterion::Range;
    EXPECT_EQ(firstMessage(s), "Missing age range values");
    s.ageFrom = "7;0";
    EXPECT_EQ(firstMessage(s), "Missing age range TO value");
    s.ageTo = "seven";
    EXPECT_EQ(firstMessage(s), "Incorrect age range TO value");
    s.ageFrom = "x";
    EXPECT_EQ(firstMessage(s), "Incorrect age range FROM value");
    s.ageFrom = "6;0";
    s.ageTo = "8;0";
    s.useGrade = true;
    EXPECT_EQ(firstMessage(s), "Missing grade value");
    s.grade = "2";
    EXPECT_EQ(firstMessage(s), "Missing gender value");
    s.gender = "X";
    EXPECT_EQ(firstMessage(s), "Incorrect gender value - enter M, F, or N");
    s.gender = "M";
    EXPECT_EQ(firstMessage(s), "Problem opening database file");
    s.database = dbFile;
    EXPECT_EQ(firstMessage(s), "ok");

    // A chosen gender other than the target's is kept with a warning; the
    // 2nd speaker of a transcript without one is reset.
    s.gender = "F";
    s.speaker = 1;
    test::RecordingPrompter prompter;
    EXPECT_TRUE(checkPeerSelection(s, target, prompter));
    EXPECT_EQ(s.speaker, 0);
    EXPECT_EQ(s.gender, "F");
    EXPECT_EQ(prompter.messages,
              (std::vector<std::string>{
                  "Current transcript does not have a 2nd speaker. Speaker setting has been reset.",
                  "Warning: Selected gender does not match target speaker"}));
}

TEST(PeerSelectionDefaults, AgeSpanFromTheDatabaseAndIntervalFromTheSettings) {
    DescriptiveHeader header;
    header.ageSpan = 12;
    Settings settings;
    PeerSelection plain = newPeerSelection("d.tvidb", header, settings);
    EXPECT_EQ(plain.ageSpan, 12);
    EXPECT_EQ(plain.sdInterval, kDefaultSdInterval);
    settings.databaseDefaults["SDINT"] = "1.5";
    EXPECT_EQ(newPeerSelection("d.tvidb", header, settings).sdInterval, 1.5f);
}

} // namespace
} // namespace tavi::db

namespace tavi::db {
namespace {

// A database written through the file API: samples with 1 to 3 unintelligible
// utterances beside 4 intelligible ones.
std::filesystem::path writeDatabase(const test::ScratchDir& dir) {
    test::RecordingPrompter prompter;
    DescriptiveHeader info;
    info.context = "Conversation";
    const auto path = dir.path() / "cache.tvidb";
    EXPECT_TRUE(createDatabase(path, info, prompter));
    auto db = openDatabase(path, OpenFor::Writing, prompter);
    for (int i = 1; i <= 3; ++i) {
        std::string text = "$ Child, Examiner\n";
        for (int u = 0; u < 4; ++u)
            text += "C I see it.\nE ok.\n";
        for (int u = 0; u < i; ++u)
            text += "C XXX.\nE ok.\n";
        sd2 record;
        record.key = "s" + std::to_string(i) + ";1";
        record.buildOption1 = 1;
        record.ageMonths = 60;
        EXPECT_TRUE(db->append(record, text, prompter));
    }
    return path;
}

TEST(PeerValueCache, KeptForTheSameAnalysisAndForgottenForAnother) {
    test::ScratchDir dir;
    test::RecordingPrompter prompter;
    NoProgress progress;
    auto database = PeerDatabase::open(writeDatabase(dir), prompter);
    ASSERT_TRUE(database);
    PeerTarget target;
    target.ageMonths = 60;
    target.amount = {4, 16, std::nullopt};
    PeerSelection selection;
    selection.database = dir.path() / "cache.tvidb";
    selection.equating = EquatingMethod::EntireTranscript;

    Settings settings;
    const AnalysisContext standard = analysisContext(settings, nullptr);
    auto first = comparePeers(*database, selection, target, standard, {}, prompter, progress);
    ASSERT_TRUE(first);
    EXPECT_EQ(database->cache().size(), 3u);
    const PeerStat& setUtts = first->stats[static_cast<int>(MeasureId::TotASetUt)];
    EXPECT_EQ(setUtts.mean, 4.0f); // unintelligible utterances are left out

    auto again = comparePeers(*database, selection, target, standard, {}, prompter, progress);
    EXPECT_EQ(again->stats, first->stats);

    settings.analysisSet.excludeUnintelligible = 0;
    auto wider = comparePeers(*database, selection, target, analysisContext(settings, nullptr), {},
                              prompter, progress);
    EXPECT_EQ(wider->stats[static_cast<int>(MeasureId::TotASetUt)].mean, 6.0f); // 5, 6, 7
    EXPECT_EQ(wider->stats[static_cast<int>(MeasureId::TotASetUt)].sd, 1.0f);
    EXPECT_TRUE(prompter.messages.empty());
}

} // namespace
} // namespace tavi::db
