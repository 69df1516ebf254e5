// Marking words in a transcript's text for review: root identifications
// ("went|go") chosen from a root identification file, and grammatical-category
// word codes ("dog[GC:NOUN]") taken from the dictionary. Each gives the places
// to change or the whole new text; the front end shows and applies them.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "analysis/grammatical_categories.h"
#include "analysis/rif_file.h"
#include "explore/explore_edit.h"
#include "session/analysis_session.h"
#include "transcript/tran_line.h"

namespace tavi {

// A written word whose form is in the root identification file and that has
// no root identification yet.
struct RootCandidate {
    int line = 0;         // 1-based transcript line
    int utterance = 0;    // index into the segmented transcript's utterances
    std::string lineText; // the utterance line as written
    size_t wordStart = 0; // the written word within `lineText`
    size_t wordEnd = 0;   //
    size_t formStart = 0; // the form (the root as written, before "/" or "+")
    size_t formEnd = 0;   //
    std::string form;     // as written
    std::vector<RootChoice> choices;
};

// The candidates of every utterance, in text order. Omitted, unintelligible,
// idiosyncratic and linked words, words with bound prefixes and words not
// found as written in their line (a code inside the word) are left alone.
std::vector<RootCandidate> rootCandidates(const SegmentedTranscript& transcript,
                                          const TranLines& lines, const RifWords& words);

// One change of a line: the bytes [from, to) of the line become `text`.
struct LineChange {
    int line = 0;
    size_t from = 0;
    size_t to = 0;
    std::string text;
};

// The change that writes a choice in place of a candidate's form.
LineChange rootChange(const RootCandidate& candidate, const RootChoice& choice);

// The text with the changes made (line ends kept). Changes of one line must
// not overlap; they may come in any order.
std::string applyLineChanges(std::string_view text, std::vector<LineChange> changes);

// What Insert Grammatical Category Codes does.
struct CategoryCodeOptions {
    int speaker = 0;       // 0 the 1st main speaker, 1 the 2nd, 2 both
    bool skipCoded = true; // leave words that already carry a "GC:" code
    // Per category, the code to write (with or without brackets); an empty
    // entry leaves the category out.
    std::array<std::string, kGrammaticalCategoryTable.size()> codes;
};

// The codes of the "GCCODE" settings list: the entries present, each with its
// text or (when it has none) the category's own code; every category's own
// code when the list is empty.
std::array<std::string, kGrammaticalCategoryTable.size()>
categoryCodesToUse(const std::map<int, std::string>& gcCodes);

// Puts the code of its most likely category (among those used) right after
// every main-body word of the analysis-set utterances of the chosen speakers.
CodeEdit insertCategoryCodes(std::string_view text, const TranscriptAnalysis& analysis,
                             const GcDictionary* dictionary, const CategoryCodeOptions& options);

} // namespace tavi
