// Making a single-transcript report in the desktop program: the transcript's
// analysis through the analysis session, then the report in every form the
// report window needs.
#pragma once

#include <string>
#include <utility>

#include "app/rept_doc.h"
#include "database/peer_selection.h"
#include "reports/report.h"
#include "session/analysis_session.h"
#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;

enum class ReportKind { StandardMeasures, UtteranceTypes };

// The analysis of an open transcript under the settings in force, for the
// speaker asked for (0 or 1); both main speakers are measured, so the speaker
// may still be changed before the report is made.
TranscriptAnalysis analyseForReport(CTAVIApp& app, const TranLines& lines, int speaker);

// The speaker labels of the transcript's "$" line: the 1st speaker's and the
// 2nd speaker's first label (empty when there is none).
std::pair<std::string, std::string> mainSpeakerLabels(const TranscriptAnalysis& analysis);

// The report of the analysis's speaker for the transcript named `name`. The
// transcript cut's outcome, when it is not a complete cut, is told through
// the app's prompter.
ReportContent makeReport(CTAVIApp& app, ReportKind kind, const TranscriptAnalysis& analysis,
                         const std::string& name);

// The reports that compare with a database, and the Performance Report
// without one.
enum class PeerReportKind { StandardMeasures, Performance, GoalBank };

// The report of the analysis's speaker against the comparison `peers` (null:
// the Performance Report or goal bank of the transcript alone). `lines` are
// the transcript's, for the header facts of the Performance Report.
ReportContent makePeerReport(CTAVIApp& app, PeerReportKind kind, const TranscriptAnalysis& analysis,
                             const TranLines& lines, const std::string& name,
                             const db::PeerSnapshot* peers);

// A built report in every form the report window needs.
ReportContent reportContent(Report report);

} // namespace tavi::app
