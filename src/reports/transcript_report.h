// From a transcript's analysis to a finished single-transcript report: the
// header lines and the report of the analysed speaker, built with the labels
// of the transcript's slot. The desktop program and `tavi report` both come
// through here.
#pragma once

#include <optional>
#include <string>

#include "analysis/measures.h"
#include "reports/labels.h"
#include "reports/measure_source.h"
#include "reports/report.h"
#include "reports/report_registry.h"
#include "reports/standard_measures_report.h"
#include "session/analysis_session.h"
#include "settings/label_table.h"
#include "settings/settings.h"

namespace tavi {

struct TranscriptReportRequest {
    std::string_view kind = "smr"; // a name of the report table
    std::string transcriptName;
    LanguageSlot slot = LanguageSlot::Primary;
    ReportChoices choices;
    const TranLines* lines = nullptr; // the transcript's lines, for reports that read its header
    // The comparison with a database, when given.
    std::optional<SmrDatabase> database;
    std::optional<PerformancePeers> performancePeers;
};

// The labels of one slot (empty texts fall back to PRIMARY).
LabelSource labelSource(const LabelTable& table, LanguageSlot slot);
// The values of one speaker's measure record, by identifier.
MeasureSource measureSource(const SpeakerMeasures& measures);

// The header facts of the analysed speaker's report.
TranscriptReportContext transcriptReportContext(const TranscriptAnalysis& analysis,
                                                const Settings& settings,
                                                const TranscriptReportRequest& request);

// The report of the analysed speaker; the analysis set, word base and cut
// named in its header are those of `settings`, the ones the analysis used.
// An unknown kind is a broken invariant (std::invalid_argument): front ends
// look names up with findReport first.
Report buildTranscriptReport(const TranscriptAnalysis& analysis, const Settings& settings,
                             const TranscriptReportRequest& request);

// The reports of a customised report (`request.choices.kinds`, all of the
// Analyze menu when empty): its contents page first, then each report in turn.
// Names that cannot be held leave the contents page saying why and no report.
std::vector<Report> buildCustomReports(const TranscriptAnalysis& analysis, const Settings& settings,
                                       const TranscriptReportRequest& request);

} // namespace tavi
