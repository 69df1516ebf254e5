// Macro analysis: the scoring templates a transcript's "+" lines fill in
// (composite and component scores) and the Subordination Index, the mean
// number of clauses over the utterances coded "[SI-n]".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/value.h"
#include "transcript/scoring_template.h"
#include "transcript/utterance.h"

namespace tavi {

// One component as scored in a transcript, self-contained (no pointers into
// the template set, so a measure record outlives the resources it came from).
struct MacroComponent {
    std::string name;        // "Introduction"
    std::string variable;    // "NSS_Intro"
    std::string description; // what the component looks at
    std::string meaning;     // what the score given means; empty when unscored
    Value score;             // missing when unscored or out of range
    int minScore = 0;
    int maxScore = 0;
};

// One template used by a transcript.
struct MacroScore {
    std::string key;      // "NSS"
    std::string name;     // "Narrative Scoring Scheme"
    std::string variable; // "NSS"
    CompositeRule rule = CompositeRule::Sum;
    int maxComposite = 0;
    int scored = 0; // components with a score
    Value composite;
    Value rated; // `scored` as a value: the column key + " Rated" ("FCB Rated")
    std::vector<MacroComponent> components;
};

// The template scores a transcript's header lines give, for each template
// with at least one line there, in template order.
std::vector<MacroScore> scoreTemplates(const TemplateSet& templates,
                                       const std::vector<HeaderLine>& headers);

inline constexpr std::string_view kDefaultSiCodePrefix = "SI-";

// The clause count of an "[SI-n]" code (prefix compared without regard to
// case); empty when `code` is no such code.
std::optional<int> siClauseCount(std::string_view code,
                                 std::string_view prefix = kDefaultSiCodePrefix);
// The clause count of the first SI code on an utterance.
std::optional<int> siClauseCount(const Utterance& u,
                                 std::string_view prefix = kDefaultSiCodePrefix);

// The Subordination Index of one speaker: coded utterances of the analysis set.
struct SiSummary {
    int coded = 0;                    // utterances with an SI code
    int awaitingReview = 0;           // utterances with a suggested code ("[SI-2?]") only
    int clauses = 0;                  // their clause counts added up
    std::vector<int> byClauseCount;   // [n]: coded utterances with n clauses
    std::vector<int> codedUtterances; // utterance indices, in order
    Value codedValue;                 // `coded` as a value: the column "SI Coded"
    Value index() const { return Value::ratio(clauses, coded); }
};

} // namespace tavi
