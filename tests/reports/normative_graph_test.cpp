// The normative graph's moving band and canvas.
#include <gtest/gtest.h>

#include <cmath>

#include "reports/normative_graph.h"

namespace tavi {
namespace {

TEST(NormativeGraph, TheBandMovesOverTheAgesPresent) {
    // Ages 60, 62 and 80: with a 6-month window the first two share their
    // band (mean 10, SD 2.83), the third stands alone (SD 0).
    const std::vector<GraphPoint> samples{{60, 8}, {62, 12}, {80, 20}};
    const auto band = movingBand(samples, 1.5, 6);
    ASSERT_EQ(band.size(), 3u);
    EXPECT_EQ(band[0].ageMonths, 60);
    EXPECT_FLOAT_EQ(band[0].mean, 10);
    EXPECT_NEAR(band[0].high - band[0].mean, 1.5 * 2.8284271, 1e-4);
    EXPECT_NEAR(band[0].mean - band[0].low, 1.5 * 2.8284271, 1e-4);
    EXPECT_FLOAT_EQ(band[1].mean, 10);
    EXPECT_FLOAT_EQ(band[2].mean, 20);
    EXPECT_FLOAT_EQ(band[2].low, 20);
    EXPECT_FLOAT_EQ(band[2].high, 20);
    // A window reaching both ends takes every sample at every age; the
    // window's ends are included.
    EXPECT_FLOAT_EQ(movingBand(samples, 1, 20)[0].mean, 40.0f / 3);
    EXPECT_FLOAT_EQ(movingBand({{60, 1}, {66, 3}}, 1, 6)[0].mean, 2);
}

TEST(NormativeGraph, TheCanvasHoldsEveryPointInsideThePlot) {
    NormativeGraph graph;
    graph.samples = {{40, 3.5}, {70, 6.2}};
    graph.band = movingBand(graph.samples, 1, 6);
    graph.target = GraphPoint{90, 1.2};
    const GraphCanvas c = graphCanvas(graph);
    for (const GraphPoint& p : {graph.samples[0], graph.samples[1], *graph.target}) {
        EXPECT_GT(c.x(p.ageMonths), c.left);
        EXPECT_LT(c.x(p.ageMonths), c.right);
        EXPECT_GT(c.y(p.value), c.top);
        EXPECT_LT(c.y(p.value), c.bottom);
    }
    // Larger values higher up, older samples further right.
    EXPECT_LT(c.y(6.2), c.y(3.5));
    EXPECT_GT(c.x(70), c.x(40));
    // Ranges start and end on ticks.
    EXPECT_DOUBLE_EQ(std::fmod(c.ageMin, c.ageStep), 0);
    EXPECT_DOUBLE_EQ(std::fmod(c.valueMax, c.valueStep), 0);
    // No samples at all still gives a drawable canvas.
    const GraphCanvas empty = graphCanvas(NormativeGraph{});
    EXPECT_LT(empty.ageMin, empty.ageMax);
    EXPECT_LT(empty.valueMin, empty.valueMax);
}

} // namespace
} // namespace tavi
