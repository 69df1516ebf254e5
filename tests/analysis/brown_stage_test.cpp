// Brown's stage and expected age range at the rounding edge and every bound.
#include <gtest/gtest.h>

#include "analysis/brown_stage.h"
#include "analysis/value.h"

namespace tavi {
namespace {

std::string stage(double m) {
    return formatValue(brownStage(m), MeasureFormat::Text);
}
std::string ages(double m) {
    return formatValue(expectedAgeRange(m), MeasureFormat::Text);
}

TEST(BrownStage, EdgeCasesFromTheRoundingRule) {
    EXPECT_EQ(roundedHundredths(1.496), 150);
    EXPECT_EQ(stage(1.496), "Late I");
    EXPECT_EQ(ages(1.496), "18 - 31");
    EXPECT_EQ(roundedHundredths(1.494), 149);
    EXPECT_EQ(stage(1.494), "Early I");
    EXPECT_EQ(stage(0.99), "   ---");
    EXPECT_EQ(ages(0.99), "   ---");
    EXPECT_EQ(stage(0.995), "Early I"); // rounds up to 1.00
    EXPECT_EQ(stage(5.2), "Post V");
    EXPECT_EQ(ages(5.2), "41 - --");
    EXPECT_EQ(stage(0.0), "   ---");
}

TEST(BrownStage, EachBoundStartsItsStage) {
    struct Row {
        double bound;
        const char* name;
        const char* ages;
    };
    const Row rows[] = {{1.0, "Early I", "16 - 26"},  {1.5, "Late I", "18 - 31"},
                        {2.0, "II", "21 - 35"},       {2.5, "III", "24 - 41"},
                        {3.0, "Early IV", "28 - 45"}, {3.5, "Late IV/Early V", "31 - 50"},
                        {4.0, "Late V", "37 - 52"},   {4.5, "Post V", "41 - --"}};
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(stage(rows[i].bound), rows[i].name) << rows[i].bound;
        EXPECT_EQ(ages(rows[i].bound), rows[i].ages) << rows[i].bound;
        EXPECT_EQ(brownStageIndex(rows[i].bound - 0.006), static_cast<int>(i)) << rows[i].bound;
        EXPECT_EQ(brownStageIndex(rows[i].bound - 0.004), static_cast<int>(i) + 1) << rows[i].bound;
    }
}

TEST(ValueFormat, ReportFormats) {
    EXPECT_EQ(formatValue(Value(), MeasureFormat::Mean), "   ---");
    EXPECT_EQ(formatValue(Value::count(7), MeasureFormat::Count), "7");
    EXPECT_EQ(formatValue(Value::real(1.755), MeasureFormat::Mean), "1.75"); // binary 1.75499...
    EXPECT_EQ(formatValue(Value::real(100.0), MeasureFormat::Percent), "100%");
    EXPECT_EQ(formatValue(Value::real(99.96), MeasureFormat::Percent), "100.0%");
    EXPECT_EQ(formatValue(Value::real(12.34), MeasureFormat::Percent), "12.3%");
    EXPECT_EQ(formatValue(Value::ratio(1, 0), MeasureFormat::Mean), "   ---");
    EXPECT_EQ(formatMinutesSeconds(65), "1:05");
    EXPECT_EQ(formatMinutesSeconds(130), "2:10");
}

} // namespace
} // namespace tavi
