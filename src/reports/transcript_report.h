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
#include "reports/standard_measures_report.h"
#include "session/analysis_session.h"
#include "settings/label_table.h"
#include "settings/settings.h"

namespace tavi {

enum class TranscriptReportKind { StandardMeasures, UtteranceTypes };

struct TranscriptReportRequest {
    TranscriptReportKind kind = TranscriptReportKind::StandardMeasures;
    std::string transcriptName;
    LanguageSlot slot = LanguageSlot::Primary;
    SmrVariables smrVariables = SmrVariables::defaults();
    // The Standard Measures Report compared with a database, when given.
    std::optional<SmrDatabase> database;
};

// The labels of one slot (empty texts fall back to PRIMARY).
LabelSource labelSource(const LabelTable& table, LanguageSlot slot);
// The values of one speaker's measure record, by identifier.
MeasureSource measureSource(const SpeakerMeasures& measures);

// The report of the analysed speaker; the analysis set, word base and cut
// named in its header are those of `settings`, the ones the analysis used.
Report buildTranscriptReport(const TranscriptAnalysis& analysis, const Settings& settings,
                             const TranscriptReportRequest& request);

} // namespace tavi
