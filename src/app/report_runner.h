// Making a single-transcript report: check the transcript, segment it,
// select utterances by the cut and the analysis set, compute the measures and
// build the report in every form the report window needs.
#pragma once

#include <optional>

#include "app/rept_doc.h"
#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;

enum class ReportKind { StandardMeasures, UtteranceTypes };

// The speaker labels of a transcript's "$" line: the 1st speaker's and the
// 2nd speaker's first label (empty when there is none).
std::pair<std::string, std::string> mainSpeakerLabels(const TranLines& lines);

// The report for `speaker` (0 or 1) of the transcript named `name`. A cut
// outcome other than a complete cut is told through the app's prompter.
ReportContent makeReport(CTAVIApp& app, ReportKind kind, const TranLines& lines,
                         const std::string& name, int speaker);

} // namespace tavi::app
