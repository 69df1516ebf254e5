// Response types, the analysis set and the transcript cut with its messages.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "analysis/selection.h"
#include "analysis/word_forms.h"
#include "base/text.h"
#include "transcript/transcript_store.h"
#include "transcript_builder.h"

namespace tavi {
namespace {

using test::TranscriptBuilder;

bool isYesNoWord(std::string_view w) {
    return w == "yes" || w == "no" || w == "yeah";
}

YesNoTest yesNoWords() {
    return isYesNoWord;
}

TEST(ResponseTypes, DecidedFromTheUtteranceJustBefore) {
    TranscriptBuilder b;
    b.e("do you like the big dog ?") // 0
        .c("yes I do .")             // 1: Q, Y
        .c("big dog .")              // 2: not after E's utterance
        .e("the big dog ~")          // 3
        .c("the big dog .")          // 4: P, exact imitation
        .e("is it red ?")            // 5
        .o("hello .")                // 6: another speaker in between
        .c("red .")                  // 7: nothing but O
        .e("look at the cat .")      // 8
        .c("look cat !")             // 9: reduced imitation
        .c("cat look .")             // 10: after the child's own utterance
        .e("where ?")                // 11
        .c("where ?");               // 12: Q and exact imitation
    auto r = classifyResponses(b, yesNoWords());
    EXPECT_TRUE(r[1].question && r[1].yesNo && !r[1].imitation && !r[1].oneWord);
    EXPECT_EQ(r[2], ResponseType{});
    EXPECT_TRUE(r[4].prompt && r[4].exactImitation && r[4].imitation && !r[4].question);
    EXPECT_TRUE(!r[7].question && r[7].oneWord);
    EXPECT_TRUE(r[9].reducedImitation && r[9].imitation && !r[9].exactImitation);
    EXPECT_FALSE(r[10].imitation);
    EXPECT_TRUE(r[12].question && r[12].exactImitation && r[12].oneWord && !r[12].yesNo);
    EXPECT_FALSE(r[0].question); // the examiner's own question follows nothing

    auto withoutList = classifyResponses(b, {});
    EXPECT_TRUE(withoutList[1].question && !withoutList[1].yesNo);
}

TEST(ResponseTypes, ImitationsCompareSurfaceForms) {
    TranscriptBuilder b;
    b.e("The Dog/s ran/ed to re\\do ba* it .") // 0
        .c("the DOGS RANed to redo BA it .")   // 1: exact, by surface forms
        .e("he/z run/3s (um) home+'s now .")   // 2
        .c("he's RUNS (uh) *the HOME's now .") // 3: exact, maze and omitted words left out
        .e("he+'s go/ing to re\\do it .")      // 4
        .c("He's re\\Do .")                    // 5: reduced
        .e("he/z going now .")                 // 6
        .c("going he's .")                     // 7: order not kept
        .e("ba* dog/s .")                      // 8
        .c("b dogs .")                         // 9: "ba*" is "ba", not "b"
        .e("redo dog .")                       // 10
        .c("re\\do .");                        // 11: reduced, the mark dropped
    auto r = classifyResponses(b, {});
    EXPECT_TRUE(r[1].exactImitation && !r[1].reducedImitation);
    EXPECT_TRUE(r[3].exactImitation);
    EXPECT_TRUE(r[5].reducedImitation && !r[5].exactImitation);
    EXPECT_FALSE(r[7].imitation);
    EXPECT_FALSE(r[9].imitation);
    EXPECT_TRUE(r[11].reducedImitation);
}

// Words whose surface forms meet in many ways: endings written by grammar,
// clitics, part words, prefix marks, case, long words, linked words.
const std::vector<std::string>& formTokens() {
    static const std::vector<std::string> tokens = {
        "dog",
        "Dog",
        "DOGS",
        "dogs",
        "dog/s",
        "Dog/S",
        "dog/z",
        "dog's",
        "dog+'s",
        "do/3s",
        "dos",
        "does",
        "go/ing",
        "going",
        "Going*",
        "go*",
        "go",
        "g",
        "*",
        "ba*",
        "BA",
        "ba",
        "b*",
        "re\\do",
        "redo",
        "RE\\DO",
        "\\do",
        "do",
        "go_on",
        "Go_On",
        "he+'s",
        "he/z",
        "He's",
        "Z",
        "s",
        "3s",
        "a/3s",
        "as",
        "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz",
        "abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz/s",
        "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMNOPQRSTUVWXYZS"};
    return tokens;
}

TEST(WordForms, SurfaceIsMatchesTheBuiltForm) {
    TranscriptStore store;
    for (const std::string& a : formTokens()) {
        const Word w = test::makeWord(a, store);
        for (const std::string& b : formTokens()) {
            const Word other = test::makeWord(b, store);
            const std::string form = surfaceForm(other);
            EXPECT_EQ(surfaceIs(w, form), surfaceForm(w) == form) << a << " / " << b;
            EXPECT_EQ(surfaceIs(w, other.text()), surfaceForm(w) == toLowerAscii(other.text()))
                << a << " / " << b;
        }
    }
}

// The imitation rules written plainly, with built forms and word lists.
bool sameFormPlainly(const Word& a, const Word& b) {
    return (a.linked == b.linked && a.text() == b.text()) || surfaceForm(a) == surfaceForm(b);
}

std::vector<const Word*> mainBodyWordsOf(const Utterance& u) {
    std::vector<const Word*> out;
    for (const Word& w : u.words)
        if (w.isMainBodyWord())
            out.push_back(&w);
    return out;
}

// {exact, reduced} of `u` after `prev`.
std::pair<bool, bool> imitationPlainly(const Utterance& u, const Utterance& prev) {
    std::vector<const Word*> mine = mainBodyWordsOf(u), theirs = mainBodyWordsOf(prev);
    if (mine.empty() || mine.size() > theirs.size())
        return {false, false};
    if (mine.size() == theirs.size()) {
        for (size_t k = 0; k < mine.size(); ++k)
            if (!sameFormPlainly(*mine[k], *theirs[k]))
                return {false, false};
        return {true, false};
    }
    size_t j = 0;
    for (const Word* w : mine) {
        while (j < theirs.size() && !sameFormPlainly(*w, *theirs[j]))
            ++j;
        if (j == theirs.size())
            return {false, false};
        ++j;
    }
    return {false, true};
}

TEST(ResponseTypes, ImitationsAgreeWithThePlainRulesOnRandomUtterances) {
    std::mt19937 rng(7);
    const std::vector<std::string>& tokens = formTokens();
    auto randomToken = [&] {
        const std::string& token = tokens[rng() % tokens.size()];
        const unsigned kind = rng() % 12;
        return kind == 0 ? "(" + token + ")" : kind == 1 ? "*" + token : kind == 2 ? "X" : token;
    };
    TranscriptBuilder b;
    std::vector<std::string> before;
    for (int k = 0; k < 4000; ++k) {
        // Often the words of the utterance before, some left out or changed,
        // so that imitations occur.
        std::vector<std::string> words;
        if (rng() % 2 == 0) {
            for (const std::string& w : before)
                if (rng() % 4 != 0)
                    words.push_back(rng() % 6 == 0 ? randomToken() : w);
        } else {
            for (unsigned n = rng() % 6; n > 0; --n)
                words.push_back(randomToken());
        }
        std::string text;
        for (const std::string& w : words)
            text += w + " ";
        b.utt(rng() % 9 == 0 ? 2 : static_cast<int>(k % 2), text + ".");
        before = std::move(words);
    }
    const SegmentedTranscript& t = b;
    auto r = classifyResponses(t, {});
    int imitations = 0;
    for (size_t i = 1; i < t.utterances.size(); ++i) {
        const Utterance &u = t.utterances[i], &prev = t.utterances[i - 1];
        if (u.speakerGroup > 1 || prev.speakerGroup != 1 - u.speakerGroup)
            continue;
        auto [exact, reduced] = imitationPlainly(u, prev);
        EXPECT_EQ(r[i].exactImitation, exact) << i;
        EXPECT_EQ(r[i].reducedImitation, reduced) << i;
        imitations += exact || reduced ? 1 : 0;
    }
    EXPECT_GT(imitations, 50);
}

TEST(AnalysisSet, DefaultsLeaveOutIncompleteUnintelligibleAndNonverbal) {
    TranscriptBuilder b;
    b.c("I want >").c("you go ^").c("XX .").c("the X dog .").c("{nods} .").c("the dog ran .");
    Selection s = selectUtterances(b, AnalysisSet{}, TranscriptCut{}, {});
    EXPECT_EQ(s.speakers[0].total, (std::vector<int>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(s.speakers[0].analysisSet, std::vector<int>{5});

    AnalysisSet all;
    all.excludeIncomplete = all.excludeUnintelligible = all.excludeNonverbal = 0;
    EXPECT_EQ(selectUtterances(b, all, TranscriptCut{}, {}).speakers[0].analysisSet.size(), 6u);
}

TEST(AnalysisSet, ResponseTypesAndCodes) {
    TranscriptBuilder b;
    b.e("what is it ?")
        .c("a dog .")
        .e("say cat ~")
        .c("cat .")
        .c("the dog [EW:went] ran [EU] .")
        .c("I see [ZZ] .");
    const AnalysisSet base;
    auto aset = [&](AnalysisSet set) {
        return selectUtterances(b, set, TranscriptCut{}, {}).speakers[0].analysisSet;
    };
    AnalysisSet q = base;
    q.excludeQuestionResponses = 1;
    EXPECT_EQ(aset(q), (std::vector<int>{3, 4, 5}));
    AnalysisSet p = base;
    p.excludePromptResponses = 1;
    p.excludeOneWord = 1; // "cat ." is also one word
    EXPECT_EQ(aset(p), (std::vector<int>{1, 4, 5}));
    AnalysisSet ex = base;
    ex.excludeCodes = "EW, zz";
    EXPECT_EQ(aset(ex), (std::vector<int>{1, 3}));
    AnalysisSet in = base;
    in.includeOnly = 1;
    in.includeCodes = "E*";
    EXPECT_EQ(aset(in), std::vector<int>{4});
}

// A timed transcript for the cut: C1..C6 by the child, E1 and E2 by the examiner.
TranscriptBuilder longTranscript() {
    TranscriptBuilder b;
    b.timing(0);
    b.c("a b .");   // 0 C1 (2 words)
    b.e("c d e ?"); // 1 E1
    b.timing(60, {"START"});
    b.c("f [ZZ] ."); // 2 C2
    b.c("XX .");     // 3 C3 not in the analysis set
    b.e("g h .");    // 4 E2
    b.timing(120);
    b.c("i j k ."); // 5 C4
    b.pause(0, {"STOP"});
    b.c("l m ."); // 6 C5
    b.timing(185);
    b.c("n ."); // 7 C6
    return b;
}

std::vector<int> taken(const Selection& s) {
    return s.utterances;
}

TEST(TranscriptCut, StartTypes) {
    TranscriptBuilder b = longTranscript();
    AnalysisSet set;
    TranscriptCut cut;
    cut.startType = TranscriptCut::FromUtterance;
    cut.startUtterance = 3;
    EXPECT_EQ(taken(selectUtterances(b, set, cut, {})), (std::vector<int>{3, 4, 5, 6, 7}));
    cut.startBase = 0; // 3rd analysis-set utterance of the child is C4
    EXPECT_EQ(taken(selectUtterances(b, set, cut, {})), (std::vector<int>{5, 6, 7}));
    cut.startSpeaker = 1;
    cut.startBase = 1;
    cut.startUtterance = 2;
    EXPECT_EQ(taken(selectUtterances(b, set, cut, {})), (std::vector<int>{4, 5, 6, 7}));

    TranscriptCut timing;
    timing.startType = TranscriptCut::FromTiming;
    timing.startTime = 120;
    EXPECT_EQ(taken(selectUtterances(b, set, timing, {})), (std::vector<int>{5, 6, 7}));

    TranscriptCut code;
    code.startType = TranscriptCut::FromCode;
    code.startCode = "[start]";
    Selection s = selectUtterances(b, set, code, {});
    EXPECT_EQ(taken(s), (std::vector<int>{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(s.speakers[0].total, (std::vector<int>{2, 3, 5, 6, 7}));
    EXPECT_EQ(s.speakers[1].total, std::vector<int>{4});
    EXPECT_EQ(s.outcome, CutOutcome::Complete);
}

TEST(TranscriptCut, EndTypes) {
    TranscriptBuilder b = longTranscript();
    AnalysisSet set;
    auto run = [&](TranscriptCut c) { return selectUtterances(b, set, c, {}); };
    TranscriptCut cut;
    cut.endType = TranscriptCut::ToUtterance;
    cut.endValue = 4; // C4, inclusive
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2, 3, 4, 5}));
    cut.endType = TranscriptCut::ToTiming;
    cut.endTime = 120;
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2, 3, 4}));
    cut.endType = TranscriptCut::ToCode;
    cut.endCode = "STOP";
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2, 3, 4, 5}));
    cut.endType = TranscriptCut::ToWordCount;
    cut.endValue = 4; // child words: 2 (C1), 1 (C2), 0 (C3), 3 (C4) reaches 6 >= 4 at C4
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2, 3, 4, 5}));
    cut.endBase = 0; // analysis set: C1 2, C2 1, C4 3
    cut.endValue = 3;
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2}));
    cut.endType = TranscriptCut::ToUtteranceCount;
    cut.endBase = 1;
    cut.endSpeaker = 2; // either speaker
    cut.endValue = 4;
    EXPECT_EQ(taken(run(cut)), (std::vector<int>{0, 1, 2, 3}));
    cut.endType = TranscriptCut::ToElapsedTime;
    cut.endTime = 120;
    Selection s = run(cut);
    EXPECT_EQ(taken(s), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(s.elapsedSeconds, 120);
    EXPECT_EQ(s.outcome, CutOutcome::Complete);
    EXPECT_EQ(run(TranscriptCut{}).elapsedSeconds, 185);
}

