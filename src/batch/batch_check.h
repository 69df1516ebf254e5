// The batch error check: the checker run over a list of transcripts, with the
// count of transcripts, each transcript's problems under its path, and one
// summary line in the system's words.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "transcript/checker.h"
#include "transcript/err.h"

namespace tavi {

// One transcript's part of the check.
struct FileCheck {
    std::filesystem::path file;
    bool read = true;          // false: it could not be opened (or is corrupted)
    std::vector<err> problems; // in line order
    int errors = 0;
    int warnings = 0;
};

struct BatchCheckResult {
    std::vector<std::string> lines; // the listing, one line each
    std::vector<FileCheck> files;   // the same, transcript by transcript
    int errors = 0;
    int warnings = 0;
    int unreadable = 0; // transcripts that could not be opened
};

// "%d transcripts"; then per transcript its path and "E%d on entry %d: %s" /
// "Warning #%d on entry %d: %s" lines (or "%s could not be opened"); then
// "No errors or warnings found.", "1 error found.", ... Checks on `threads`
// threads (0: every core); the listing is in the transcripts' order.
BatchCheckResult checkTranscripts(const std::vector<std::filesystem::path>& files,
                                  const CheckOptions& options, unsigned threads = 0);

} // namespace tavi
