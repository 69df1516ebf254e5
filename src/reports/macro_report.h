// The macro-analysis reports: one per scoring template (each component with
// its score, range and what the score means, then the composite) and the
// Subordination Index (the distribution of clause counts over the coded
// utterances and their mean). With a database the composite or index is
// followed by the database mean and SD.
#pragma once

#include <string_view>

#include "analysis/measures.h"
#include "reports/labels.h"
#include "reports/report.h"
#include "reports/report_header.h"
#include "reports/standard_measures_report.h"

namespace tavi {

// The report of the template `key` ("NSS", "ESS", "PSS", "ONQ", "CQ", "ONC", "FCB").
Report buildTemplateReport(std::string_view key, const TranscriptReportContext& context,
                           const SpeakerMeasures& measures, const LabelSource& labels,
                           const SmrDatabase* database = nullptr);

// The section one template's scores make, for reports that hold it among
// others (the fluency behaviours in the fluency-code report): a note when
// the transcript has none of its lines.
ReportSection templateSection(std::string_view key, const SpeakerMeasures& measures,
                              const LabelSource& labels);

Report buildSubordinationIndexReport(const TranscriptReportContext& context,
                                     const SpeakerMeasures& measures, const LabelSource& labels,
                                     const SmrDatabase* database = nullptr);

} // namespace tavi
