// Suggesting Subordination Index codes: a clause count for an utterance from
// the verbs in it, for the clinician to review. A clause has one main verb,
// so the suggestion counts the main verbs: words of the verb file (and, when
// the dictionary is loaded, words it lists as verbs), leaving out words a
// determiner or possessive makes nouns ("the turn") and auxiliaries that an
// open verb follows ("was running" is one verb); a form of "be", "have" or
// "do" with no verb after it is a main verb itself ("it was red").
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "analysis/verb_list.h"
#include "transcript/segmented_transcript.h"
#include "transcript/utterance.h"

namespace tavi {

class GcDictionary;

// The suggested clause count of words in order (lower case, main body only;
// clitics already spelt out as words: "it's" as "it", "is").
int suggestClauseCount(const std::vector<std::string>& words, const VerbList& verbs,
                       const GcDictionary* dictionary = nullptr);

// The same for an utterance: its main-body words, clitics spelt out.
int suggestClauseCount(const Utterance& u, const VerbList& verbs,
                       const GcDictionary* dictionary = nullptr);

// The SI code a suggestion writes: "[SI-2?]"; the "?" marks it for review
// and such a code is not counted until the clinician removes the "?".
std::string suggestedSiCode(int clauses, std::string_view prefix = "SI-");

struct SiInsertion {
    std::string text; // the transcript with the codes
    int coded = 0;    // utterances given a code
};

// Writes a suggested code before the terminator of each utterance of
// `utterances` (indices into `t.utterances`) that has no SI code yet; the
// lines of `text` are those the segmentation was made from.
SiInsertion insertSiCodes(std::string_view text, const SegmentedTranscript& t,
                          const std::vector<int>& utterances, const VerbList& verbs,
                          const GcDictionary* dictionary = nullptr,
                          std::string_view prefix = "SI-");

} // namespace tavi
