// The Summary of Utterance Types: one table of utterance counts of one
// speaker, with "Number" and "Percent" of the total utterances.
#pragma once

#include <array>
#include <string_view>

#include "reports/labels.h"
#include "reports/measure_source.h"
#include "reports/report.h"
#include "reports/report_header.h"

namespace tavi {

struct UtteranceTypeRow {
    std::string_view measureId; // e.g. "Statements"
    std::string_view labelKey;  // e.g. "RL_ULSTMT"
    std::string_view mark;      // printed after the label: " (.)", " (Q)", or nothing
};

inline constexpr size_t kUtteranceTypeRowCount = 20;
const std::array<UtteranceTypeRow, kUtteranceTypeRowCount>& utteranceTypeRows();

Report buildUtteranceTypesReport(const TranscriptReportContext& context,
                                 const MeasureSource& measures, const LabelSource& labels);

} // namespace tavi
