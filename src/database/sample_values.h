// The analysis values a record carries beside its header values: for the
// target speaker under the analysis set in force, the number of total words,
// of analysis-set utterances and the elapsed time, and the transcript's
// utterance count. Matching reads them to tell whether a sample can be
// equated by length without recalculating it.
#pragma once

#include "database/db_builder.h"
#include "session/analysis_session.h"

namespace tavi::db {

// Fills the first analysis set's values of a record (set count 1), analysing
// the transcript under the context's settings (analysis set, word base, cut).
SampleValuesFiller analysisValues(AnalysisContext context);

} // namespace tavi::db
