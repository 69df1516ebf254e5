// What the reports that compare with a database take from a comparison: the
// Standard Measures Report's database columns, the Performance Report's and
// goal bank's peers, and the date printed where the numbers come from. The
// command line and the desktop program build these the same way.
#pragma once

#include <string>

#include "database/peer_selection.h"
#include "reports/performance_report.h"
#include "reports/report_registry.h"
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

// Whether report `kind` (or the customised PDF's reports) reads the explore
// columns of words and codes, and of "+" lines.
struct ExploreNeeds {
    bool items = false;
    bool plusLines = false;
};
ExploreNeeds exploreNeeds(std::string_view kind, const ReportChoices& choices);

// Adds the explore reports' columns to `database`: the chosen words and codes
// and the "+" lines (the chosen ones, else every one of the transcript with a
// number), counted in the transcript and in each selected sample.
void addExploreColumns(SmrDatabase& database, db::PeerDatabase& peers,
                       const db::PeerSnapshot& snapshot, const TranscriptAnalysis& analysis,
                       const AnalysisContext& context, const ReportChoices& choices,
                       ExploreNeeds needs, Prompter& prompter, Progress& progress);

// The Performance Report's and goal bank's peers from a comparison.
PerformancePeers performancePeers(const db::PeerSnapshot& snapshot, const std::string& date);

} // namespace tavi
