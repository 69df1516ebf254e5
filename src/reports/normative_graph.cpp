// The moving band and the canvas of a normative graph.
#include "reports/normative_graph.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "analysis/peer_stats.h"

namespace tavi {

std::vector<GraphBandPoint> movingBand(const std::vector<GraphPoint>& samples, double sdInterval,
                                       int windowMonths) {
    std::set<double> ages;
    for (const GraphPoint& p : samples)
        ages.insert(p.ageMonths);
    std::vector<GraphBandPoint> band;
    for (double age : ages) {
        PeerStatAccumulator sum;
        for (const GraphPoint& p : samples)
            if (std::fabs(p.ageMonths - age) <= windowMonths)
                sum.add(static_cast<float>(p.value));
        const PeerStat stat = sum.result();
        const double spread = sdInterval * stat.sd;
        band.push_back({age, stat.mean, stat.mean - spread, stat.mean + spread});
    }
    return band;
}

namespace {

// A round step (1, 2 or 5 times a power of ten) giving about `ticks` ticks.
double niceStep(double span, int ticks) {
    if (!(span > 0))
        return 1.0;
    const double raw = span / ticks;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0})
        if (raw <= m * power)
            return m * power;
    return 10.0 * power;
}

} // namespace

double GraphCanvas::x(double ageMonths) const {
    return left + (ageMonths - ageMin) / (ageMax - ageMin) * (right - left);
}

double GraphCanvas::y(double value) const {
    return bottom - (value - valueMin) / (valueMax - valueMin) * (bottom - top);
}

GraphCanvas graphCanvas(const NormativeGraph& graph) {
    GraphCanvas canvas;
    std::vector<double> ages, values;
    for (const GraphPoint& p : graph.samples) {
        ages.push_back(p.ageMonths);
        values.push_back(p.value);
    }
    for (const GraphBandPoint& b : graph.band) {
        values.push_back(b.low);
        values.push_back(b.high);
    }
    if (graph.target) {
        ages.push_back(graph.target->ageMonths);
        values.push_back(graph.target->value);
    }
    if (ages.empty()) {
        ages = {0.0, 12.0};
        values = {0.0, 1.0};
    }
    auto [ageLo, ageHi] = std::ranges::minmax(ages);
    auto [valueLo, valueHi] = std::ranges::minmax(values);
    canvas.ageStep = niceStep(std::max(ageHi - ageLo, 6.0), 8);
    canvas.ageMin = std::floor((ageLo - 1) / canvas.ageStep) * canvas.ageStep;
    canvas.ageMax = std::ceil((ageHi + 1) / canvas.ageStep) * canvas.ageStep;
    const double span = valueHi - valueLo > 0 ? valueHi - valueLo : std::max(1.0, valueHi);
    canvas.valueStep = niceStep(span, 6);
    canvas.valueMin = std::floor((valueLo - span * 0.05) / canvas.valueStep) * canvas.valueStep;
    if (valueLo >= 0 && canvas.valueMin < 0)
        canvas.valueMin = 0;
    canvas.valueMax = std::ceil((valueHi + span * 0.05) / canvas.valueStep) * canvas.valueStep;
    if (canvas.valueMax <= canvas.valueMin)
        canvas.valueMax = canvas.valueMin + canvas.valueStep;
    return canvas;
}

} // namespace tavi
