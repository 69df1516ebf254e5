// Measures of a transcript small enough to count on paper. The counts in the
// comments were made by hand from the transcript below.
#include <gtest/gtest.h>

#include "analysis/gc_dictionary.h"
#include "analysis/grammatical_categories.h"
#include "analysis/measures.h"
#include "analysis/word_lists.h"
#include "transcript_builder.h"

namespace tavi {
namespace {

using test::TranscriptBuilder;
using Id = MeasureId;

// Child (C) utterances 1, 2, 4, 5, 6, 8, 9, 10, 11: nine in all. With the
// default analysis set, 5 (partly intelligible), 6 (unintelligible), 9
// (nonverbal) and 11 (abandoned) are left out: five analysis-set utterances.
TranscriptBuilder sample() {
    TranscriptBuilder b;
    b.timing(0)
        .e("what did you see ?")               // 0
        .c("I saw two dog/s .")                // 1  4 words 5 morphemes; Q
        .c("(um) the (b) big dog/s ran/*ed .") // 2  4 words 5 morphemes; 2 mazes
        .e("really ~")                         // 3
        .c("really .")                         // 4  1 word; P, exact imitation, O
        .c("he+'s X happy :3 .")               // 5  2 words; partly intelligible; 3 s pause
        .c("XXX .")                            // 6  unintelligible
        .e("and then ^")                       // 7
        .c("<he> jump/ed [EW:jumped] over *the fence .") // 8  4 words 5 morphemes; interrupts
        .c("{laughs} .")                                 // 9  nonverbal
        .pause(2)
        .c("I like it !") // 10 3 words
        .c("the cat >")   // 11 2 words, abandoned
        .timing(120);
    return b;
}

GcDictionary sampleDictionary() {
    GcDictionary d(211);
    for (const char* line :
         {"saw [GC:VERB] [GC:NOUN]", "ran [GC:VERB]", "jump [GC:VERB]", "like [GC:VERB] [GC:PREP]",
          "I [GC:PPRON]", "the [GC:DET]", "two [GC:ADJ]", "dog [GC:NOUN] [GC:VERB]", "big [GC:ADJ]",
          "really [GC:INTEN]", "he [GC:PPRON]", "over [GC:PREP]", "fence [GC:NOUN]",
          "it [GC:PPRON]"})
        d.insert(line);
    return d;
}

const char* kLists = "P_PERS i\nP_PERS he\nP_PERS it\nP_YESNO yes\nP_FPAUSE um\nP_CONJ and\n"
                     "P_QUES wh*\nA1_PERS yo\nXX_BAD foo\n";

class SampleMeasures : public ::testing::Test {
protected:
    SampleMeasures() : lists(StandardWordLists::parse(kLists)), dictionary(sampleDictionary()) {
        options.window = 10;
        options.wordLists = &lists;
        options.dictionary = &dictionary;
        result = computeMeasures(sample(), options);
    }
    const SpeakerMeasures& child() const { return result.speakers[0]; }
    const SpeakerMeasures& examiner() const { return result.speakers[1]; }
    double real(Id id) const { return child()[id].asReal(); }
    int count(Id id) const { return child()[id].asCount(); }

