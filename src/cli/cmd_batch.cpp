// `tavi batch`: the rectangular data file of many transcripts and its key file.
#include <charconv>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/prompter.h"
#include "base/text.h"
#include "batch/batch_check.h"
#include "batch/batch_defaults.h"
#include "batch/batch_run.h"
#include "batch/selection_file.h"
#include "batch/variable_catalogue.h"
#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"
#include "cli/terminal_progress.h"
#include "reports/grid_writer.h"
#include "reports/report_file.h"
#include "session/analysis_session.h"

namespace {

using namespace tavi;
namespace fs = std::filesystem;

// Answers the run's questions from the flags: a transcript with errors or
// without its cut markers is included only when the matching flag was given.
class BatchPrompter final : public Prompter {
public:
    BatchPrompter(std::ostream& err, bool includeErrors, bool includeMissingCut, bool clearLine)
        : err_(err), includeErrors_(includeErrors), includeMissingCut_(includeMissingCut),
          clearLine_(clearLine) {}

    void inform(std::string_view text) override { print(text, ""); }
    Answer ask(std::string_view text) override {
        // Saving the defaults was asked for on the command line itself.
        bool yes = text.find("as the program default?") != std::string_view::npos ? true
                   : text.find(" cut marker not found.") != std::string_view::npos
                       ? includeMissingCut_
                       : includeErrors_;
        print(text, yes ? " [Yes]" : " [No]");
        return yes ? Answer::Yes : Answer::No;
    }
    bool confirm(std::string_view text) override {
        print(text, " [OK]");
        return true;
    }

private:
    void print(std::string_view text, const char* answer) {
        if (clearLine_)
            err_ << "\r\033[K";
        err_ << "tavi batch: " << text << answer << '\n';
    }
    std::ostream& err_;
    bool includeErrors_;
    bool includeMissingCut_;
    bool clearLine_;
};

// "out.csv" -> "out_RDFKey.csv".
bool parseFormat(const std::optional<std::string>& flag, const fs::path& out, GridFormat& format) {
    std::string word = flag ? toLowerAscii(*flag) : toLowerAscii(out.extension().string());
    if (!word.empty() && word.front() == '.')
        word.erase(0, 1);
    if (word == "csv")
        format = GridFormat::Csv;
    else if (word == "tsv")
        format = GridFormat::Tsv;
    else if (word == "txt" || !flag)
        format = GridFormat::Txt;
    else
        return false;
    return true;
}

// "MLUw" chooses the first variable of that name; "SYNSMRY:MLUw" the one in
// the group with that selection keyword.
bool chooseByName(BatchSelections& s, const std::string& request) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    std::string group;
    std::string name = request;
    if (size_t colon = request.find(':'); colon != std::string::npos) {
        group = request.substr(0, colon);
        name = request.substr(colon + 1);
    }
    for (int index : c.find(name)) {
        if (!group.empty() && !equalsIgnoreCase(c.groupOf(index).keyword, group))
            continue;
        chooseVariable(s, c, index);
        return true;
    }
    return false;
}

std::vector<std::string> splitCommas(const std::string& list) {
    std::vector<std::string> parts;
    std::stringstream in(list);
    std::string part;
    while (std::getline(in, part, ','))
        if (!trim(part).empty())
            parts.emplace_back(trim(part));
    return parts;
}

// The analysis settings in force: analysis set, word base, cut, window, code
// lists, and the word lists and dictionary (not loaded for a check alone,
// which needs neither).
BatchRunOptions runOptions(const Settings& settings, bool checkOnly, Prompter& prompter) {
    BatchRunOptions options;
    options.selections = defaultBatchSelections(settings);
    options.analysis =
        checkOnly ? analysisContext(settings, nullptr) : analysisContext(settings, prompter);
    return options;
}

// `tavi batch --check FILE...`: the batch error check.
int runCheck(cli::CommandContext& ctx, const std::vector<fs::path>& files,
             const BatchRunOptions& options) {
    if (files.empty()) {
        ctx.err << "tavi batch: No transcripts selected\n";
        return cli::kExitUsage;
    }
    BatchCheckResult r = checkTranscripts(files, options.analysis.check, options.threads);
    for (const std::string& line : r.lines)
        ctx.out << line << '\n';
    return r.errors > 0 || r.unreadable > 0 ? cli::kExitFailed : cli::kExitOk;
}

