// The batch error check on all cores, listed in order.
#include "batch/batch_check.h"

#include "base/format.h"
#include "batch/ordered_pipeline.h"
#include "transcript/check_listing.h"
#include "transcript/transcript_file.h"

namespace tavi {

namespace {

struct Checked {
    bool readable = false;
    std::vector<err> problems;
    int errors = 0;
    int warnings = 0;
};

Checked checkOne(const std::filesystem::path& file, CheckOptions options, int index) {
    Checked c;
    LoadedTranscript t = loadTranscript(file);
    if (!t.ok)
        return c;
    c.readable = true;
    options.transcriptIndex = index;
    options.keepSegmentation = false;
    CheckResult r = checkTranscript(t.lines, options);
    c.errors = r.errorCount();
    c.warnings = r.warningCount();
    c.problems = std::move(r.problems);
    return c;
}

} // namespace

BatchCheckResult checkTranscripts(const std::vector<std::filesystem::path>& files,
                                  const CheckOptions& options, unsigned threads) {
    BatchCheckResult result;
    result.lines.push_back(format("%d transcripts", static_cast<int>(files.size())));
    unsigned n = threadCount(threads);
    runInOrder<Checked>(
        files.size(), n, 4 * static_cast<size_t>(n),
        [&](size_t i) { return checkOne(files[i], options, static_cast<int>(i)); },
        [&](size_t i, Checked& c) {
            result.lines.push_back(files[i].string());
            if (!c.readable) {
                result.lines.push_back(format("%s could not be opened", files[i].c_str()));
                ++result.unreadable;
                return true;
            }
            for (const err& e : c.problems)
                result.lines.push_back(formatProblem(e));
            result.errors += c.errors;
            result.warnings += c.warnings;
            return true;
        });
    result.lines.push_back(checkSummary(result.errors, result.warnings));
    return result;
}

} // namespace tavi
