// The batch error check on all cores, listed in order.
#include "batch/batch_check.h"

#include "base/format.h"
#include "batch/ordered_pipeline.h"
#include "session/analysis_session.h"
#include "transcript/check_listing.h"

namespace tavi {

namespace {

struct Checked {
    LoadStatus load = LoadStatus::Ok;
    std::vector<err> problems;
    int errors = 0;
    int warnings = 0;
};

Checked checkOne(const std::filesystem::path& file, const CheckOptions& options, int index) {
    AnalysisContext context;
    context.check = options;
    context.check.transcriptIndex = index;
    AnalysisRequest checkOnly;
    checkOnly.measure = false;
    TranscriptAnalysis analysis = analyseFile(file, context, checkOnly);
    Checked c;
    c.load = analysis.load;
    CheckResult& r = analysis.check;
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
            FileCheck file{files[i], c.load == LoadStatus::Ok, c.problems, c.errors, c.warnings};
            result.files.push_back(std::move(file));
            if (c.load != LoadStatus::Ok) {
                result.lines.push_back(format(
                    c.load == LoadStatus::CannotOpen ? "%s could not be opened" : "%s corrupted",
                    files[i].c_str()));
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
