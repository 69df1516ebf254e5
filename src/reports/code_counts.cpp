// Counting the codes written in the speaker's utterances.
#include "reports/code_counts.h"

#include <algorithm>
#include <map>

#include "base/text.h"

namespace tavi {

std::vector<CodeCount> countCodes(const TranscriptAnalysis& analysis, const CodeMatcher* only) {
    const SegmentedTranscript& transcript = analysis.check.segmented;
    const auto& chosen =
        analysis.result.selection.speakers[static_cast<size_t>(analysis.speaker == 1 ? 1 : 0)]
            .total;
    std::map<std::string, CodeCount> byKey;
    for (int i : chosen) {
        for (const Code& code : transcript.utterances[static_cast<size_t>(i)].codes()) {
            if (only && !only->matches(code.text))
                continue;
            CodeCount& count = byKey[toUpperAscii(code.text)];
            if (count.code.empty())
                count.code = std::string(code.text);
            ++(code.word >= 0 ? count.onWords : count.onUtterances);
        }
    }
    std::vector<CodeCount> codes;
    codes.reserve(byKey.size());
    for (auto& [key, count] : byKey)
        codes.push_back(std::move(count));
    return codes;
}

ReportTable codeCountTable(const std::vector<CodeCount>& codes, std::string_view heading,
                           std::string_view totalLabel) {
    ReportTable table;
    table.labelHeading = std::string(heading);
    table.headings = {"Word", "Utterance", "Total"};
    CodeCount sum;
    for (const CodeCount& count : codes) {
        table.rows.push_back({"[" + count.code + "]",
                              {std::to_string(count.onWords), std::to_string(count.onUtterances),
                               std::to_string(count.total())}});
        sum.onWords += count.onWords;
        sum.onUtterances += count.onUtterances;
    }
    table.rows.push_back({std::string(totalLabel),
                          {std::to_string(sum.onWords), std::to_string(sum.onUtterances),
                           std::to_string(sum.total())}});
    return table;
}

} // namespace tavi
