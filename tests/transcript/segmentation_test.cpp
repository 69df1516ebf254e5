// Segmentation: what each utterance hands to the analysis.
#include <gtest/gtest.h>

#include <random>

#include "check_helper.h"

#include "transcript/bound_morphemes.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

// An utterance with the store that keeps its pieces.
struct Cut : Utterance {
    std::shared_ptr<TranscriptStore> store;
};

Cut cut(std::string_view line) {
    Cut c;
    c.store = std::make_shared<TranscriptStore>();
    static_cast<Utterance&>(c) = segmentUtterance(line, 7, 0, *c.store);
    return c;
}

using Strings = std::vector<std::string>;

Strings strings(std::span<const std::string_view> views) {
    return Strings(views.begin(), views.end());
}

Strings roots(const Utterance& u) {
    Strings out;
    for (const Word& w : u.words)
        out.emplace_back(w.root());
    return out;
}

// The codes placed on word `w`.
std::vector<int> codesOn(const Utterance& u, int w) {
    std::vector<int> out;
    for (size_t c = 0; c < u.codes().size(); ++c)
        if (u.codes()[c].word == w)
            out.push_back(static_cast<int>(c));
    return out;
}

TEST(Segmentation, WordsMorphemesAndClitics) {
    Cut u = cut("C the dog/s ran/*ed and he+'s *the %goed un\\tie she+*s.");
    EXPECT_EQ(roots(u),
              (Strings{"the", "dog", "ran", "and", "he", "the", "goed", "un\\tie", "she"}));
    EXPECT_EQ(strings(u.words[1].boundMorphemes()), Strings{"s"});
    EXPECT_EQ(strings(u.words[2].omittedBoundMorphemes()), Strings{"ed"});
    EXPECT_TRUE(u.words[2].omittedBoundMorpheme);
    EXPECT_EQ(strings(u.words[4].clitics()), Strings{"'s"});
    EXPECT_TRUE(u.words[5].omitted);
    EXPECT_FALSE(u.words[5].isMainBodyWord());
    EXPECT_TRUE(u.words[6].idiosyncratic);
    EXPECT_EQ(strings(u.words[7].prefixes()), Strings{"un"});
    EXPECT_EQ(strings(u.words[8].omittedClitics()), Strings{"s"});
    EXPECT_TRUE(u.words[8].omittedClitic);
    EXPECT_EQ(u.words[1].text(), "dog/s");
    EXPECT_EQ(u.line, 7);
    EXPECT_EQ(u.speakerId, U'C');
}

TEST(Segmentation, MazesCodesOverlapsRemarksAndPauses) {
    Cut u = cut("C (I um) I went|go [EW:goed] to <the> park {laughs} ((hmm, ok)) :05 "
                "today [EU].");
    EXPECT_EQ(roots(u), (Strings{"I", "um", "I", "went", "to", "the", "park", "today"}));
    ASSERT_EQ(u.mazes().size(), 1u);
    EXPECT_EQ(std::vector<int>(u.mazes()[0].words.begin(), u.mazes()[0].words.end()),
              (std::vector<int>{0, 1}));
    EXPECT_TRUE(u.words[1].inMaze);
    EXPECT_FALSE(u.words[2].inMaze);
    EXPECT_EQ(u.words[3].rootIdentification(), "go");
    ASSERT_EQ(u.codes().size(), 2u);
    EXPECT_EQ(u.codes()[0].text, "EW:goed");
    EXPECT_EQ(u.codes()[0].word, 3);
    EXPECT_EQ(codesOn(u, 3), std::vector<int>{0});
    EXPECT_EQ(u.codes()[1].text, "EU");
    EXPECT_EQ(u.codes()[1].word, -1); // after the last word: the utterance's
    EXPECT_EQ(u.codes()[1].precedingWord, 7);
    EXPECT_EQ(codesOn(u, 7), std::vector<int>{});
    EXPECT_TRUE(u.words[5].inOverlap);
    EXPECT_FALSE(u.words[6].inOverlap);
    EXPECT_TRUE(u.hasOverlap);
    EXPECT_EQ(strings(u.parentheticals()), Strings{"hmm, ok"});
    ASSERT_EQ(u.parentheticalWords().size(), 2u);
    EXPECT_EQ(u.parentheticalWords()[1].root(), "ok");
    EXPECT_TRUE(u.parentheticalWords()[1].inParenthetical);
    ASSERT_EQ(u.pauses().size(), 1u);
    EXPECT_TRUE(u.pauses()[0].timed);
    EXPECT_EQ(u.pauses()[0].seconds, 5);
    EXPECT_TRUE(u.hasComment);
    EXPECT_FALSE(u.hasQuotation);
}

