// Making a single-transcript report in the desktop program: the transcript's
// analysis through the analysis session, then the report in every form the
// report window needs.
#pragma once

#include <string>
#include <utility>

#include "app/rept_doc.h"
#include "database/peer_selection.h"
#include "reports/report.h"
#include "reports/report_registry.h"
#include "session/analysis_session.h"
#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;

// The analysis of an open transcript under the settings in force, for the
// speaker asked for (0 or 1); both main speakers are measured, so the speaker
// may still be changed before the report is made.
TranscriptAnalysis analyseForReport(CTAVIApp& app, const TranLines& lines, int speaker);

// The speaker labels of the transcript's "$" line: the 1st speaker's and the
// 2nd speaker's first label (empty when there is none).
std::pair<std::string, std::string> mainSpeakerLabels(const TranscriptAnalysis& analysis);

// What a report needs besides the analysis: the transcript's name and
// lines, the choices of the report's dialog, and a database comparison.
struct ReportSource {
    std::string name;      // the transcript's title
    TranLines lines;       // for reports that read its header lines
    ReportChoices choices; // the dialog's choices (the app's SMR variables by default)
    const db::PeerSnapshot* peers = nullptr;  // compared with a database, when given
    db::PeerDatabase* peerDatabase = nullptr; // its database, for the explore reports
};

// The report `kind` (a name of the report table, e.g. "syntax-summary") of
// the analysis's speaker. The transcript cut's outcome, when it is not a
// complete cut, is told through the app's prompter.
ReportContent makeReport(CTAVIApp& app, std::string_view kind, const TranscriptAnalysis& analysis,
                         const ReportSource& source);

// The reports of a customised PDF (`source.choices.kinds`): its contents
// page first, then each chosen report of the analysis's speaker.
std::vector<Report> makeCustomReports(CTAVIApp& app, const TranscriptAnalysis& analysis,
                                      const ReportSource& source);

// A built report in every form the report window needs.
ReportContent reportContent(Report report);

} // namespace tavi::app
