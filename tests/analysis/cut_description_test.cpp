// The cut as text: every start and end form, and the length limit.
#include <gtest/gtest.h>

#include "analysis/selection.h"

namespace tavi {
namespace {

TranscriptCut fromUtterance(int spk, int n, int base) {
    TranscriptCut c;
    c.startType = TranscriptCut::FromUtterance;
    c.startSpeaker = spk;
    c.startUtterance = n;
    c.startBase = base;
    return c;
}

std::string describe(const TranscriptCut& c) {
    return describeCut(c, 200);
}

TEST(CutDescription, NoCutAndEndOfTranscript) {
    EXPECT_EQ(describe(TranscriptCut{}), "Entire Transcript");
    EXPECT_EQ(describe(fromUtterance(0, 5, 1)), "From Spk 1 Utt 5 to End");
    EXPECT_EQ(describe(fromUtterance(1, 3, 0)), "From Spk 2 Anal. Set Utt 3 to End");
    EXPECT_EQ(describeCut(fromUtterance(1, 3, 0), 200, "C&I Verbal Utt"),
              "From Spk 2 C&I Verbal Utt 3 to End");
    TranscriptCut t;
    t.startType = TranscriptCut::FromTiming;
    t.startTime = 255;
    EXPECT_EQ(describe(t), "From Timing Line 4:15 to End");
    TranscriptCut code;
    code.startType = TranscriptCut::FromCode;
    code.startCode = "[BEGIN]";
    EXPECT_EQ(describe(code), "From [BEGIN] to End");
}

TEST(CutDescription, UtteranceEnds) {
    TranscriptCut c = fromUtterance(0, 5, 1);
    c.endType = TranscriptCut::ToUtterance;
    c.endValue = 5;
    EXPECT_EQ(describe(c), "From Spk 1 Utt 5 to 5");
    c.endSpeaker = 1;
    EXPECT_EQ(describe(c), "From Spk 1 Utt 5 to Spk 2 Utt 5");
    c.endSpeaker = 0;
    c.endBase = 0;
    EXPECT_EQ(describe(c), "From Spk 1 Utt 5 to Spk 1 Anal. Set Utt 5");
    TranscriptCut b;
    b.endType = TranscriptCut::ToUtterance;
    b.endValue = 40;
    EXPECT_EQ(describe(b), "From Beginning to Spk 1 Utt 40");
}

TEST(CutDescription, TimingAndCodeEnds) {
    TranscriptCut c;
    c.endType = TranscriptCut::ToTiming;
    c.endTime = 536;
    EXPECT_EQ(describe(c), "From Beginning to Timing Line 8:56");
    c.startType = TranscriptCut::FromTiming;
    c.startTime = 65;
    EXPECT_EQ(describe(c), "From Timing Line 1:05 to 8:56");
    TranscriptCut code;
    code.startType = TranscriptCut::FromCode;
    code.startCode = "A";
    code.endType = TranscriptCut::ToCode;
    code.endCode = "B";
    EXPECT_EQ(describe(code), "From A to B");
}

TEST(CutDescription, ContentTargets) {
    TranscriptCut w;
    w.endType = TranscriptCut::ToWordCount;
    w.endValue = 100;
    EXPECT_EQ(describe(w), "100 Spk 1 Main Body Words");
    w.wordArea = 1;
    w.endBase = 0;
    EXPECT_EQ(describe(w), "100 Spk 1 Words from Anal. Set Utts");
    w.startType = TranscriptCut::FromTiming;
    w.startTime = 60;
    EXPECT_EQ(describe(w), "From Timing Line 1:00, Contains 100 Spk 1 Words from Anal. Set Utts");
    w.endBase = 1;
    w.wordArea = 0;
    w.endSpeaker = 1;
    EXPECT_EQ(describe(w), "From Timing Line 1:00, Contains 100 Spk 2 Main Body Words");

    TranscriptCut u;
    u.endType = TranscriptCut::ToUtteranceCount;
    u.endValue = 50;
    u.endSpeaker = 2;
    EXPECT_EQ(describe(u), "50 Utterances");
    u.endSpeaker = 0;
    u.endBase = 0;
    EXPECT_EQ(describe(u), "50 Spk 1 Anal. Set Utts");
    u.startType = TranscriptCut::FromCode;
    u.startCode = "GO";
    EXPECT_EQ(describe(u), "From GO, Contains 50 Spk 1 Anal. Set Utts");
    u.endBase = 1;
    u.endSpeaker = 1;
    EXPECT_EQ(describe(u), "From GO, Contains 50 Spk 2 Utts");

    TranscriptCut e;
    e.endType = TranscriptCut::ToElapsedTime;
    e.endTime = 300;
    EXPECT_EQ(describe(e), "Elapsed Time 5:00");
    e.startType = TranscriptCut::FromUtterance;
    e.startUtterance = 2;
    EXPECT_EQ(describe(e), "From Spk 1 Utt 2, Contains Elapsed Time 5:00");
}

TEST(CutDescription, LongTextKeepsItsBeginning) {
    TranscriptCut c = fromUtterance(0, 5, 1);
    EXPECT_EQ(describeCut(c, 10), "From Spk 1");
    EXPECT_EQ(describeCut(TranscriptCut{}, 6), "Entire");
    TranscriptCut code;
    code.startType = TranscriptCut::FromCode;
    code.startCode = "\xC3\xA9t\xC3\xA9"; // counted in characters, not bytes
    EXPECT_EQ(describeCut(code, 7), "From \xC3\xA9t");
}

} // namespace
} // namespace tavi
