// The analysis set: which of a speaker's utterances enter the analysis-set
// counts. One record for the whole run, saved as the "ASET" settings section.
#pragma once

#include <cstdint>
#include <string>

namespace tavi {

struct AnalysisSet {
    std::int32_t excludeIncomplete = 1;     // abandoned ">" and interrupted "^"
    std::int32_t excludeUnintelligible = 1; // unintelligible and partly intelligible
    std::int32_t excludeNonverbal = 1;
    std::int32_t excludeImitations = 0;        // type I
    std::int32_t excludeYesNoResponses = 0;    // type Y
    std::int32_t excludeOneWord = 0;           // type O
    std::int32_t excludeQuestionResponses = 0; // type Q
    std::int32_t excludePromptResponses = 0;   // type P
    std::int32_t includeOnly = 0;              // keep only utterances with an include code
    std::string excludeCodes;                  // comma-separated
    std::string includeCodes;                  // comma-separated

    bool operator==(const AnalysisSet&) const = default;
};

} // namespace tavi
