// From a segmented transcript to a finished single-transcript report: the
// measures of the chosen speaker under the settings in force, the header
// lines, and the report built with the labels of the transcript's slot.
// The desktop program and `tavi report` both come through here.
#pragma once

#include <string>

#include "analysis/measure_settings.h"
#include "analysis/measures.h"
#include "reports/labels.h"
#include "reports/measure_source.h"
#include "reports/report.h"
#include "reports/standard_measures_report.h"
#include "settings/label_table.h"
#include "settings/settings.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

enum class TranscriptReportKind { StandardMeasures, UtteranceTypes };

struct TranscriptReportRequest {
    TranscriptReportKind kind = TranscriptReportKind::StandardMeasures;
    std::string transcriptName;
    int speaker = 0; // 0 the 1st speaker, 1 the 2nd
    LanguageSlot slot = LanguageSlot::Primary;
    SmrVariables smrVariables = SmrVariables::defaults();
    // Word lists and dictionary; without them yes/no responses and verb
    // measures are missing.
    const MeasureResources* resources = nullptr;
};

struct TranscriptReportResult {
    Report report;
    // Messages to show before the report, in order: the 2nd-speaker fallback
    // and the transcript cut's outcome.
    std::vector<std::string> messages;
};

// The labels of one slot (empty texts fall back to PRIMARY).
LabelSource labelSource(const LabelTable& table, LanguageSlot slot);
// The values of one speaker's measure record, by identifier.
MeasureSource measureSource(const SpeakerMeasures& measures);

TranscriptReportResult buildTranscriptReport(const SegmentedTranscript& transcript,
                                             const Settings& settings,
                                             const TranscriptReportRequest& request);

} // namespace tavi
