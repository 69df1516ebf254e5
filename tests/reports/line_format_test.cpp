// Printed value forms: the exactly-100 percentage rule, elapsed times, the
// missing mark, the value beside a database mean.
#include <gtest/gtest.h>

#include "reports/line_format.h"

namespace tavi {
namespace {

TEST(LineFormat, PercentageOfExactly100DropsItsDecimalWhile9996KeepsIt) {
    EXPECT_EQ(formatPercent(100.0f), "100%");
    // 99.96 as the single-precision value the measures hold: rounds up, keeps ".0".
    EXPECT_EQ(formatPercent(99.96f), "100.0%");
    EXPECT_EQ(formatPercent(99.94f), "99.9%");
    EXPECT_EQ(formatPercent(0.0), "0.0%");
    EXPECT_EQ(formatPercent(12.25), "12.2%");
    EXPECT_EQ(formatPercent(std::nullopt), "   ---");
}

TEST(LineFormat, CountsMeansAndTheMissingMark) {
    EXPECT_EQ(formatCount(52.0), "52");
    EXPECT_EQ(formatCount(std::nullopt), "   ---");
    EXPECT_EQ(formatMean(4.255f), "4.26");
    EXPECT_EQ(formatMean(3.0), "3.00");
    EXPECT_EQ(formatMean(std::nullopt), "   ---");
    EXPECT_EQ(formatWithMean("4.26", 5.1), "(4.26)     5.10");
    EXPECT_EQ(formatWithMean(kMissingMark, 5.1), "(   ---)     5.10");
    EXPECT_EQ(percentLabel("Abandoned Utterances"), "% Abandoned Utterances");
}

TEST(LineFormat, ElapsedTimeCellsPadSecondsBelowTen) {
    EXPECT_EQ(formatElapsedCell(185), "3:05");
    EXPECT_EQ(formatElapsedCell(190), "3:10");
    EXPECT_EQ(formatElapsedCell(180), "3:00");
    EXPECT_EQ(formatElapsedCell(9), "0:09");
    EXPECT_EQ(formatElapsedCell(std::nullopt), "   ---");
}

TEST(LineFormat, ElapsedTimeLinesTakeTheirThreeForms) {
    const TimeWords words{"Minutes", "Seconds", "Timing information was not provided."};
    EXPECT_EQ(elapsedTimeLine("  ", "Elapsed Time (minutes)", 180, words).text(),
              "  Elapsed Time (minutes): 3 Minutes");
    EXPECT_EQ(elapsedTimeLine("  ", "Elapsed Time (minutes)", 185, words).text(),
              "  Elapsed Time (minutes):  3 Minutes  5 Seconds");
    EXPECT_EQ(elapsedTimeLine("", "Elapsed Time", 59, words).text(),
              "Elapsed Time:  0 Minutes  59 Seconds");
    EXPECT_EQ(elapsedTimeLine("  ", "Elapsed Time (minutes)", std::nullopt, words).text(),
              "  Elapsed Time (minutes):  Timing information was not provided.");
}

} // namespace
} // namespace tavi