constexpr unsigned kMostThreads = 256;

// The selection flags over the default selections: a selection file, the
// speaker, --all and --variables; and the thread count. False on bad usage
// (the reason already printed).
bool applyFlags(const cli::Args& args, BatchRunOptions& options, Prompter& prompter,
                std::ostream& err) {
    if (std::optional<std::string> sbt = args.value("--selections")) {
        if (!loadSelectionFile(*sbt, options.selections, prompter))
            return false;
        options.selectionFile = fs::path(*sbt);
    }
    if (std::optional<std::string> speaker = args.value("--speaker")) {
        if (*speaker != "1" && *speaker != "2") {
            err << "tavi batch: --speaker takes 1 or 2\n";
            return false;
        }
        options.selections.speaker =
            *speaker == "1" ? BatchSelections::kTargetSpeaker : BatchSelections::kOtherSpeaker;
    }
    if (args.has("--all"))
        chooseAllVariables(options.selections, VariableCatalogue::standard());
    for (const std::string& list : args.values("--variables")) {
        for (const std::string& name : splitCommas(list)) {
            if (!chooseByName(options.selections, name)) {
                err << "tavi batch: unknown variable " << name << '\n';
                return false;
            }
        }
    }
    if (std::optional<std::string> threads = args.value("--threads")) {
        unsigned n = 0;
        auto [end, ec] = std::from_chars(threads->data(), threads->data() + threads->size(), n);
        if (threads->empty() || ec != std::errc() || end != threads->data() + threads->size() ||
            n > kMostThreads) {
            err << "tavi batch: --threads takes a number from 0 (every core) to " << kMostThreads
                << "\n";
            return false;
        }
        options.threads = n;
    }
    return true;
}

int run(cli::CommandContext& ctx) {
    cli::Args args(
        ctx.args,
        {"--selections", "--speaker", "--format", "--quote", "--variables", "--threads", "-o",
         "--save-selections"},
        {"--all", "--include-errors", "--include-missing-cut", "--check", "--save-defaults"});
    if (!args.ok()) {
        ctx.err << "tavi batch: " << args.error() << '\n';
        return cli::kExitUsage;
    }
    std::optional<std::string> out = args.value("-o");
    const bool saving = args.has("--save-selections") || args.has("--save-defaults");
    if (!out && !args.has("--check") && !saving) {
        ctx.err << "tavi batch: no output file given (-o OUT)\n";
        return cli::kExitUsage;
    }
    GridFormat format = GridFormat::Csv;
    if (out && !parseFormat(args.value("--format"), *out, format)) {
        ctx.err << "tavi batch: unknown format " << *args.value("--format")
                << " (use csv, tsv or txt)\n";
        return cli::kExitUsage;
    }
    GridQuoting quoting = GridQuoting::Plain;
    if (std::optional<std::string> quote = args.value("--quote")) {
        if (toLowerAscii(*quote) == "rfc4180") {
            quoting = GridQuoting::Rfc4180;
        } else if (toLowerAscii(*quote) != "plain") {
            ctx.err << "tavi batch: unknown quoting " << *quote << " (use plain or rfc4180)\n";
            return cli::kExitUsage;
        }
    }
    const bool terminal = cli::TerminalProgress::stderrIsTerminal();
    BatchPrompter prompter(ctx.err, args.has("--include-errors"), args.has("--include-missing-cut"),
                           terminal);

    LoadedSettings loaded = cli::loadCommandSettings(ctx, prompter);
    if (!loaded.ok)
        return cli::kExitUsage;
    BatchRunOptions options = runOptions(loaded.settings, args.has("--check"), prompter);
    if (!applyFlags(args, options, prompter, ctx.err))
        return cli::kExitUsage;

    if (std::optional<std::string> sbt = args.value("--save-selections")) {
        if (!saveSelectionFile(*sbt, options.selections, prompter))
            return cli::kExitFailed;
    }
    if (args.has("--save-defaults") &&
        saveBatchDefaults(options.selections, loaded.settings, prompter) != SaveOutcome::Saved)
        return cli::kExitFailed;

    std::vector<fs::path> files(args.positional().begin(), args.positional().end());
    if (args.has("--check"))
        return runCheck(ctx, files, options);
    if (!out)
        return cli::kExitOk; // only saving was asked for
    cli::TerminalProgress bar(ctx.err);
    NoProgress none;
    Progress& progress = terminal ? static_cast<Progress&>(bar) : none;
    std::optional<BatchResult> result = runBatch(files, options, prompter, progress);
    if (!result)
        return cli::kExitFailed;
    const char separator = gridSeparator(format);
    const fs::path keyFile = batchKeyFilePath(*out);
    const std::string problem =
        saveReportFiles({{*out, gridFileBytes(result->data, separator, quoting)},
                         {keyFile, gridFileBytes(result->key, separator, quoting)}});
    if (!problem.empty()) {
        ctx.err << "tavi batch: " << problem << ": " << *out << " (and " << keyFile.string()
                << "); neither was replaced\n";
        return cli::kExitFailed;
    }
    return cli::kExitOk;
}

