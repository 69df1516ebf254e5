// Checker cases by rule family: words, word links, pauses, times, headers,
// sections, the end-of-transcript checks, and the merging and ordering of
// reports.
#include <gtest/gtest.h>

#include "check_helper.h"

namespace tavi::test {
namespace {

TEST(Words, OmissionsAndIdiosyncraticForms) {
    EXPECT_EQ(listingAfterSpeakers("C *the dog/s ran/*ed and he+*s %goed.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C /s go.\n"), (Lines{"E121 on entry 2: missing word root"}));
    EXPECT_EQ(listingAfterSpeakers("C * go.\n"),
              (Lines{"E116 on entry 2: bad omitted word form (missing word)."}));
    EXPECT_EQ(listingAfterSpeakers("C *+s go.\n"),
              (Lines{"E141 on entry 2: bad omitted clitic form (use +*)."}));
    EXPECT_EQ(listingAfterSpeakers("C dog*/s go.\n"),
              (Lines{"E117 on entry 2: bad omitted bound morpheme form (use /*)."}));
    EXPECT_EQ(listingAfterSpeakers("C he*+s go.\n"),
              (Lines{"E141 on entry 2: bad omitted bound clitic form (use +*)."}));
    EXPECT_EQ(listingAfterSpeakers("C *ba* go.\n"),
              (Lines{"E114 on entry 2: incomplete word cannot begin with *."}));
    EXPECT_EQ(listingAfterSpeakers("C (ba*) ball.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C go%ed.\n"),
              (Lines{"E115 on entry 2: % may only be used at the beginning of a word."}));
    EXPECT_EQ(listingAfterSpeakers("C % go.\n"),
              (Lines{"E115 on entry 2: bad idiosyncratic form (missing word)."}));
}

// Codes attached to words: one written inside a word is taken out of it; a
// word that begins with a code has no root.
// Words of letters, digits and apostrophes need a letter or digit.
TEST(Words, ApostrophesAlone) {
    EXPECT_EQ(listingAfterSpeakers("C I don't know 'bout it.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C I ' go.\n"), (Lines{"E122 on entry 2: illegal word."}));
    EXPECT_EQ(listingAfterSpeakers("C I go ''.\n"), (Lines{"E122 on entry 2: illegal word."}));
}

TEST(Words, CodesAttachedToWords) {
    EXPECT_EQ(listingAfterSpeakers("C I go[EW:x]ing home[EW:y] [EU].\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C I [EW:x]go home.\n"),
              (Lines{"E121 on entry 2: missing word root"}));
    EXPECT_EQ(listingAfterSpeakers("C I go [EW:x][EO:y]home.\n"),
              (Lines{"E121 on entry 2: missing word root"}));
    // Taken out first, the code leaves a word whose own rules still apply.
    EXPECT_EQ(listingAfterSpeakers("C I go[EW:x]%ing.\n"),
              (Lines{"E115 on entry 2: % may only be used at the beginning of a word."}));
}

TEST(Words, BoundMorphemesCliticsAndPrefixes) {
    EXPECT_EQ(listingAfterSpeakers("C I+'m run/ing un\\tie/ed.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C dog/ go.\n"),
              (Lines{"E123 on entry 2: missing bound morpheme."}));
    EXPECT_EQ(listingAfterSpeakers("C he+ go.\n"), (Lines{"E123 on entry 2: missing clitic."}));
    EXPECT_EQ(listingAfterSpeakers("C dog/& go.\n"),
              (Lines{"E123 on entry 2: illegal bound morpheme."}));
    EXPECT_EQ(listingAfterSpeakers("C he+& go.\n"),
              (Lines{"E123 on entry 2: illegal bound clitic."}));
    EXPECT_EQ(listingAfterSpeakers("C \\tie go.\n"),
              (Lines{"E123 on entry 2: missing bound morpheme (prefix)."}));
    EXPECT_EQ(listingAfterSpeakers("C &\\tie go.\n"),
              (Lines{"E123 on entry 2: illegal bound morpheme (prefix)."}));
    EXPECT_EQ(listingAfterSpeakers("C I +'m go.\n"),
              (Lines{"Warning #6 on entry 2: + should not be used to mark unbound clitics "
                     "(ignored)."}));
    EXPECT_EQ(listingAfterSpeakers("C '' go.\n"), (Lines{"E122 on entry 2: illegal word."}));
}

TEST(Words, RootIdentification) {
    EXPECT_EQ(listingAfterSpeakers("C went|go fue|%ir did||.\n"), (Lines{}));
    for (std::string_view word : {"|go", "went|", "a|b|c", "went|g&o"})
        EXPECT_EQ(listingAfterSpeakers("C " + std::string(word) + " now.\n"),
                  (Lines{"E119 on entry 2: bad root identification format (|)."}))
            << word;
}

TEST(Words, WordLinks) {
    EXPECT_EQ(listingAfterSpeakers("C ice_ _cream and peanut_ _butter_ _jelly.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C _cream.\n"),
              (Lines{"E143 on entry 2: unmatched word link (_cream)."}));
    EXPECT_EQ(listingAfterSpeakers("C ice_ go.\n"),
              (Lines{"E143 on entry 2: unmatched word link (ice_)."}));
    EXPECT_EQ(listingAfterSpeakers("C I like ice_.\n"),
              (Lines{"E143 on entry 2: unmatched word link (ice_)."}));
    EXPECT_EQ(listingAfterSpeakers("C _ go.\n"),
              (Lines{"E143 on entry 2: unattached word link character (_)"}));
    EXPECT_EQ(listingAfterSpeakers("C ice_cream.\n"),
              (Lines{"E143 on entry 2: incorrect format for linked word (ice_cream)."}));
}

TEST(Pauses, WithinUtterancePauses) {
    EXPECT_EQ(listingAfterSpeakers("C I :05 go now 1:00 then :60 so.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C I : go : now.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C I 1:01 go.\n"),
              (Lines{"Warning #8 on entry 2: within-utterance pause time is 1 minute or "
                     "longer."}));
    for (std::string_view pause : {"0:00", ":0", "1:2:3", "123456789012345678:1"})
        EXPECT_EQ(listingAfterSpeakers("C I " + std::string(pause) + " go.\n"),
                  (Lines{"E134 on entry 2: illegal within-utterance pause time."}))
            << pause;
}

TEST(Pauses, OnlyMainSpeakersInTheAnalysedPartAreTallied) {
    // A third speaker's long pause is not tallied; an illegal one is reported.
    EXPECT_EQ(listing("$ Child, Examiner, Mom\nM I 1:01 go.\nM I 0:00 go.\n"),
              (Lines{"E134 on entry 3: illegal within-utterance pause time."}));
    CheckOptions options;
    options.analysedLine = [](int line) { return line != 2; };
    EXPECT_EQ(listingAfterSpeakers("C I 1:01 go.\nC I 1:01 go.\n", options),
              (Lines{"Warning #8 on entry 3: within-utterance pause time is 1 minute or "
                     "longer."}));
    LoadedTranscript t = decodeTranscript("$ Child, Examiner\nC I :05 go.\nE : go.\nC 1:00 ok.\n");
    CheckResult r = checkTranscript(t.lines);
    EXPECT_EQ(r.pauses.withinUtterance[0].timed, 2);
    EXPECT_EQ(r.pauses.withinUtterance[0].timedSeconds, 65);
    EXPECT_EQ(r.pauses.withinUtterance[1].untimed, 1);
    EXPECT_EQ(r.pauses.firstTimedLine, 2);
    EXPECT_EQ(r.pauses.firstUntimedLine, 3);
}

// Pause times are summed without overflow: each of these is 10^9 seconds.
TEST(Pauses, HugePauseTimesAreSummedIn64Bits) {
    LoadedTranscript t =
        decodeTranscript("$ Child, Examiner\nC I :999999999 go :999999999 home :999999999 now.\n"
                         ": 99999999:59\n: 99999999:59\n: 99999999:59\n: 99999999:59\n");
    CheckResult r = checkTranscript(t.lines);
    EXPECT_EQ(r.pauses.withinUtterance[0].timed, 3);
    EXPECT_EQ(r.pauses.withinUtterance[0].timedSeconds, 2999999997);
    // A pause line's minutes are held at 10^7.
    EXPECT_EQ(r.pauses.pauseLines[0].timed, 4);
    EXPECT_EQ(r.pauses.pauseLines[0].timedSeconds, 4 * (std::int64_t{10000000} * 60 + 59));
}

TEST(Times, TimingAndPauseLines) {
    EXPECT_EQ(listingAfterSpeakers("- 1:02:03\n- 1:02:03\n- 1:10:00\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("- 1:\n- 1.2:3\n-\n-   \n"),
              (Lines{"E132 on entry 2: illegal timing.", "E132 on entry 3: illegal timing.",
                     "E133 on entry 4: missing timing.", "E133 on entry 5: missing timing."}));
    EXPECT_EQ(
        listingAfterSpeakers(": 1:\n; x\n: \n; 0:05\n"),
        (Lines{"Warning #7 on entry 1: some pauses are timed (see line 5) and some are "
               "not timed (see line 4)",
               "E135 on entry 2: illegal pause time.", "E135 on entry 3: illegal pause time."}));
}

TEST(Times, OrderOfTimingLines) {
    EXPECT_EQ(listingAfterSpeakers("- 1:00\nC hi.\n- 0:59\n"),
              (Lines{"E131 on entry 4: time is decreasing."}));
    EXPECT_EQ(listingAfterSpeakers("- 1:00\nC hi.\n- 1:00\n"),
              (Lines{"E131 on entry 4: time is not increasing."}));
    EXPECT_EQ(listingAfterSpeakers("C hi.\n- 1:00\n"),
              (Lines{"Warning #4 on entry 3: initial starting time not set (0:00 assumed)."}));
    // The assumed 0:00 is the previous timing of the first timing line.
    EXPECT_EQ(listingAfterSpeakers("C hi.\n- 0:00\n"),
              (Lines{"E131 on entry 3: time is not increasing."}));
}

TEST(Times, RoundingQuirksInTheTimingList) {
    LoadedTranscript t =
        decodeTranscript("$ Child, Examiner\n- 0:10.5\n- 0:10.50\n- 75\n- 1:02:03\n- 1:02:03:15\n");
    CheckResult r = checkTranscript(t.lines);
    ASSERT_EQ(r.timings.size(), 5u);
    EXPECT_EQ(r.timings[0].seconds, 10); // ".5" is five, below fifty
    EXPECT_EQ(r.timings[1].seconds, 11); // ".50" rounds up
    EXPECT_EQ(r.timings[2].seconds, 75);
    EXPECT_EQ(r.timings[3].seconds, 3723);
    EXPECT_EQ(r.timings[4].seconds, 3724);
    EXPECT_EQ(r.elapsedSeconds, 3714);
    EXPECT_TRUE(r.problems.empty());
}

TEST(Times, PauseTimeAgainstElapsedTime) {
    EXPECT_EQ(listingAfterSpeakers("- 0:00\nC I :30 go.\n: 0:29\n- 1:00\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("- 0:00\nC I :30 go.\n: 0:30\n- 1:00\n"),
              (Lines{"E136 on entry 1: pause time exceeds elapsed time"}));
}

TEST(Headers, DatesAndAge) {
    std::string dates = "+ DOB: 05-12-2018\n+ DOE: 06-01-2023\n";
    EXPECT_EQ(listingAfterSpeakers(dates + "+ CA: 5;0\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers(dates + "+ CA: 4;11\n"),
              (Lines{"Warning #2 on entry 4: + CA: header line contains incorrect age (current "
                     "date format for +DOB and +DOE is MM-DD-YY)."}));
    EXPECT_EQ(listingAfterSpeakers("+ DOB: 13-05-2018\n"),
              (Lines{"Warning #1 on entry 2: incorrect + DOB: header line format (current date "
                     "format is MM-DD-YY)."}));
    EXPECT_EQ(listingAfterSpeakers("+ DOE: 05/12/2018\n"),
              (Lines{"Warning #1 on entry 2: incorrect + DOE: header line format (current date "
                     "format is MM-DD-YY)."}));
    EXPECT_EQ(listingAfterSpeakers("+ DOB: May 5th\n"),
              (Lines{"Warning #1 on entry 2: incorrect + DOB: header line format."}));
    EXPECT_EQ(listingAfterSpeakers("+ DOB: 05-12-2023\n+ DOE: 06-01-2018\n"),
              (Lines{"Warning #1 on entry 2: incorrect + DOB: or + DOE: header line formats "
                     "(current date format is MM-DD-YY)."}));
    EXPECT_EQ(listingAfterSpeakers("+ CA: five\n"),
              (Lines{"Warning #1 on entry 2: incorrect + CA: header line format."}));
    EXPECT_EQ(listingAfterSpeakers("+ CA: 101;0\n"),
              (Lines{"Warning #1 on entry 2: incorrect + CA: header line format."}));
}

TEST(Headers, OptionsFromTheSettings) {
    CheckOptions options;
    options.dateFormat = {DateOrder::DayMonthYear, '.'};
    options.requiredHeader = "Name";
    EXPECT_EQ(listingAfterSpeakers("+ DOB: 12.05.18\n+ DOE: 01.06.23\n+ CA: 5;0\n", options),
              (Lines{"Warning #3 on entry 1: missing + Name: header line."}));
    EXPECT_EQ(listingAfterSpeakers("+ Name: Sam\n+ DOB: 05-12-2018\n", options),
              (Lines{"Warning #1 on entry 3: incorrect + DOB: header line format (current date "
                     "format is DD.MM.YY)."}));
    LoadedTranscript t = decodeTranscript("+ DOB: 05-12-2018\n+ DOE: 06-01-2023\n");
    EXPECT_EQ(checkTranscript(t.lines).ageMonths, 60);
}

TEST(Sections, BeginAndEnd) {
    EXPECT_EQ(listingAfterSpeakers("@begin\nC hi.\n@end\n@Begin\nC go.\n@END\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("@begin\n@begin\n"),
              (Lines{"E110 on entry 3: more than one @begin line without an @end line."}));
    EXPECT_EQ(listingAfterSpeakers("C hi.\n@end\nC go.\n@end\n"),
              (Lines{"E110 on entry 5: more than one @end line without an @begin line."}));
    EXPECT_EQ(listingAfterSpeakers("@start\n"),
              (Lines{"E110 on entry 2: illegal @begin or @end entry."}));
    LoadedTranscript t = decodeTranscript("$ Child, Examiner\nC hi.\n@end\n@begin\nC go.\n");
    SegmentedTranscript s = segmentTranscript(t.lines);
    ASSERT_EQ(s.sections.size(), 2u);
    EXPECT_EQ(s.sections[0].begin, 2);
    EXPECT_EQ(s.sections[0].end, 3);
    EXPECT_EQ(s.sections[1].begin, 4);
    EXPECT_EQ(s.sections[1].end, 0);
}

TEST(Merging, WarningAndErrorOnOneLine) {
    // An error replaces the line's warning in its place.
    EXPECT_EQ(listingAfterSpeakers("C a [E@W] b-c;d.\n"),
              (Lines{"E118 on entry 2: utterance contains invalid character (-).",
                     "E118 on entry 2: utterance contains invalid character (;)."}));
    // A warning for a line with an error is dropped.
    EXPECT_EQ(listingAfterSpeakers("C I [E W] go [E@W].\n"),
              (Lines{"E127 on entry 2: [code] contains blank space."}));
    // The same report twice is listed once.
    EXPECT_EQ(listingAfterSpeakers("C I [E W X] go.\n"),
              (Lines{"E127 on entry 2: [code] contains blank space."}));
}

TEST(Merging, LateReportsGoBeforeTheLinesRecords) {
    // The end-of-transcript error at line 1 goes before the error held for line 1.
    EXPECT_EQ(listing("$ Child, Cat\n- 0:00\nC I :40 go\n: 0:30\n- 1:00\n"),
              (Lines{"E136 on entry 1: pause time exceeds elapsed time",
                     "E105 on entry 1: 1st letter of speaker label (C) not unique.",
                     "E108 on entry 3: missing end of utterance punctuation."}));
    // Two late warnings for line 1: the later one is inserted before the earlier.
    CheckOptions options;
    options.requiredHeader = "Name";
    EXPECT_EQ(listingAfterSpeakers("+ DOB: x\n: 0:05\n: \nC go\n", options),
              (Lines{"Warning #7 on entry 1: some pauses are timed (see line 3) and some are "
                     "not timed (see line 4)",
                     "Warning #3 on entry 1: missing + Name: header line.",
                     "Warning #1 on entry 2: incorrect + DOB: header line format.",
                     "E108 on entry 5: missing end of utterance punctuation."}));
}

} // namespace
} // namespace tavi::test