TEST(Segmentation, CodeOnTheLastWordBelongsToThatWord) {
    // Written right after the last word: the word's error, not the utterance's.
    Cut attached = cut("C we eated[EO:ate][EW:x] pizza and falled[EO:fell].");
    ASSERT_EQ(attached.codes().size(), 3u);
    EXPECT_EQ(attached.codes()[0].word, 1);
    EXPECT_EQ(attached.codes()[1].word, 1);
    EXPECT_EQ(attached.codes()[2].word, 4);
    EXPECT_EQ(codesOn(attached, 4), std::vector<int>{2});

    // Set apart by a blank after the last word, or before the first: the utterance's.
    Cut apart = cut("C [EU] why she cry/3s [EU] [EX]?");
    ASSERT_EQ(apart.codes().size(), 3u);
    for (const Code& code : apart.codes())
        EXPECT_EQ(code.word, -1);
    EXPECT_EQ(apart.codes()[1].precedingWord, 2);
}

// A code written inside a word is taken out of it: the word stays one word and
// the code is its own; a code standing alone is no word at all.
TEST(Segmentation, CodesWrittenInsideAWord) {
    Cut inside = cut("C I go[EW:x]ing home [EU].");
    EXPECT_EQ(roots(inside), (Strings{"I", "going", "home"}));
    EXPECT_EQ(inside.words[1].text(), "going");
    ASSERT_EQ(inside.codes().size(), 2u);
    EXPECT_EQ(inside.codes()[0].text, "EW:x");
    EXPECT_EQ(codesOn(inside, 1), std::vector<int>{0});
    EXPECT_EQ(inside.codes()[1].word, -1);

    Cut parts = cut("C the dog[EW:x]/s r\xC3\xA9[EO:y]al[EW:z]ly ran.");
    EXPECT_EQ(roots(parts), (Strings{"the", "dog",
                                     "r\xC3\xA9"
                                     "ally",
                                     "ran"}));
    EXPECT_EQ(strings(parts.words[1].boundMorphemes()), Strings{"s"});
    EXPECT_EQ(codesOn(parts, 2), (std::vector<int>{1, 2}));

    Cut linked = cut("C ice[EW:x]_ _cream go.");
    EXPECT_EQ(roots(linked), (Strings{"ice_cream", "go"}));
    EXPECT_TRUE(linked.words[0].linked);
}

// A terminator before the final one ends the utterance's text: what follows
// it is dropped, with the codes, remarks, mazes and overlaps written there.
TEST(Segmentation, TextAfterAnEarlierTerminatorIsDropped) {
    Cut u = cut("C I go. home.");
    EXPECT_EQ(roots(u), (Strings{"I", "go"}));
    EXPECT_EQ(u.terminator, Terminator::Statement);

    // The maze the terminator stands in keeps the word before it.
    Cut maze = cut("C I go (um.) now.");
    EXPECT_EQ(roots(maze), (Strings{"I", "go", "um"}));
    EXPECT_TRUE(maze.words[2].inMaze);
    ASSERT_EQ(maze.mazes().size(), 1u);

    Cut dropped = cut("C <I> [EW:x] ((hmm)) go! home [EU] ((laughs)) <now> (um) {x} \"hi\" :05?");
    EXPECT_EQ(roots(dropped), (Strings{"I", "go"}));
    EXPECT_EQ(dropped.terminator, Terminator::Question);
    ASSERT_EQ(dropped.codes().size(), 1u);
    EXPECT_EQ(dropped.codes()[0].text, "EW:x");
    EXPECT_EQ(dropped.parentheticals().size(), 1u);
    EXPECT_EQ(dropped.parentheticalWords().size(), 1u);
    EXPECT_TRUE(dropped.mazes().empty());
    EXPECT_TRUE(dropped.pauses().empty());
    EXPECT_TRUE(dropped.hasOverlap);
    EXPECT_FALSE(dropped.hasComment);
    EXPECT_FALSE(dropped.hasQuotation);
    EXPECT_TRUE(cut("C {x} \"go\". home.").hasQuotation);
}

