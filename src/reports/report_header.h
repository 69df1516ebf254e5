// The header lines of a single-transcript report: transcript name, speaker
// with its label, analysis set, word base, transcript cut and elapsed time.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/analysis_set.h"
#include "analysis/word_base.h"
#include "reports/labels.h"
#include "reports/report.h"

namespace tavi {

struct TranscriptReportContext {
    std::string transcriptName;        // file name as shown, e.g. "Sample1.tvi"
    int speaker = 0;                   // 0 the 1st speaker, 1 the 2nd
    std::string speakerLabel;          // from the transcript's "$" line, e.g. "Child"
    std::string analysisSetName;       // e.g. "C&I Verbal Utts"
    std::string wordBase;              // description of the word base
    std::string cutDescription;        // e.g. "Entire Transcript"
    std::optional<int> elapsedSeconds; // from the timing lines; empty when not timed
    bool pausesUntimed = false;        // the sample has pauses and none is timed
    bool somePausesUntimed = false;    // some of its pauses are timed, some not
};

// The analysis set's short name from its three main exclusions, e.g.
// "C&I Verbal Utts" for the defaults; other exclusions are listed after it.
std::string analysisSetName(const AnalysisSet& set, const LabelSource& labels);

// A short description of the word base, e.g. "Main Body" with its exclusions.
std::string wordBaseDescription(const WordBase& base, const LabelSource& labels);

std::vector<LabelledLine> reportHeader(const TranscriptReportContext& context,
                                       const LabelSource& labels);

} // namespace tavi