const cli::CommandRegistrar reg{{
    "batch",
    "write the rectangular data file of many transcripts",
    "Usage: tavi batch [--selections FILE.SBT] [--speaker 1|2] [--format csv|tsv|txt]\n"
    "                  [--quote plain|rfc4180] [--variables NAME,...] [--all] [--threads N]\n"
    "                  [--include-errors] [--include-missing-cut] -o OUT FILE...\n"
    "       tavi batch --check [--threads N] FILE...\n"
    "       tavi batch [selection flags] --save-selections FILE.SBT | --save-defaults\n"
    "\n"
    "Analyses every transcript in order and writes one row per transcript (and\n"
    "speaker) of the chosen variables to OUT, and the description of every column\n"
    "to OUT's key file (\"_RDFKey\" before the extension). Files are UTF-8 with a\n"
    "byte order mark; a cell holding the separator is written between double quotes.\n"
    "\n"
    "  --selections FILE.SBT  the speaker, variables and missing values of a\n"
    "                         selection file\n"
    "  --speaker 1|2          the 1st (target) or 2nd speaker; a selection file\n"
    "                         without a speaker writes a row for each\n"
    "  --format csv|tsv|txt   comma- or tab-separated; default: OUT's extension\n"
    "  --quote plain|rfc4180  plain (default): a quoted cell keeps its inner double\n"
    "                         quotes as they stand; rfc4180: cells holding the\n"
    "                         separator, a double quote or a line break are quoted\n"
    "                         and inner double quotes doubled, as standard CSV\n"
    "                         readers (R, pandas, Python's csv) expect\n"
    "  --variables NAME,...   add variables by column name (\"MLUw,NDW,%IntelUt\");\n"
    "                         GROUP:NAME picks a name standing in several groups\n"
    "                         (\"SYNSMRY:MLUw\")\n"
    "  --all                  every variable of the catalogue\n"
    "  --threads N            analyse on N threads (default: every core)\n"
    "  --include-errors       keep transcripts that have errors (default: left out)\n"
    "  --include-missing-cut  keep transcripts whose cut markers are missing\n"
    "  --check                the batch error check: the number of transcripts, each\n"
    "                         transcript's problems and the count of errors and\n"
    "                         warnings (exit 1 when there are errors)\n"
    "  --save-selections FILE.SBT  save the selections in force (the defaults or\n"
    "                         --selections, with --speaker, --variables and --all)\n"
    "                         as a selection file\n"
    "  --save-defaults        save the same selections as the program default (the\n"
    "                         \"BATCH\" settings); without -o only saving is done\n"
    "\n"
    "Without a selection file the selections saved as the program default (the\n"
    "\"BATCH\" settings) are used: by default the general columns (Filename,\n"
    "Speaker#, Speaker, AnalysisSet, WordBase, TranCut), with absent values written\n"
    "as NA (texts) and -999 (numbers). The analysis set, word base, transcript cut\n"
    "and moving-average window come from the settings files.\n",
    run,
}};

} // namespace
