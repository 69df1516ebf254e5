// `tavi check`: runs the checker over transcripts and lists every problem the
// way the desktop program's error list does.
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "base/format.h"
#include "base/json_text.h"
#include "base/text.h"
#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"
#include "cli/stream_prompter.h"
#include "session/analysis_session.h"
#include "transcript/check_listing.h"
#include "transcript/checker.h"

namespace {

using namespace tavi;
using tavi::jsonString;

// "MM-DD-YY" or "DD.MM.YY" (any of "-", ".", "/").
bool parseDateFormat(const std::string& text, DateFormat& format) {
    if (text.size() != 8 || text[2] != text[5] || text.substr(6) != "YY")
        return false;
    char sep = text[2];
    if (sep != '-' && sep != '.' && sep != '/')
        return false;
    std::string order = text.substr(0, 2) + text.substr(3, 2);
    if (order != "MMDD" && order != "DDMM")
        return false;
    format.separator = sep;
    format.order = order == "MMDD" ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
    return true;
}

struct FileResult {
    std::string path;
    CheckResult check;
};

void printText(const std::vector<FileResult>& results, int unreadable, std::ostream& out) {
    int errors = 0, warnings = 0;
    for (const FileResult& r : results) {
        if (results.size() > 1)
            out << r.path << '\n';
        for (const err& e : r.check.problems)
            out << formatProblem(e) << '\n';
        errors += r.check.errorCount();
        warnings += r.check.warningCount();
    }
    if (unreadable == 0) {
        out << checkSummary(errors, warnings) << '\n';
        return;
    }
    // Never a clean result for a transcript that was not read.
    if (!results.empty())
        out << checkSummary(errors, warnings) << " (in the transcripts that could be read)\n";
    out << (unreadable == 1 ? std::string("1 transcript could not be read.")
                            : format("%d transcripts could not be read.", unreadable))
        << '\n';
}

void printJson(const std::vector<FileResult>& results, std::ostream& out) {
    out << '[';
    bool first = true;
    for (const FileResult& r : results) {
        for (const err& e : r.check.problems) {
            out << (first ? "\n  " : ",\n  ");
            first = false;
            out << "{\"file\": " << jsonString(r.path) << ", \"code\": " << e.code
                << ", \"line\": " << e.line << ", \"message\": " << jsonString(e.message) << '}';
        }
    }
    out << (first ? "]\n" : "\n]\n");
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args, {"--date-format", "--require-header"}, {"--json"});
    if (!args.ok() || args.positional().empty()) {
        ctx.err << "tavi check: " << (args.ok() ? "no transcript given" : args.error()) << '\n';
        return cli::kExitUsage;
    }
    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    LoadedSettings loaded = cli::loadCommandSettings(ctx, prompter);
    if (!loaded.ok)
        return cli::kExitUsage;
    AnalysisContext context = analysisContext(loaded.settings, nullptr);
    CheckOptions& options = context.check;
    if (auto f = args.value("--date-format"); f && !parseDateFormat(*f, options.dateFormat)) {
        ctx.err << "tavi check: unknown date format " << *f << " (use e.g. MM-DD-YY or DD.MM.YY)\n";
        return cli::kExitUsage;
    }
    if (auto h = args.value("--require-header"))
        options.requiredHeader = *h;

    AnalysisRequest checkOnly;
    checkOnly.measure = false;
    std::vector<FileResult> results;
    int unreadable = 0;
    bool errors = false;
    for (const std::string& path : args.positional()) {
        TranscriptAnalysis analysis = analyseFile(path, context, checkOnly);
        if (analysis.load != LoadStatus::Ok) {
            ctx.err << "tavi check: "
                    << (analysis.load == LoadStatus::CannotOpen ? "cannot read " : "corrupted: ")
                    << path << '\n';
            ++unreadable;
            continue;
        }
        errors = errors || analysis.hasErrors();
        results.push_back({path, std::move(analysis.check)});
    }
    if (args.has("--json"))
        printJson(results, ctx.out);
    else
        printText(results, unreadable, ctx.out);
    if (unreadable > 0)
        return cli::kExitUsage;
    return errors ? cli::kExitFailed : cli::kExitOk;
}

const cli::CommandRegistrar reg{
    {"check", "check transcripts against the transcription notation",
     "Usage: tavi check [--json] [--date-format MM-DD-YY] [--require-header KEYWORD] FILE...\n\n"
     "Checks each transcript and lists every problem, one per line:\n"
     "  E<code> on entry <line>: <message>        an error\n"
     "  Warning #<n> on entry <line>: <message>   a warning\n"
     "With several files, each file's problems follow a line holding its path.\n"
     "A summary line ends the list.\n\n"
     "Options:\n"
     "  --json                    print one JSON array of {file, code, line, message}\n"
     "  --date-format FORMAT      date format of the DOB and DOE header lines:\n"
     "                            MM-DD-YY or DD-MM-YY, with -, . or /; the\n"
     "                            default is the date format of the settings\n"
     "                            (tavi settings: LANGUAGE DATEMD/DATEDM, DATESEP)\n"
     "  --require-header KEYWORD  warn when this + header line is missing\n\n"
     "Exit status: 0 no errors, 1 a transcript has errors, 2 bad usage or a file\n"
     "that cannot be read.\n",
     run}};

} // namespace