// Many mazes and overlaps on one line: every word finds its own.
TEST(Segmentation, ManyMazesOnOneLine) {
    std::string line = "C";
    for (int i = 0; i < 2000; ++i)
        line += " (um) go <x>";
    line += ".";
    Cut u = cut(line);
    ASSERT_EQ(u.words.size(), 6000u);
    ASSERT_EQ(u.mazes().size(), 2000u);
    for (size_t m = 0; m < u.mazes().size(); ++m)
        ASSERT_EQ(std::vector<int>(u.mazes()[m].words.begin(), u.mazes()[m].words.end()),
                  std::vector<int>{static_cast<int>(3 * m)});
    for (size_t w = 0; w < u.words.size(); ++w) {
        EXPECT_EQ(u.words[w].inMaze, w % 3 == 0) << w;
        EXPECT_EQ(u.words[w].inOverlap, w % 3 == 2) << w;
    }
}

// Lines of plain words only are cut straight from their bytes: the record
// must be the one the general cut gives (a comment forces the general cut).
TEST(Segmentation, PlainLinesCutLikeAnyOther) {
    for (std::string_view line : {"C I x go\tdon't   .  ", "C xx XXX?", "C the cat >", "C .",
                                  "C 2 o'clock ^", "C it's XXXX!"}) {
        Cut plain = cut(line);
        std::string withComment(line);
        withComment.insert(1, " {c}");
        Cut general = cut(withComment);
        EXPECT_EQ(roots(plain), roots(general)) << line;
        ASSERT_EQ(plain.words.size(), general.words.size()) << line;
        for (size_t w = 0; w < plain.words.size(); ++w)
            EXPECT_EQ(plain.words[w].unintelligible, general.words[w].unintelligible) << line;
        EXPECT_EQ(plain.intelligibility, general.intelligibility) << line;
        EXPECT_EQ(plain.terminator, general.terminator) << line;
        EXPECT_EQ(plain.terminatorChar(), general.terminatorChar()) << line;
        EXPECT_EQ(plain.speakerId, U'C');
        EXPECT_FALSE(plain.hasComment);
        EXPECT_EQ(plain.extras, nullptr);
    }
    // Made-up lines of the characters at the edge of the plain kind.
    std::mt19937 rng(7);
    const std::string_view alphabet = "aXx'1 \t.?>/";
    for (int n = 0; n < 3000; ++n) {
        std::string line = "C ";
        for (int k = 0, size = static_cast<int>(rng() % 12); k < size; ++k)
            line += alphabet[rng() % alphabet.size()];
        line += ".!?~^>"[rng() % 6];
        Cut plain = cut(line);
        Cut general = cut("C {c}" + line.substr(1));
        ASSERT_EQ(roots(plain), roots(general)) << line;
        for (size_t w = 0; w < plain.words.size(); ++w)
            ASSERT_EQ(plain.words[w].unintelligible, general.words[w].unintelligible) << line;
        ASSERT_EQ(plain.intelligibility, general.intelligibility) << line;
        ASSERT_EQ(plain.terminatorChar(), general.terminatorChar()) << line;
        ASSERT_EQ(test::listingAfterSpeakers(line + "\n"),
                  test::listingAfterSpeakers("C {c}" + line.substr(1) + "\n"))
            << line;
    }
}

TEST(Segmentation, Terminators) {
    struct Case {
        std::string_view line;
        Terminator kind;
        char32_t ch;
    };
    for (const Case& c :
         {Case{"C go.", Terminator::Statement, U'.'}, Case{"C go!", Terminator::Exclamation, U'!'},
          Case{"C go?", Terminator::Question, U'?'},
          Case{"C go\xD8\x9F", Terminator::Question, 0x061F},
          Case{"C go~", Terminator::Prompt, U'~'}, Case{"C go>", Terminator::Abandoned, U'>'},
          Case{"C <go> now^", Terminator::Interrupted, U'^'}}) {
        Cut u = cut(c.line);
        EXPECT_EQ(u.terminator, c.kind) << c.line;
        EXPECT_EQ(u.terminatorChar(), c.ch) << c.line;
        EXPECT_TRUE(u.hasTerminator);
    }
    EXPECT_FALSE(cut("C go").hasTerminator);
}

