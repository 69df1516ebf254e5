// The Performance Report and the goal bank: a transcript's measures, and
// their comparison with matched database samples when there is one, turned
// into sentences for a clinician, one paragraph per area of language. With a
// database the report is keyed "_DBPR"; without one "_ANALPR", and its first
// section describes the elicitation task alone. Every comparing sentence
// decides with compareWithPeers.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "analysis/measures.h"
#include "analysis/peer_stats.h"
#include "reports/report.h"
#include "session/analysis_session.h"
#include "transcript/tran_line.h"

namespace tavi {

inline constexpr std::string_view kPerformanceKeyDatabase = "_DBPR";
inline constexpr std::string_view kPerformanceKeyAnalysis = "_ANALPR";

// The matched samples, as far as sentences need them.
struct PerformancePeers {
    std::array<PeerStat, kMeasureCount> stats{};
    float sdInterval = kDefaultSdInterval;
    int samples = 0;
    std::string database;             // file name
    std::string context;              // the database's sampling context
    std::string criteria;             // the criteria line
    std::vector<std::string> sources; // where the numbers come from
};

struct PerformanceInputs {
    const SpeakerMeasures* measures = nullptr;
    std::optional<int> ageMonths;
    std::string grade;
    std::string elicitationDate;
    std::string elicitationContext; // the transcript's "+ Context:" value ("Con", "Nar" ...)
    std::string otherSpeaker;       // the other main speaker's label, e.g. "Examiner"
    std::optional<PerformancePeers> peers;
};

// The inputs of an analysed transcript: the analysed speaker's measures, the
// age (from DOB and DOE, else CA), grade, elicitation date (DOE) and context
// from its header lines, the other main speaker's label. `analysis` must
// outlive the inputs.
PerformanceInputs performanceInputs(const TranscriptAnalysis& analysis, const TranLines& lines);

// "_DBPR" with a database, "_ANALPR" without.
std::string_view performanceReportKey(const PerformanceInputs& inputs);

Report buildPerformanceReport(const PerformanceInputs& inputs);

// "GOAL BANK Based on Transcript": a goal for each measure below the database
// (above it, for measures where less is better), its target the lowest value
// within normal limits: mean - SD interval x SD (mean + ... where less is
// better). Without a database, the goals are listed with the target left open.
Report buildGoalBank(const PerformanceInputs& inputs);

// Counts as words up to ten: "zero times", "once", "twice", "three times" ...
// "ten times", then "%d times".
std::string timesWord(int count);

} // namespace tavi
