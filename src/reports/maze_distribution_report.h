// The Maze Distribution Tables: the speaker's maze components by kind, mazes
// and utterances with mazes by utterance length, and mazes by maze length.
#pragma once

#include "reports/report.h"

namespace tavi {

struct ReportInputs; // reports/report_registry.h

Report buildMazeDistributionReport(const ReportInputs& in);

} // namespace tavi
