// The Word Code Table and the Utterance Code Table: every code the analysed
// speaker's utterances (inside the cut) carry, word codes and utterance codes
// apart, with its count and the words or entries that carry it.
#pragma once

#include "reports/report_registry.h"

namespace tavi {

Report buildWordCodeTable(const ReportInputs& in);
Report buildUtteranceCodeTable(const ReportInputs& in);

} // namespace tavi
