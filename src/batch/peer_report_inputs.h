// What the reports that compare with a database take from a comparison: the
// Standard Measures Report's database columns, the Performance Report's and
// goal bank's peers, and the date printed where the numbers come from. The
// command line and the desktop program build these the same way.
#pragma once

#include <string>

#include "database/peer_selection.h"
#include "reports/performance_report.h"
#include "reports/standard_measures_report.h"
#include "session/analysis_session.h"

namespace tavi {

// Today's date in the date format of the analysis (month-day-year or
// day-month-year, with its separator).
std::string todayText(const AnalysisContext& context);

// The Standard Measures Report's database columns from a comparison. The
// snapshot and the measures must outlive the columns.
SmrDatabase smrDatabase(const db::PeerSnapshot& snapshot, const SpeakerMeasures& measures,
                        const std::string& date);

// The Performance Report's and goal bank's peers from a comparison.
PerformancePeers performancePeers(const db::PeerSnapshot& snapshot, const std::string& date);

} // namespace tavi
