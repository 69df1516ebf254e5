// The equating texts of the transcript side and the analysis set's name.
#include <gtest/gtest.h>

#include "analysis/equating.h"

namespace tavi {
namespace {

TEST(Equating, LabelsHeadersAndAmounts) {
    EXPECT_EQ(equatingLabel(EquatingMethod::AnalysisSetUtterances),
              "Same number of analysis-set utterances");
    EXPECT_EQ(equatingLabel(EquatingMethod::EntireTranscript),
              "Entire transcript (regardless of length)");
    EXPECT_EQ(equatingHeader(EquatingMethod::AnalysisSetUtterances, "C&I Verbal Utts"),
              "Same Number of C&I Verbal Utts");
    EXPECT_EQ(equatingHeader(EquatingMethod::TotalWords, ""), "Same NTW");
    EXPECT_EQ(equatingHeader(EquatingMethod::ElapsedTime, ""), "Same Amount of Elapsed Time");

    TranscriptAmount a{52, 230, 305};
    EXPECT_EQ(equatingAmountText(EquatingMethod::AnalysisSetUtterances, a, "C&I Verbal Utts"),
              "Same number of analysis-set utterances (52 C&I Verbal Utts)");
    EXPECT_EQ(equatingAmountText(EquatingMethod::TotalWords, a, ""),
              "Same number of total words (230 NTW)");
    EXPECT_EQ(equatingAmountText(EquatingMethod::ElapsedTime, a, ""),
              "Same amount of elapsed time (5:05)");
    a.elapsedSeconds = 310;
    EXPECT_EQ(equatingAmountText(EquatingMethod::ElapsedTime, a, ""),
              "Same amount of elapsed time (5:10)");

    TranscriptAmount none{3, 0, std::nullopt};
    EXPECT_EQ(equatingAmountText(EquatingMethod::TotalWords, none, ""),
              "Same number of total words - NOT AVAILABLE (0 NTW in transcript)");
    EXPECT_EQ(equatingAmountText(EquatingMethod::ElapsedTime, none, ""),
              "Same amount of elapsed time - NOT AVAILABLE (timing not marked in transcript)");

    EXPECT_EQ(analysisSetName(AnalysisSet{}), "C&I Verbal Utts");
    AnalysisSet other;
    other.excludeImitations = 1;
    EXPECT_EQ(analysisSetName(other), "Analysis Set Utts");
}

} // namespace
} // namespace tavi
