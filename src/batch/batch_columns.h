// The columns of one batch: the chosen catalogue variables and the specific
// plus lines, in the order they are written, and how one transcript's values
// become the texts of its row.
#pragma once

#include <string>
#include <vector>

#include "analysis/measures.h"
#include "batch/batch_selections.h"
#include "batch/variable_catalogue.h"
#include "explore/explore.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

// The counts of the "Explore" group, in the order their flags are written.
enum class ExploreCount {
    SelectedUtterances, // "EXPLSELUTTS": utterances meeting the criteria
    Occurrences,        // "EXPLNUMOCC", per item of the explore list
    Utterances,         // "EXPLNUMUTT"
    DifferentForms,     // "EXPLDIFFFORM"
    DifferentWords,     // "EXPLDIFFWORD"
    Presence,           // "EXPLPRESENCE": 1 or 0
    MentionedFirst,     // "EXPLMENTIONEDFIRST": 1 when the speaker used it before the other
};

struct BatchColumn {
    int variable = -1;    // catalogue index; -1 for a specific plus line or an explore count
    std::string plusLine; // the header keyword of a specific plus line
    bool explore = false; // an explore count
    ExploreCount count = ExploreCount::SelectedUtterances;
    int item = -1; // the explore list entry it counts
    std::string heading() const;
    std::string description() const;
    std::string category() const;
    ValueType type() const;
};

// General and plus-line columns first, then the specific plus lines, then the
// measure groups in catalogue order, then the explore counts: the selected
// utterances, then per entry of the explore list each chosen count.
std::vector<BatchColumn> batchColumns(const BatchSelections& s, const VariableCatalogue& c);

// What one row is made from: the transcript's file name and header lines, the
// speaker, the measures and the texts of the analysis settings.
struct RowSource {
    std::string fileName;
    const SegmentedTranscript* transcript = nullptr;
    int ageMonths = -1; // from the checker: DOB and DOE, else CA; -1 unknown
    int speaker = 0;    // 0 1st, 1 2nd
    const SpeakerMeasures* measures = nullptr;
    std::string analysisSet; // e.g. "C&I Verbal Utts"
    std::string wordBase;
    std::string cut; // e.g. "Entire Transcript"
    // The explore counts of this speaker and of the other main speaker.
    int exploreSelected = 0;
    std::vector<ExploreItemTally> exploreItems, otherExploreItems;
};

// The explore criteria a batch's explore options stand for: "EXPLUTT" 0 total,
// 1 analysis set, 2 outside it; "EXPLAREA" 0 main body, 1 mazes, 2 both;
// "EXPLRID" 0 produced, 1 identified, 2 either; "EXPLCODETYPE" 0 either kind
// of code, 1 word codes, 2 utterance codes; the "WBSUT" lines as the explore criteria keep
// them; the list entries are the items (speaker-code entries as codes).
ExploreCriteria exploreCriteriaOf(const ExploreOptions& options);

// Whether any explore count is chosen.
bool anyExploreCount(const ExploreOptions& options);

// Fills the explore counts of `source` for its speaker.
void tallyExplore(const TranscriptAnalysis& analysis, const ExploreOptions& options,
                  RowSource& source);

// A measure value as written: whole numbers "%d", decimals with the column's
// places, texts as they stand, and the selection's missing value when absent.
std::string batchValueText(const Value& value, const BatchVariable& v, const BatchSelections& s);

// The missing value for a column of this type.
const std::string& missingValue(ValueType type, const BatchSelections& s);

std::vector<std::string> batchRow(const std::vector<BatchColumn>& columns, const RowSource& source,
                                  const BatchSelections& s);

} // namespace tavi