TEST(TranscriptCut, ElapsedTimeCountsFromTheStart) {
    TranscriptBuilder b = longTranscript();
    TranscriptCut cut;
    cut.startType = TranscriptCut::FromTiming;
    cut.startTime = 60;
    cut.endType = TranscriptCut::ToElapsedTime;
    cut.endTime = 60; // 60 s after 1:00: the timing line 2:00
    Selection s = selectUtterances(b, AnalysisSet{}, cut, {});
    EXPECT_EQ(taken(s), (std::vector<int>{2, 3, 4}));
    EXPECT_EQ(s.elapsedSeconds, 60);
}

TEST(TranscriptCut, OutcomeMessages) {
    TranscriptBuilder b = longTranscript();
    AnalysisSet set;
    auto outcome = [&](TranscriptCut c) {
        Selection s = selectUtterances(b, set, c, {});
        return std::pair{s.outcome, s.utterances.size()};
    };
    TranscriptCut c;
    c.startType = TranscriptCut::FromCode;
    c.startCode = "NOPE";
    c.endType = TranscriptCut::ToCode;
    c.endCode = "ALSO_NOPE";
    EXPECT_EQ(outcome(c), std::pair(CutOutcome::NoMarkers, size_t{0}));
    c.endCode = "STOP";
    EXPECT_EQ(outcome(c), std::pair(CutOutcome::BeginNotFound, size_t{0}));
    c.startCode = "START";
    c.endCode = "ALSO_NOPE";
    EXPECT_EQ(outcome(c), std::pair(CutOutcome::FinalNotFound, size_t{6}));

    TranscriptBuilder ended = longTranscript();
    ended.end().c("after the end .");
    Selection s = selectUtterances(ended, set, c, {});
    EXPECT_EQ(s.outcome, CutOutcome::EndBeforeFinal);
    EXPECT_EQ(s.utterances.back(), 7); // nothing after "@end"

    TranscriptBuilder untimed;
    untimed.c("hi .").c("bye .");
    TranscriptCut elapsed;
    elapsed.endType = TranscriptCut::ToElapsedTime;
    elapsed.endTime = 60;
    Selection none = selectUtterances(untimed, set, elapsed, {});
    EXPECT_EQ(none.outcome, CutOutcome::NoTiming);
    EXPECT_TRUE(none.utterances.empty());

    EXPECT_EQ(cutOutcomeMessage(CutOutcome::NoMarkers),
              "No cut markers found - no utterances included");
    EXPECT_EQ(cutOutcomeMessage(CutOutcome::BeginNotFound),
              "Beginning cut marker not found - no utterances included");
    EXPECT_EQ(cutOutcomeMessage(CutOutcome::NoTiming),
              "Timing markers not found - no utterances included");
    EXPECT_EQ(cutOutcomeMessage(CutOutcome::EndBeforeFinal),
              "@end encountered before final cut marker");
    EXPECT_EQ(cutOutcomeMessage(CutOutcome::FinalNotFound),
              "Final cut marker not found - end of transcript used");
    EXPECT_EQ(cutOutcomeMessage(CutOutcome::Complete), "");
}

} // namespace
} // namespace tavi
