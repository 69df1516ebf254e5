// The explore reports' database side: named words and codes counted in each
// selected sample, and the values of "+" header lines, reduced to the same
// statistics as the measures.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "analysis/peer_stats.h"
#include "base/progress.h"
#include "base/prompter.h"
#include "database/peer_selection.h"
#include "session/analysis_session.h"

namespace tavi::db {

inline constexpr std::string_view kCalculatingPlusLines =
    "Calculating database plus line values... ";
inline constexpr std::string_view kCalculatingVocabulary =
    "Calculating database vocabulary values... ";

// Statistics per item over the selected samples of `snapshot`: each sample's
// count of each item in its speaker's utterances inside the equating cut the
// comparison used (every sample gives a count, 0 included).
std::map<std::string, PeerStat> exploreItemStats(PeerDatabase& database,
                                                 const PeerSnapshot& snapshot,
                                                 const AnalysisContext& context,
                                                 const std::vector<std::string>& items,
                                                 Prompter& prompter, Progress& progress);

// Statistics per "+" line keyword over the selected samples that have the
// line with a number.
std::map<std::string, PeerStat> explorePlusLineStats(PeerDatabase& database,
                                                     const PeerSnapshot& snapshot,
                                                     const std::vector<std::string>& keywords,
                                                     Prompter& prompter, Progress& progress);

} // namespace tavi::db
