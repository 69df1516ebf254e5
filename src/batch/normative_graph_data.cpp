// Gathering the points of a normative graph from the selected samples.
#include "batch/normative_graph_data.h"

#include <cmath>

#include "base/format.h"

namespace tavi {

NormativeGraph normativeGraph(const db::PeerDatabase& database, const db::PeerSnapshot& snapshot,
                              MeasureId id, const std::string& measureLabel,
                              const std::string& targetName, int targetAgeMonths,
                              std::optional<double> targetValue, int windowMonths) {
    NormativeGraph graph;
    graph.measureLabel = measureLabel;
    graph.title = measureLabel + " by age";
    graph.sdInterval = snapshot.sdInterval;
    graph.windowMonths = windowMonths;
    graph.caption = {snapshot.databaseLine(), "SELECT DATABASE SAMPLES - " + snapshot.criteria,
                     snapshot.countLine(),
                     format("Band: database mean +/- %s SD of the samples within %d months",
                            shortestFloat(snapshot.sdInterval).c_str(), windowMonths)};
    const std::size_t k = static_cast<std::size_t>(id);
    for (std::size_t i = 0; i < snapshot.selectedRecords.size() && i < snapshot.sampleValues.size();
         ++i) {
        const db::sd2& record = database.records()[snapshot.selectedRecords[i]];
        const float value = snapshot.sampleValues[i][k];
        if (record.ageMonths < 0 || std::isnan(value))
            continue;
        graph.samples.push_back({static_cast<double>(record.ageMonths), value});
    }
    graph.band = movingBand(graph.samples, snapshot.sdInterval, windowMonths);
    if (targetAgeMonths >= 0 && targetValue) {
        graph.target = GraphPoint{static_cast<double>(targetAgeMonths), *targetValue};
        graph.targetLabel = format("%s: %0.2f", targetName.c_str(), *targetValue);
    }
    return graph;
}

} // namespace tavi
