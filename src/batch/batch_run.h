// The batch run: every transcript of a list is opened, checked and measured,
// and the chosen variables of the chosen speaker become one row of the
// rectangular data grid; a key grid describes its columns. The transcripts are
// analysed on all cores while the rows, the questions and the messages come in
// the transcripts' order.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "batch/batch_selections.h"
#include "reports/grid.h"
#include "session/analysis_session.h"

namespace tavi {

class Prompter;
class Progress;

struct BatchRunOptions {
    BatchSelections selections;
    // Checker and measure options (date format, header keywords, analysis
    // set, word base, cut, window, lists) and the word lists and dictionary.
    AnalysisContext analysis;
    // The selection file the selections came from, if any: it names the grids.
    std::optional<std::filesystem::path> selectionFile;
    unsigned threads = 0; // 0: one per core
};

// The column texts of the general group that do not depend on the transcript.
std::string wordBaseText(const WordBase& base);

// Grid titles: the selection file's name up to its first "." followed by
// "_RDF" / "_RDFKey", or "RDF" / "RDF Key" without a selection file.
std::string dataGridTitle(const std::optional<std::filesystem::path>& selectionFile);
std::string keyGridTitle(const std::optional<std::filesystem::path>& selectionFile);

// The key file beside a data file: "_RDFKey" before the extension.
std::filesystem::path batchKeyFilePath(const std::filesystem::path& dataFile);

struct BatchResult {
    Grid data;           // heading row of column names, one row per transcript and speaker
    Grid key;            // "Variable", "Description", "Category"
    int transcripts = 0; // transcripts with rows in the data grid
    int leftOut = 0;     // transcripts that could not be read or were declined
};

// Runs the batch. Nothing is run, and nothing is returned, when the missing
// values do not validate, when no transcript ("No transcripts selected") or no
// variable ("No variables selected") is chosen, or when a question is answered
// Cancel or the progress is cancelled.
std::optional<BatchResult> runBatch(const std::vector<std::filesystem::path>& transcripts,
                                    const BatchRunOptions& options, Prompter& prompter,
                                    Progress& progress);

} // namespace tavi
