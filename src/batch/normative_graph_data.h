// A normative graph from a database comparison: each selected sample's
// value of one measure by its age, the moving band and the target's value.
#pragma once

#include <optional>
#include <string>

#include "analysis/measure_id.h"
#include "database/peer_selection.h"
#include "reports/normative_graph.h"

namespace tavi {

// The graph of measure `id`. Samples without an age or a value are left out;
// the target is marked when its age and value are known.
NormativeGraph normativeGraph(const db::PeerDatabase& database, const db::PeerSnapshot& snapshot,
                              MeasureId id, const std::string& measureLabel,
                              const std::string& targetName, int targetAgeMonths,
                              std::optional<double> targetValue, int windowMonths = 6);

} // namespace tavi