    StandardWordLists lists;
    GcDictionary dictionary;
    MeasureOptions options;
    MeasureResult result;
};

TEST_F(SampleMeasures, TranscriptLengthAndUtteranceKinds) {
    EXPECT_EQ(count(Id::TotNumUt), 9);
    EXPECT_EQ(count(Id::TotASetUt), 5);
    EXPECT_EQ(count(Id::AllWords), 22); // 20 main-body words + 2 maze words
    EXPECT_EQ(count(Id::Statements), 7);
    EXPECT_EQ(count(Id::Exclamations), 1);
    EXPECT_EQ(count(Id::Questions), 0);
    EXPECT_EQ(count(Id::AbanUt), 1);
    EXPECT_NEAR(real(Id::PctAbanUt), 100.0 / 9, 1e-9);
    EXPECT_EQ(count(Id::NonVerbalUt), 1);
    EXPECT_EQ(count(Id::TotVerbalUt), 8);
    EXPECT_EQ(count(Id::UnintelUt), 1);
    EXPECT_EQ(count(Id::PartIntelUt), 1);
    EXPECT_EQ(count(Id::PartOrAllUnintUt), 2);
    EXPECT_DOUBLE_EQ(real(Id::PctIntelUt), 75.0);         // 6 of 8 verbal utterances
    EXPECT_NEAR(real(Id::PctIntelWd), 2000.0 / 22, 1e-9); // 20 words, 2 marks
    EXPECT_EQ(count(Id::UtWPause), 1);
    EXPECT_EQ(count(Id::UtWComment), 1);
    EXPECT_EQ(examiner()[Id::TotNumUt].asCount(), 3);
    EXPECT_EQ(examiner()[Id::TotASetUt].asCount(), 2); // "and then ^" is left out
}

TEST_F(SampleMeasures, LengthVocabularyAndBrownsStage) {
    EXPECT_DOUBLE_EQ(real(Id::MLUw), 16.0 / 5);
    EXPECT_DOUBLE_EQ(real(Id::MLUm), 19.0 / 5);
    EXPECT_DOUBLE_EQ(real(Id::MLUwTot), 20.0 / 9);
    EXPECT_DOUBLE_EQ(real(Id::MLUmTot), 23.0 / 9); // 20 words + dog/s twice + jump/ed
    EXPECT_EQ(child()[Id::BrownStg].asText(), "Late IV/Early V");
    EXPECT_EQ(child()[Id::ExpAgeRange].asText(), "31 - 50");
    EXPECT_EQ(count(Id::NTW), 16);
    EXPECT_EQ(count(Id::NDW), 14); // "dog" and "i" twice
    EXPECT_DOUBLE_EQ(real(Id::TTR), 14.0 / 16);
    EXPECT_EQ(child().formatted(Id::MLUw), "3.20");
    EXPECT_EQ(count(Id::BoundMorphs), 3);
    EXPECT_EQ(count(Id::DiffBM), 2);
    EXPECT_EQ(count(Id::BoundClitics), 0);   // he+'s is not in the analysis set
    EXPECT_EQ(count(Id::WdsMention1st), 15); // of 16 roots; "really" came from the examiner
    EXPECT_DOUBLE_EQ(real(Id::PctWdsMention1st), 1500.0 / 16);
}

TEST_F(SampleMeasures, MovingAverages) {
    // Seven windows of ten words; NDW 9, 9, 9, 9, 10, 10, 10.
    EXPECT_EQ(count(Id::MA_NTW), 10); // the window size: a whole number
    EXPECT_EQ(child().formatted(Id::MA_NTW), "10");
    EXPECT_DOUBLE_EQ(real(Id::MA_NDW), 66.0 / 7);
    EXPECT_DOUBLE_EQ(real(Id::MA_TTR), 6.6 / 7);
    // A window longer than the sample: one window of the whole sample.
    options.window = 100;
    MeasureResult r = computeMeasures(sample(), options);
    EXPECT_EQ(r.speakers[0][Id::MA_NTW].asCount(), 16);
    EXPECT_EQ(r.speakers[0].formatted(Id::MA_NTW), "16");
    EXPECT_DOUBLE_EQ(r.speakers[0][Id::MA_NDW].asReal(), 14.0);
    EXPECT_DOUBLE_EQ(r.speakers[0][Id::MA_TTR].asReal(), 14.0 / 16);
}

TEST_F(SampleMeasures, Discourse) {
    EXPECT_EQ(count(Id::RespToQues), 1);
    EXPECT_EQ(count(Id::YNRespToQues), 0);
    EXPECT_EQ(count(Id::OthRespToQues), 1);
    EXPECT_EQ(count(Id::RespToIntPrmpt), 1);
    EXPECT_EQ(count(Id::Imitations), 1);
    EXPECT_EQ(count(Id::ExactImit), 1);
    EXPECT_EQ(count(Id::OneWdUt), 1);
    EXPECT_EQ(count(Id::OtherSpkQues), 1);
    EXPECT_EQ(count(Id::OtherSpkIntPrmpt), 1);
    EXPECT_EQ(child().formatted(Id::PctRespQues), "100%");
    EXPECT_EQ(count(Id::SponUt), 7);
    EXPECT_EQ(count(Id::SponStmt), 5);
    EXPECT_EQ(count(Id::SponAban), 1);
    EXPECT_EQ(count(Id::IntrOthSpk), 1);
    EXPECT_EQ(count(Id::UtWOverlap), 1);
    // Turns: (1, 2) 8 words, (4, 5, 6) 3 words, (8, 9, 10, 11) 9 words.
    EXPECT_DOUBLE_EQ(real(Id::MeanTurnUt), 3.0);
    EXPECT_DOUBLE_EQ(real(Id::MedTurnUt), 3.0);
    EXPECT_DOUBLE_EQ(real(Id::MeanTurnWd), 20.0 / 3);
    EXPECT_DOUBLE_EQ(real(Id::MedTurnWd), 8.0);
    EXPECT_EQ(count(Id::TurnByTLUt2) + count(Id::TurnByTLUt3) + count(Id::TurnByTLUt4), 3);
    EXPECT_EQ(count(Id::TurnByTLWd8), 1);
    EXPECT_EQ(count(Id::TurnByTLWdTot), 3);
}

// A turn ends at any other speaker's utterance, a third speaker's too; the
// medians of an even number of turns are the mean of the middle two, also
// when one turn is very long.
TEST(Turns, EndAtAnyOtherSpeakerAndMediansOfEvenCounts) {
    TranscriptBuilder b;
    b.c("a b .").c("c .").o("hm .").c("d e f g .").e("yes .");
    b.c("h .").c("i .").c("j k .").c("l .").e("ok .").c("m n .");
    MeasureResult r = computeMeasures(b, MeasureOptions{});
    const SpeakerMeasures& m = r.speakers[0];
    EXPECT_EQ(m[MeasureId::TurnByTLUtTot].asCount(), 4); // utterances 2, 1, 4, 1; words 3, 4, 5, 2
    EXPECT_DOUBLE_EQ(m[MeasureId::MeanTurnUt].asReal(), 2.0);
    EXPECT_DOUBLE_EQ(m[MeasureId::MedTurnUt].asReal(), 1.5);
    EXPECT_DOUBLE_EQ(m[MeasureId::MeanTurnWd].asReal(), 3.5);
    EXPECT_DOUBLE_EQ(m[MeasureId::MedTurnWd].asReal(), 3.5);
    EXPECT_EQ(r.speakers[1][MeasureId::TurnByTLUtTot].asCount(), 2);

    std::string longest;
    for (int k = 0; k < 70000; ++k)
        longest += "w ";
    TranscriptBuilder big;
    big.c(longest + ".").e("ok .").c("a .").e("ok .").c("a b .").e("ok .").c("a b c .");
    const MeasureResult longRun = computeMeasures(big, MeasureOptions{});
    const SpeakerMeasures& l = longRun.speakers[0];
    EXPECT_DOUBLE_EQ(l[MeasureId::MedTurnWd].asReal(), 2.5); // words 70000, 1, 2, 3
    EXPECT_DOUBLE_EQ(l[MeasureId::MedTurnUt].asReal(), 1.0);
}

// A sample whose first timing line is not 0:00 lasts from that line by
// default; with the start time not subtracted it lasts from 0:00.
TEST(ElapsedTime, StartTimeSubtractedUnlessTurnedOff) {
    TranscriptBuilder b;
    b.timing(90).c("I saw a dog .").c("it ran .").timing(210);
    MeasureOptions options;
    EXPECT_EQ(computeMeasures(b, options).speakers[0][Id::TimeMinSec].asText(), "2:00");
    options.subtractStartTime = false;
    EXPECT_EQ(computeMeasures(b, options).speakers[0][Id::TimeMinSec].asText(), "3:30");
    EXPECT_DOUBLE_EQ(computeMeasures(b, options).speakers[0][Id::WPM].asReal(), 6 / 3.5);
}

TEST_F(SampleMeasures, TimingPausesAndMazes) {
    EXPECT_DOUBLE_EQ(real(Id::TimeMin), 2.0);
    EXPECT_EQ(child()[Id::TimeMinSec].asText(), "2:00");
    EXPECT_DOUBLE_EQ(real(Id::WPM), 10.0);
    EXPECT_DOUBLE_EQ(real(Id::UtPerMin), 4.5);
    EXPECT_DOUBLE_EQ(real(Id::AvgPauseWiUt), 3.0);
    EXPECT_DOUBLE_EQ(real(Id::AvgPauseBtUt), 2.0);
    EXPECT_NEAR(real(Id::PctPauseTime), 500.0 / 120, 1e-9);
    EXPECT_FALSE(child().pausesUntimed || child().somePausesUntimed || child().timingMissing);
    EXPECT_EQ(count(Id::MzWds), 2);
    EXPECT_NEAR(real(Id::PctMzWds), 200.0 / 22, 1e-9);
    EXPECT_EQ(count(Id::TotNumMz), 2);
    EXPECT_DOUBLE_EQ(real(Id::AvgWdPerMz), 1.0);
    EXPECT_EQ(count(Id::UtWMaze), 1);
    EXPECT_EQ(count(Id::MzFPSingleWd), 1); // (um)
    EXPECT_EQ(count(Id::MzRepPartWd), 1);  // (b) big
    EXPECT_EQ(count(Id::MzRevWd), 0);
    EXPECT_EQ(count(Id::MzByUL4), 2);
    EXPECT_NEAR(real(Id::PctUtWMzByUL4), 100.0 / 3, 1e-9);
    EXPECT_EQ(count(Id::MzByML1), 2);
}

TEST_F(SampleMeasures, OmissionsErrorsAndCodes) {
    EXPECT_EQ(count(Id::OmitWd), 1);
    EXPECT_EQ(count(Id::OmitBm), 1);
    EXPECT_EQ(count(Id::Omissions), 2);
    EXPECT_EQ(count(Id::UtWOmission), 2);
    EXPECT_EQ(count(Id::ErrCodes), 1);
    EXPECT_EQ(count(Id::ErrCodesWd), 1);
    EXPECT_EQ(count(Id::UtWErrCode), 1);
    EXPECT_NEAR(real(Id::PctUtWErrors), 200.0 / 9, 1e-9);
    EXPECT_NEAR(real(Id::PctWordErrors), 200.0 / 21, 1e-9);
    EXPECT_EQ(count(Id::UttwWdCode), 1);
    EXPECT_EQ(count(Id::UttwUtCode), 0);
    EXPECT_DOUBLE_EQ(real(Id::PctUtWFluencyCd), 0.0);
}

TEST_F(SampleMeasures, VerbsCategoriesListsAndDistribution) {
    EXPECT_DOUBLE_EQ(real(Id::PctUtWVerb), 80.0); // saw, ran, jump, like; none in "really ."
    EXPECT_DOUBLE_EQ(real(Id::VPU), 0.8);
    const WordCount& verbs = child().categories[GcVerb];
    EXPECT_EQ(verbs.total, 6); // "dog" twice as its second category
    EXPECT_EQ(verbs.types, 5);
    EXPECT_EQ(count(Id::GC_PersPrnTot), 4);
    EXPECT_EQ(count(Id::GC_PersPrnTyp), 3);
    EXPECT_EQ(count(Id::PersPrnTot), 4);
    EXPECT_EQ(count(Id::PersPrnTyp), 3);
    EXPECT_EQ(child().wordLists[5].words, (std::vector<std::string>{"i", "he", "it"}));
    EXPECT_EQ(examiner()[Id::QuesTot].asCount(), 1); // "what" by "wh*"
    EXPECT_EQ(examiner()[Id::ConjTot].asCount(), 0); // "and then ^" is not in the analysis set
    EXPECT_EQ(count(Id::UtbyUL1), 1);
    EXPECT_EQ(count(Id::UtbyUL3), 1);
    EXPECT_EQ(count(Id::UtbyUL4), 3);
    EXPECT_EQ(count(Id::UtbyULTot), 5);
    EXPECT_EQ(child().utteranceLists[0], (std::vector<int>{1, 4})); // PRIP
    EXPECT_EQ(child().utteranceLists[4], (std::vector<int>{5, 6})); // PUNI
    EXPECT_EQ(child().utteranceLists[6], (std::vector<int>{2, 8})); // POMIT
    EXPECT_EQ(child().utteranceLists[19], std::vector<int>{11});    // PABAN
}

TEST(Measures, MissingValuesWhenNothingCanBeComputed) {
    TranscriptBuilder b;
    b.e("hello .");
    MeasureResult r = computeMeasures(b, MeasureOptions{});
    const SpeakerMeasures& m = r.speakers[0];
    EXPECT_EQ(m[Id::TotNumUt].asCount(), 0);
    for (Id id : {Id::MLUw, Id::MLUm, Id::TTR, Id::MA_NDW, Id::TimeMin, Id::WPM, Id::PctIntelUt,
                  Id::BrownStg, Id::ExpAgeRange, Id::MeanTurnUt, Id::MedTurnWd, Id::NSS, Id::SI,
                  Id::CQTotal, Id::PctUtWVerb, Id::GC_NounTot, Id::QuesTot})
        EXPECT_EQ(m.formatted(id), "   ---") << measureName(id);
    EXPECT_TRUE(m.timingMissing);
    EXPECT_FALSE(r.wordListsAvailable);
    EXPECT_EQ(m.find("%IntelUt"), &m[Id::PctIntelUt]);
    EXPECT_EQ(m.find("Tot#Mz"), &m[Id::TotNumMz]);
    EXPECT_EQ(m.find("CQ Total"), &m[Id::CQTotal]);
    EXPECT_EQ(m.find("NoSuchMeasure"), nullptr);
}

TEST(Measures, WordBaseAndUntimedPauses) {
    TranscriptBuilder b;
    b.c("the dog [XW] ran : fast ((what a day)) .");
    MeasureOptions o;
    MeasureResult r = computeMeasures(b, o);
    EXPECT_EQ(r.speakers[0][Id::NTW].asCount(), 4);
    EXPECT_TRUE(r.speakers[0].pausesUntimed);
    EXPECT_EQ(r.speakers[0].formatted(Id::AvgPauseWiUt), "   ---");
    o.wordBase.excludeCodes = "XW";
    EXPECT_EQ(computeMeasures(b, o).speakers[0][Id::NTW].asCount(), 3);
    o.wordBase.excludeCodes.clear();
    o.wordBase.excludeParenthetical = false;
    EXPECT_EQ(computeMeasures(b, o).speakers[0][Id::NTW].asCount(), 7);
    o.wordBase.includeMode = true;
    o.wordBase.includeCodes = "XW";
    o.wordBase.excludeParenthetical = true;
    EXPECT_EQ(computeMeasures(b, o).speakers[0][Id::NTW].asCount(), 1);
}

} // namespace
} // namespace tavi
