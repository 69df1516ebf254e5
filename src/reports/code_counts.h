// The codes of the analysed speaker's utterances (inside the transcript
// cut), each with how often it stands on a word and on a whole utterance.
// Codes are told apart without regard to case, shown as first written.
#pragma once

#include <string>
#include <vector>

#include "analysis/code_lists.h"
#include "reports/report.h"
#include "session/analysis_session.h"

namespace tavi {

struct CodeCount {
    std::string code; // between the brackets, e.g. "EW:went"
    int onWords = 0;
    int onUtterances = 0;
    int total() const { return onWords + onUtterances; }
};

// In alphabetical order; only the codes `only` matches when it is given.
std::vector<CodeCount> countCodes(const TranscriptAnalysis& analysis,
                                  const CodeMatcher* only = nullptr);

// A table of codes: "Word", "Utterance" and "Total" columns, then a total row.
ReportTable codeCountTable(const std::vector<CodeCount>& codes, std::string_view heading,
                           std::string_view totalLabel);

} // namespace tavi
