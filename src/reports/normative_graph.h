// A normative graph: every matched database sample as a point by age in
// months, the database mean and the band of the SD interval either side of
// it, moving over the ages present, and the target speaker's value. The
// figures are computed in the core; the Qt adapter only draws them, on the
// canvas laid out here, so every format puts each point in the same place.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tavi {

struct GraphPoint {
    double ageMonths = 0.0;
    double value = 0.0;
};

// The band at one age: the mean of the samples within the window around it
// and the mean minus and plus the SD interval times their SD.
struct GraphBandPoint {
    double ageMonths = 0.0;
    double mean = 0.0;
    double low = 0.0;
    double high = 0.0;
};

struct NormativeGraph {
    std::string title;                // "MLU in Words by age"
    std::string measureLabel;         // the y axis
    std::vector<std::string> caption; // database, sampling context, criteria, samples
    std::vector<GraphPoint> samples;
    std::vector<GraphBandPoint> band; // by age, ascending
    std::optional<GraphPoint> target;
    std::string targetLabel; // "t.tvi: 7.00"
    double sdInterval = 1.0;
    int windowMonths = 6;
};

// The band over the ages present: at each distinct sample age, the samples
// within `windowMonths` of it (both ends included) give mean and SD (n - 1).
std::vector<GraphBandPoint> movingBand(const std::vector<GraphPoint>& samples, double sdInterval,
                                       int windowMonths);

// The drawing canvas: its size in units (pixels of the PNG, user units of
// the SVG), the plot area inside it and the ranges of the axes.
struct GraphCanvas {
    double width = 720.0;
    double height = 540.0;
    double left = 80.0, right = 700.0, top = 60.0, bottom = 400.0; // the plot area
    double ageMin = 0.0, ageMax = 1.0;
    double valueMin = 0.0, valueMax = 1.0;
    double ageStep = 1.0, valueStep = 1.0; // between axis ticks

    double x(double ageMonths) const;
    double y(double value) const;
};

// The canvas of a graph: axis ranges that hold every sample, the band and
// the target, widened to round tick steps.
GraphCanvas graphCanvas(const NormativeGraph& graph);

} // namespace tavi
