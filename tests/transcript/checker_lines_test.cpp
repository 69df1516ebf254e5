// Checker cases by rule family: speaker line, identifiers, brackets, codes
// and comments, terminators. Each asserts the exact listing lines.
#include <gtest/gtest.h>

#include "check_helper.h"

namespace tavi::test {
namespace {

TEST(SpeakerLine, CommaLessLineDeclaresTwoGroups) {
    EXPECT_EQ(listing("$ Child Examiner\nC I go.\nE you go.\n"), (Lines{}));
    EXPECT_EQ(listing("$ Child, Examiner Adult\nA hi.\n"), (Lines{}));
}

TEST(SpeakerLine, ProblemsOfTheLabels) {
    EXPECT_EQ(listing("$ A, B, C, D\n"), (Lines{"E103 on entry 1: more than 3 speaker groups."}));
    EXPECT_EQ(listing("$ Child, , Mom\n"), (Lines{"E104 on entry 1: missing speaker label."}));
    EXPECT_EQ(listing("$ Child, Cat\n"),
              (Lines{"E105 on entry 1: 1st letter of speaker label (C) not unique."}));
    EXPECT_EQ(listing("$ Child, examiner, Eve\n"),
              (Lines{"E105 on entry 1: 1st letter of speaker label (E) not unique."}));
    EXPECT_EQ(listing("$ Child, *Examiner\n"),
              (Lines{"E106 on entry 1: speaker (*Examiner) does not begin with a legal word "
                     "character."}));
    EXPECT_EQ(listing("$ Child [x], Examiner\n"),
              (Lines{"E130 on entry 1: [] not allowed on speaker label line ($)."}));
}

TEST(SpeakerLine, SecondLineAndMissingLine) {
    EXPECT_EQ(listing("$ Child, Examiner\n$ Child, Mom\n"),
              (Lines{"E102 on entry 2: more than one $ label line."}));
    EXPECT_EQ(listing("C hi.\nC go.\n$ Child, Examiner\n"),
              (Lines{"E101 on entry 1: $ label line not found before 1st utterance."}));
}

TEST(SpeakerLine, BadTableStopsIdentifierLookUps) {
    // One faulty "$" line must not flood the list with identifier errors.
    EXPECT_EQ(listing("$ Child, Cat\nX hi.\nY go.\n"),
              (Lines{"E105 on entry 1: 1st letter of speaker label (C) not unique."}));
    EXPECT_EQ(listing("X hi.\nY go.\n"),
              (Lines{"E101 on entry 1: $ label line not found before 1st utterance."}));
    // A "$" line after the first utterance does not make the table good again.
    EXPECT_EQ(listing("C hi.\n$ Child, Examiner\nX hi.\n"),
              (Lines{"E101 on entry 1: $ label line not found before 1st utterance."}));
}

TEST(Identifiers, UtteranceIdentifiers) {
    EXPECT_EQ(listingAfterSpeakers("c I go.\ne you go.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("M I go.\n"),
              (Lines{"E109 on entry 2: invalid identifier (M)."}));
}

// Identifiers are matched with Unicode case folding, beyond Latin-1 too.
TEST(Identifiers, CaseFoldingOfIdentifiers) {
    const char* kOmega = "$ \xCE\xA9mega, Examiner\n";
    EXPECT_EQ(listing(std::string(kOmega) + "\xCF\x89 hi.\n\xCE\xA9 hi.\ne hi.\n"), (Lines{}));
    EXPECT_EQ(listing(std::string(kOmega) + "\xCE\xA3 hi.\n"),
              (Lines{"E109 on entry 2: invalid identifier (\xCE\xA3)."}));
    // Cyrillic, Armenian, Latin Extended-A and Greek final sigma.
    EXPECT_EQ(listing("$ \xD0\x96ora, \xD4\xB1ram, \xC5\x81ucja\n"
                      "\xD0\xB6 hi.\n\xD5\xA1 hi.\n\xC5\x82 hi.\n"),
              (Lines{}));
    EXPECT_EQ(listing("$ \xCF\x82x, Examiner\n\xCE\xA3 hi.\n"), (Lines{}));
    // Folded forms that land in ASCII: the Kelvin sign and the long s.
    EXPECT_EQ(listing("$ \xE2\x84\xAAim, Examiner\nk hi.\nK hi.\n"), (Lines{}));
    EXPECT_EQ(listing("$ Sam, Examiner\n\xC5\xBF hi.\n"), (Lines{}));
    // Labels whose first letters differ only in case are not unique.
    EXPECT_EQ(listing("$ \xCE\xA9mega, \xCF\x89ilma\n"),
              (Lines{"E105 on entry 1: 1st letter of speaker label (\xCF\x89) not unique."}));
}

TEST(Identifiers, NotationCharactersCannotBeginALine) {
    for (std::string_view first : {"*",
                                   "(",
                                   "{",
                                   "<",
                                   ")",
                                   "}",
                                   "&",
                                   "#",
                                   "/",
                                   "\\",
                                   "%",
                                   "|",
                                   "[",
                                   "]",
                                   ".",
                                   "!",
                                   "~",
                                   "?",
                                   ">",
                                   "^",
                                   ",",
                                   "\"",
                                   "\xE2\x80\x9C",
                                   "\xC2\xBF",
                                   "\xC2\xA1",
                                   "\xD8\x9F"}) {
        std::string line = std::string(first) + " hi.\n";
        EXPECT_EQ(listingAfterSpeakers(line),
                  (Lines{"E109 on entry 2: Invalid identifier (" + std::string(first) + ")"}))
            << first;
    }
    EXPECT_EQ(listingAfterSpeakers(" C hi.\n"), (Lines{"E109 on entry 2: Invalid identifier ( )"}));
}

TEST(Identifiers, IdentifierLinesAndBlankLines) {
    EXPECT_EQ(listingAfterSpeakers("= any text {[( at all\n+ Name: Sam [x]\n\n   \n"), (Lines{}));
}

TEST(Identifiers, SpeakerIdFollowedByBlankOrTerminator) {
    EXPECT_EQ(listingAfterSpeakers("C I go.\nC.\nC?\n"), (Lines{}));
    // Error 120 stops every other check of the line.
    EXPECT_EQ(listingAfterSpeakers("CI go (to [x y] {home\n"),
              (Lines{"E120 on entry 2: speaker id is not followed by blank space."}));
    EXPECT_EQ(listingAfterSpeakers("C\n"),
              (Lines{"E120 on entry 2: speaker id is not followed by blank space."}));
}

TEST(CodesAndComments, CodeAndCommentProblems) {
    EXPECT_EQ(listingAfterSpeakers("C I go [EW:went].\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C I go [EW went].\n"),
              (Lines{"E127 on entry 2: [code] contains blank space."}));
    EXPECT_EQ(listingAfterSpeakers("C I go [EW[x]].\n"),
              (Lines{"E128 on entry 2: nested [code].", "E126 on entry 2: unmatched [code]."}));
    EXPECT_EQ(listingAfterSpeakers("C I go EW].\n"), (Lines{"E126 on entry 2: unmatched [code]."}));
    EXPECT_EQ(listingAfterSpeakers("C I go [EW.\n"), (Lines{"E126 on entry 2: unmatched [code]."}));
    EXPECT_EQ(listingAfterSpeakers("C I {laughs {loudly} go.\n"),
              (Lines{"E137 on entry 2: nested {comment}."}));
    EXPECT_EQ(listingAfterSpeakers("C I laughs} go.\n"),
              (Lines{"E138 on entry 2: unmatched {comment}."}));
    EXPECT_EQ(listingAfterSpeakers("C I {laughs go.\n"),
              (Lines{"E138 on entry 2: unmatched {comment}."}));
    EXPECT_EQ(listingAfterSpeakers("C I go [E@W].\n"),
              (Lines{"Warning #5 on entry 2: @ is not a legal [code] character."}));
    EXPECT_EQ(listingAfterSpeakers("- 0:10 [x=y]\n"),
              (Lines{"Warning #5 on entry 2: = is not a legal [code] character."}));
}

TEST(CodesAndComments, CommentsAndCodesHideTheirContents) {
    EXPECT_EQ(listingAfterSpeakers("C I go {points to the door; laughs} [EW:went] now.\n"),
              (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("- 0:00 {start}\n: {long pause, 5 s}\n"), (Lines{}));
}

TEST(Terminators, EndOfUtterance) {
    for (std::string_view t : {".", "!", "?", "~", ">", "^", "\xD8\x9F"})
        EXPECT_EQ(listingAfterSpeakers("C I go" + std::string(t) + "  \n"), (Lines{})) << t;
    EXPECT_EQ(listingAfterSpeakers("C I go\n"),
              (Lines{"E108 on entry 2: missing end of utterance punctuation."}));
    EXPECT_EQ(listingAfterSpeakers("C I go. home\n"),
              (Lines{"E112 on entry 2: characters found after end of utterance."}));
    // A terminator inside the utterance when the line ends with one.
    EXPECT_EQ(listingAfterSpeakers("C I go. home.\n"),
              (Lines{"E112 on entry 2: characters found after end of utterance"}));
    EXPECT_EQ(listingAfterSpeakers("C I go (um.) now.\n"),
              (Lines{"E112 on entry 2: characters found after end of utterance"}));
    // Brackets are matched before the early terminator is looked for, so those
    // of the dropped text are still checked; its words are not.
    EXPECT_EQ(listingAfterSpeakers("C I go. (home *ba*.\n"),
              (Lines{"E125 on entry 2: unmatched (maze).",
                     "E112 on entry 2: characters found after end of utterance"}));
    // A "." inside a code is not a terminator.
    EXPECT_EQ(listingAfterSpeakers("C I go [EW:x.y] home\n"),
              (Lines{"E108 on entry 2: missing end of utterance punctuation."}));
}

TEST(Brackets, MazesOverlapsAndParentheticals) {
    EXPECT_EQ(listingAfterSpeakers("C (I) I <go> ((laughs)) home.\n"), (Lines{}));
    EXPECT_EQ(listingAfterSpeakers("C (I (go) home.\n"),
              (Lines{"E124 on entry 2: nested (maze)."}));
    EXPECT_EQ(listingAfterSpeakers("C I go) home.\n"),
              (Lines{"E125 on entry 2: unmatched (maze)."}));
    EXPECT_EQ(listingAfterSpeakers("C (I go home.\n"),
              (Lines{"E125 on entry 2: unmatched (maze)."}));
    EXPECT_EQ(listingAfterSpeakers("C <I <go> home.\n"),
              (Lines{"E139 on entry 2: nested <overlap>."}));
    EXPECT_EQ(listingAfterSpeakers("C I go> home.\n"),
              (Lines{"E140 on entry 2: unmatched <overlap>."}));
    EXPECT_EQ(listingAfterSpeakers("C ((I ((go)) home.\n"),
              (Lines{"E124 on entry 2: nested ((parenthetical remarks))."}));
    EXPECT_EQ(listingAfterSpeakers("C I go)) home.\n"),
              (Lines{"E125 on entry 2: unmatched ((parenthetical))."}));
    EXPECT_EQ(listingAfterSpeakers("C (I ((go) home)).\n"),
              (Lines{"E124 on entry 2: incorrect nesting of (mazes) and ((parenthetical "
                     "remarks)).",
                     "E125 on entry 2: unmatched (maze)."}));
}

TEST(Characters, InvalidCharacters) {
    EXPECT_EQ(listingAfterSpeakers("C x-ray.\n"),
              (Lines{"E118 on entry 2: utterance contains invalid character (-)."}));
    EXPECT_EQ(listingAfterSpeakers("C a;b=c.\n"),
              (Lines{"E118 on entry 2: utterance contains invalid character (;).",
                     "E118 on entry 2: utterance contains invalid character (=)."}));
    EXPECT_EQ(listingAfterSpeakers(std::string("C a\x01 b.\n")),
              (Lines{"E118 on entry 2: utterance contains invalid character (^A)."}));
    EXPECT_EQ(listingAfterSpeakers("C \"I go,\" he said.\n"), (Lines{}));
}

} // namespace
} // namespace tavi::test
