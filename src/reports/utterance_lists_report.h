// The Standard Utterance Lists: the analysed speaker's utterances of each
// chosen kind (responses, imitations, codes, terminators ...), each with its
// entry (line) number and its text as written.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "analysis/measures.h"
#include "reports/report_registry.h"

namespace tavi {

struct UtteranceListKind {
    std::string_view key;      // "PQUES", as `--lists` names it
    std::string_view labelKey; // label table key of its title; empty: `title`
    std::string_view title;    // the title when there is no label key
};

// The lists in their fixed order, matching SpeakerMeasures::utteranceLists.
const std::array<UtteranceListKind, kUtteranceLists>& utteranceListKinds();
// The position of a key ("pques" too), or none.
std::optional<int> utteranceListIndex(std::string_view key);

Report buildUtteranceListsReport(const ReportInputs& in);

} // namespace tavi