TEST(Segmentation, IntelligibilityAndNonverbal) {
    EXPECT_EQ(cut("C XXX.").intelligibility, Intelligibility::Unintelligible);
    EXPECT_EQ(cut("C x xx/s.").intelligibility, Intelligibility::Unintelligible);
    EXPECT_EQ(cut("C I want Xx.").intelligibility, Intelligibility::Partly);
    EXPECT_EQ(cut("C (XX) I want it.").intelligibility, Intelligibility::Intelligible);
    EXPECT_EQ(cut("C Xavier.").intelligibility, Intelligibility::Intelligible);
    Cut nods = cut("C {nods}.");
    EXPECT_TRUE(nods.nonverbal);
    EXPECT_TRUE(nods.words.empty());
    EXPECT_FALSE(cut("C I {nods} go.").nonverbal);
    EXPECT_FALSE(cut("C XXX {coughs}.").nonverbal);
}

TEST(Segmentation, QuotationsAndLinks) {
    EXPECT_TRUE(cut("C he said \"go\".").hasQuotation);
    EXPECT_FALSE(cut("C he said \xE2\x80\x9Cgo\xE2\x80\x9D.").hasQuotation);
    EXPECT_EQ(roots(cut("C he said \xE2\x80\x9Cgo\xE2\x80\x9D.")), (Strings{"he", "said", "go"}));
    Cut u = cut("C ice_ _cream and peanut_ _butter_ _jelly/s.");
    EXPECT_EQ(roots(u), (Strings{"ice_cream", "and", "peanut_butter_jelly"}));
    EXPECT_TRUE(u.words[0].linked);
    EXPECT_EQ(strings(u.words[2].boundMorphemes()), Strings{"s"});
}

TEST(Segmentation, WholeTranscript) {
    LoadedTranscript t = decodeTranscript("$ Child, Examiner, Mom Dad\n+ Name: Sam\n- 0:00\n"
                                          "C hi.\ne hello.\nD hey.\nZ who?\n: 0:05\n@end\n");
    SegmentedTranscript s = segmentTranscript(t.lines);
    EXPECT_EQ(s.speakers.groups[2].labels, (Strings{"Mom", "Dad"}));
    ASSERT_EQ(s.headers.size(), 1u);
    EXPECT_EQ(s.headers[0].keyword, "Name");
    EXPECT_EQ(s.headers[0].value, "Sam");
    ASSERT_EQ(s.utterances.size(), 4u);
    EXPECT_EQ(s.utterances[1].speakerGroup, 1);
    EXPECT_EQ(s.utterances[2].speakerGroup, 2);
    EXPECT_EQ(s.utterances[3].speakerGroup, 2); // unknown identifier
    EXPECT_EQ(s.utterances[3].index, 3);
    ASSERT_EQ(s.entries.size(), 7u);
    EXPECT_EQ(s.entries[0].kind, EntryKind::Timing);
    EXPECT_EQ(s.entries[0].seconds, 0);
    EXPECT_EQ(s.entries[1].utterance, 0);
    EXPECT_EQ(s.entries[5].kind, EntryKind::Pause);
    EXPECT_EQ(s.entries[5].seconds, 5);
    EXPECT_EQ(s.entries[6].kind, EntryKind::End);
}

TEST(BoundMorphemes, GroupsAndContractions) {
    EXPECT_EQ(boundMorphemeGroup("s"), 0);
    EXPECT_EQ(boundMorphemeGroup("/Z"), 1);
    EXPECT_EQ(boundMorphemeGroup("ing"), 5);
    EXPECT_EQ(boundMorphemeGroup("n't"), 6);
    EXPECT_EQ(boundMorphemeGroup("'T"), 6);
    EXPECT_EQ(boundMorphemeGroup("d'd"), 7);
    EXPECT_EQ(boundMorphemeGroup("'us"), 8);
    EXPECT_EQ(boundMorphemeGroup("er"), 9);
    EXPECT_EQ(kBoundMorphemeGroups[9].description, "other bound morpheme");
    EXPECT_EQ(expandNegativeContraction("Can't"), "can@n't");
    EXPECT_EQ(expandNegativeContraction("musn't"), "must@n't");
    EXPECT_EQ(expandNegativeContraction("ain't"), "is@n't");
    EXPECT_FALSE(expandNegativeContraction("cant"));
    EXPECT_EQ(contractionToBoundForm("do@n't"), "do/n't");
    EXPECT_EQ(contractionToBoundForm("he@has"), "he/h's");
    EXPECT_EQ(contractionToBoundForm("let@'s"), "let/'us");
    EXPECT_EQ(contractionToBoundForm("let@us"), "let/'us");
    EXPECT_FALSE(contractionToBoundForm("dog"));
}

} // namespace
} // namespace tavi
