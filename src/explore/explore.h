// The search itself: the utterances of a transcript that meet explore
// criteria, with the words and codes that made them match. The transcript
// comes through the analysis session, so the speaker, the transcript cut, the
// analysis set and the response types are those every report uses.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "explore/explore_criteria.h"
#include "session/analysis_session.h"
#include "transcript/tran_line.h"

namespace tavi {

struct ExploreMatch {
    int utterance = 0;              // index into the segmented transcript's utterances
    int line = 0;                   // entry number (1-based line)
    int speaker = 0;                // 0 the 1st main speaker, 1 the 2nd
    std::string text;               // the utterance line as written
    std::vector<int> words;         // indices of the utterance's words that matched an item
    std::vector<std::string> items; // the matched words and codes ("[EW:went]"), in order
    std::vector<size_t> wordEnds;   // per word of the utterance: the offset in `text` just after
                                    // it; npos for a word not found as written (a linked word)
};

// Positions just after each word of the utterance in its line as written;
// npos for a word that cannot be found there (a linked word).
std::vector<size_t> wordEnds(std::string_view body, const Utterance& u);

struct ExploreResult {
    TranscriptAnalysis analysis; // the problems and the selection the search ran on
    std::vector<ExploreMatch> matches;
    int searched = 0; // utterances tested
};

// Runs the criteria over an analysed transcript; `lines` give the texts.
std::vector<ExploreMatch> exploreAnalysis(const TranscriptAnalysis& analysis,
                                          const TranLines& lines, const ExploreCriteria& criteria,
                                          int* searched = nullptr);

// Analyses the text (measuring, for the selection) and searches it.
ExploreResult exploreText(std::string_view text, const AnalysisContext& context,
                          const ExploreCriteria& criteria);

// What the utterances found hold of each item of the criteria: the counts the
// batch's explore variables report.
struct ExploreItemTally {
    std::string item;
    int occurrences = 0; // words or codes matching it
    int utterances = 0;  // utterances holding one
    int forms = 0;       // different forms as written (without regard to case)
    int words = 0;       // different roots (codes: different codes before any ":")
    int firstLine = 0;   // entry of the first occurrence; 0 when none
};
// Tallies every item of `criteria` over the utterances of `within`.
std::vector<ExploreItemTally> tallyExploreItems(const TranscriptAnalysis& analysis,
                                                const std::vector<ExploreMatch>& within,
                                                const ExploreCriteria& criteria);

// The lines of a plain list of matches: per match "<line>: <text>" and,
// when items matched, "    found: item, item".
std::vector<std::string> exploreListLines(const std::vector<ExploreMatch>& matches);

} // namespace tavi
