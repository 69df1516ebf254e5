// The columns of one batch: the chosen catalogue variables and the specific
// plus lines, in the order they are written, and how one transcript's values
// become the texts of its row.
#pragma once

#include <string>
#include <vector>

#include "analysis/measures.h"
#include "batch/batch_selections.h"
#include "batch/variable_catalogue.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

struct BatchColumn {
    int variable = -1;    // catalogue index; -1 for a specific plus line
    std::string plusLine; // the header keyword of a specific plus line
    std::string heading() const;
    std::string description() const;
    std::string category() const;
    ValueType type() const;
};

// General and plus-line columns first, then the specific plus lines, then the
// measure groups in catalogue order.
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
};

// A measure value as written: whole numbers "%d", decimals with the column's
// places, texts as they stand, and the selection's missing value when absent.
std::string batchValueText(const Value& value, const BatchVariable& v, const BatchSelections& s);

// The missing value for a column of this type.
const std::string& missingValue(ValueType type, const BatchSelections& s);

std::vector<std::string> batchRow(const std::vector<BatchColumn>& columns, const RowSource& source,
                                  const BatchSelections& s);

} // namespace tavi
