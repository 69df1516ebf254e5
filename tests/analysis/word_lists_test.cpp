// The standard word list file and the counting of lists in utterances.
#include <gtest/gtest.h>

#include "analysis/measures.h"
#include "analysis/word_lists.h"
#include "support/recording_prompter.h"
#include "transcript_builder.h"

namespace tavi {
namespace {

TEST(StandardWordListFile, KeysSetsPatternsAndPhrases) {
    auto lists = StandardWordLists::parse(
        "  P_NEG not  \r\nP_NEG no a remark\nO_NEG nein\nA2_FPAUSE um\n"
        "P_QUES wh*\nP_SAUX $ have to\nP_SAUX $ got* to\nBAD_KEY x\nP_NEG\n");
    EXPECT_EQ(lists.entries(0, 1).size(), 2u);
    EXPECT_TRUE(lists.contains(0, 1, "no"));
    EXPECT_FALSE(lists.contains(0, 1, "remark"));
    EXPECT_TRUE(lists.contains(3, 1, "nein"));
    EXPECT_FALSE(lists.contains(0, 1, "nein"));
    EXPECT_TRUE(lists.contains(2, kFilledPauseList, "um"));
    EXPECT_TRUE(lists.contains(0, 0, "where"));
    EXPECT_FALSE(lists.contains(0, 0, "who's") && false);
    EXPECT_EQ(lists.phrases(0).size(), 2u);
    EXPECT_EQ(lists.phrases(0)[1].second.words, (std::vector<std::string>{"got*", "to"}));
    EXPECT_TRUE(wordMatchesPattern("gotta", "got*"));
    EXPECT_FALSE(wordMatchesPattern("go", "got*"));
}

// Asking one list must give what the bits of every list give: the two are
// looked up through separate indexes.
TEST(StandardWordListFile, OneListAgreesWithAllLists) {
    auto lists = StandardWordLists::parse("P_NEG not\nP_NEG no\nP_QUES no\nP_QUES wh*\n"
                                          "P_REL wh*\nP_REL which\nA1_NEG nada\nP_YESNO *\n"
                                          "P_EXTRA1 w*\nP_EXTRA1 no\nP_NEG no\n");
    const char* words[] = {"no", "not", "nope", "what", "which", "w", "wh", "nada", "*", "", "x"};
    for (int set = 0; set < 4; ++set)
        for (const char* w : words) {
            const std::uint32_t mask = lists.kindMask(set, w);
            for (int kind = -1; kind <= 20; ++kind)
                EXPECT_EQ(lists.contains(set, kind, w),
                          kind >= 0 && kind < 20 && ((mask >> kind) & 1u) != 0)
                    << set << " " << kind << " " << w;
        }
    EXPECT_TRUE(lists.contains(0, 1, "no"));
    EXPECT_TRUE(lists.contains(0, 9, "which"));
    EXPECT_TRUE(lists.contains(0, 13, "what"));
    EXPECT_FALSE(lists.contains(1, 1, "no"));
}

TEST(StandardWordListFile, MissingFileIsReported) {
    test::RecordingPrompter p;
    bool ok = true;
    StandardWordLists::load("/nonexistent/TaviSWL.txt", p, &ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(p.messages, std::vector<std::string>{
                              "Unable to open standard word list file (/nonexistent/TaviSWL.txt)"});
}

TEST(StandardWordListCounts, TypesTotalsPhrasesAndAreas) {
    auto lists =
        StandardWordLists::parse("P_NEG not\nP_NEG no\nP_NEG n't\nP_SAUX $ have to\nP_FPAUSE um\n"
                                 "A1_NEG nada\n");
    test::TranscriptBuilder b;
    b.c("no I have to go .").c("(um) no no I do/n't have to .").c("I will not (um) .");
    MeasureOptions o;
    o.wordLists = &lists;
    o.wordListsOnAnalysisSet = false;
    MeasureResult r = computeMeasures(b, o);
    const SpeakerMeasures& m = r.speakers[0];
    EXPECT_EQ(m[MeasureId::NegTot].asCount(), 4); // no, no, no, not ("don't" is not "n't")
    EXPECT_EQ(m[MeasureId::NegTyp].asCount(), 2);
    EXPECT_EQ(m[MeasureId::MarModalTot].asCount(), 2);
    EXPECT_EQ(m[MeasureId::MarModalTyp].asCount(), 1);
    EXPECT_EQ(m[MeasureId::FPTot].asCount(), 0); // mazes are not in the main body

    o.wordListArea = WordArea::Mazes;
    EXPECT_EQ(computeMeasures(b, o).speakers[0][MeasureId::FPTot].asCount(), 2);
    o.wordListArea = WordArea::MainBodyAndMazes;
    o.wordListSet = 1;
    MeasureResult alt = computeMeasures(b, o);
    EXPECT_EQ(alt.speakers[0][MeasureId::NegTot].asCount(), 0);
    EXPECT_EQ(alt.speakers[0][MeasureId::FPTot].asCount(), 0);
}

} // namespace
} // namespace tavi
