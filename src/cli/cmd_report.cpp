// `tavi report`: any report of the report table for one transcript, printed
// as plain text or JSON, or written in the format of the -o file's extension
// (.txt .rtf .pdf .html .csv .tsv).
#include <filesystem>
#include <ostream>
#include <string>

#include "analysis/explore_items.h"
#include "base/file_io.h"
#include "base/text.h"
#include "batch/peer_report_inputs.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/peer_flags.h"
#include "cli/stream_prompter.h"
#include "reports/custom_report.h"
#include "reports/db_custom_report.h"
#include "reports/grid_writer.h"
#include "reports/html_writer.h"
#include "reports/json_writer.h"
#include "reports/performance_report.h"
#include "reports/report_file.h"
#include "reports/report_grid.h"
#include "reports/report_registry.h"
#include "reports/rtf_writer.h"
#include "reports/smr_settings.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"
#include "transcript/transcript_file.h"
#ifdef TAVI_HAVE_QT
#include "qt/page_setup.h"
#include "qt/pdf_writer.h"
#endif

namespace {

using namespace tavi;

// Writes the report in the format of the file's extension; "" or a message.
std::string writeReport(const Report& report, const std::filesystem::path& path,
                        const Settings& settings) {
    const std::string ext = toLowerAscii(path.extension().string());
    auto bytes = [&](const std::string& text) { return saveReportBytes(path, text); };
    if (ext == ".txt")
        return bytes(reportTextFileBytes(report));
    if (ext == ".rtf")
        return bytes(reportToRtf(report));
    if (ext == ".html" || ext == ".htm")
        return bytes(reportToHtml(report));
    if (ext == ".csv")
        return saveGrid(reportGrid(report), GridFormat::Csv, path);
    if (ext == ".tsv")
        return saveGrid(reportGrid(report), GridFormat::Tsv, path);
#ifdef TAVI_HAVE_QT
    if (ext == ".pdf")
        return qt::saveReportPdf(report, path, qt::pdfPageSetup(settings));
#else
    (void)settings;
#endif
    return "unknown report format " + ext + " (use .txt, .rtf, .pdf, .html, .csv or .tsv)";
}

// The items of a comma-separated flag value, trimmed, empty ones dropped.
std::vector<std::string> commaList(std::string_view text) {
    std::vector<std::string> items;
    while (!text.empty()) {
        const size_t comma = std::min(text.find(','), text.size());
        if (std::string_view item = trim(text.substr(0, comma)); !item.empty())
            items.emplace_back(item);
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return items;
}

// The choices a report's flags make; false (after saying why) on a bad value.
bool readChoices(const cli::Args& args, std::ostream& err, ReportChoices& choices) {
    if (auto lists = args.value("--lists"))
        choices.utteranceLists = commaList(*lists);
    if (auto kinds = args.value("--kinds"))
        choices.kinds = commaList(*kinds);
    if (auto sort = args.value("--sort")) {
        if (*sort != "frequency" && *sort != "alpha") {
            err << "tavi report: --sort takes frequency or alpha\n";
            return false;
        }
        choices.sortAlphabetically = *sort == "alpha";
    }
    choices.includeMazes = args.has("--with-mazes");
    if (auto items = args.value("--items"))
        choices.exploreItems = commaList(*items);
    if (auto listFile = args.value("--list-file")) {
        std::string text;
        if (!readFile(*listFile, text)) {
            err << "tavi report: cannot read word list file " << *listFile << '\n';
            return false;
        }
        for (std::string& item : wordListFileItems(text))
            choices.exploreItems.push_back(std::move(item));
    }
    if (auto lines = args.value("--plus-lines"))
        choices.plusLines = commaList(*lines);
    return true;
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args,
                   {"--speaker", "-o", "--db", "--lists", "--sort", "--kinds", "--items",
                    "--list-file", "--plus-lines", TAVI_PEER_VALUED_FLAGS},
                   {cli::kIncludeErrors, "--json", "--with-mazes", TAVI_PEER_SWITCHES});
    const auto& positional = args.positional();
    if (!args.ok() || positional.size() != 2) {
        ctx.err << "tavi report: "
                << (args.ok() ? "usage: tavi report KIND [--speaker 1|2] "
                                "[--db DB [selection flags]] [--json] [-o FILE] FILE"
                              : args.error())
                << '\n';
        return cli::kExitUsage;
    }
    const ReportDefinition* definition = findReport(positional[0]);
    if (!definition) {
        ctx.err << "tavi report: unknown report " << positional[0] << " (use " << reportNames()
                << ")\n";
        return cli::kExitUsage;
    }
    TranscriptReportRequest request;
    request.kind = definition->name;
    if (!readChoices(args, ctx.err, request.choices))
        return cli::kExitUsage;
    const bool custom = definition->name == kCustomReportName;
    if (custom) {
        if (std::string problem =
                customReportKinds(request.choices.kinds, args.has("--db")).problem;
            !problem.empty()) {
            ctx.err << "tavi report: --kinds: " << problem << '\n';
            return cli::kExitUsage;
        }
    }
    if (definition->name == "db-custom-pdf")
        for (const std::string& kind : request.choices.kinds)
            if (!dbCustomAccepts(kind)) {
                ctx.err << "tavi report: " << kind
                        << " is not a report against a database (db-custom-pdf --kinds)\n";
                return cli::kExitUsage;
            }
    const std::string speaker = args.value("--speaker").value_or("1");
    if (speaker != "1" && speaker != "2") {
        ctx.err << "tavi report: --speaker takes 1 or 2\n";
        return cli::kExitUsage;
    }

    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    std::optional<cli::CommandAnalysis> prepared = cli::prepareAnalysis(ctx, prompter);
    if (!prepared)
        return cli::kExitUsage;
    // The report's lines saved as the default in the desktop program.
    request.choices.smrVariables = smrVariablesFromSettings(prepared->settings);
    const std::filesystem::path file = positional[1];
    AnalysisRequest analysisRequest;
    analysisRequest.speaker = speaker == "2" ? 1 : 0;
    cli::CommandOutcome outcome =
        cli::analyseForCommand(ctx, "report", file.string(), prepared->context, analysisRequest,
                               args.has(cli::kIncludeErrors), prompter);
    if (!outcome.analysis)
        return outcome.exitStatus;

    request.transcriptName = file.filename().string();
    TranLines lines;
    if (definition->needsLines) {
        std::string text;
        readTranscriptText(file, text, prepared->context.encoding);
        lines = splitTranscriptLines(text);
        request.lines = &lines;
    }
    std::optional<cli::OpenComparison> comparison;
    if (args.has("--db") && definition->database == DatabaseUse::None) {
        ctx.err << "tavi report: " << definition->name << " does not compare with a database\n";
        return cli::kExitUsage;
    }
    if (args.has("--db")) {
        int status = cli::kExitOk;
        comparison =
            cli::openComparisonForCommand(ctx, args, file.string(), *outcome.analysis,
                                          prepared->settings, prepared->context, prompter, status);
        if (!comparison)
            return status;
        const db::PeerSnapshot& snapshot = comparison->snapshot;
        const std::string date = todayText(prepared->context);
        request.database = smrDatabase(snapshot, outcome.analysis->measures(), date);
        request.performancePeers = performancePeers(snapshot, date);
        const ExploreNeeds needs = exploreNeeds(definition->name, request.choices);
        if (needs.items || needs.plusLines) {
            NoProgress progress;
            addExploreColumns(*request.database, *comparison->database, snapshot, *outcome.analysis,
                              prepared->context, request.choices, needs, prompter, progress);
        }
    } else if (definition->database == DatabaseUse::Required) {
        ctx.err << "tavi report: " << definition->name << " needs --db DB\n";
        return cli::kExitUsage;
    }
    Report report;
    const auto output = args.value("-o");
    if (custom) {
        // The chosen reports behind the contents page: one PDF with a title
        // page and a table of contents, or joined into one report otherwise.
        const std::vector<Report> parts =
            buildCustomReports(*outcome.analysis, prepared->settings, request);
        const std::vector<Report> held(parts.begin() + 1, parts.end());
#ifdef TAVI_HAVE_QT
        if (output && toLowerAscii(std::filesystem::path(*output).extension().string()) == ".pdf") {
            std::vector<const Report*> pointers;
            for (const Report& part : held)
                pointers.push_back(&part);
            if (std::string problem = qt::saveBookPdf(parts.front(), pointers, *output,
                                                      qt::pdfPageSetup(prepared->settings));
                !problem.empty()) {
                ctx.err << "tavi report: " << *output << ": " << problem << '\n';
                return cli::kExitFailed;
            }
            return cli::kExitOk;
        }
#endif
        report = joinReports(parts.front(), held);
    } else {
        report = buildTranscriptReport(*outcome.analysis, prepared->settings, request);
    }
    if (args.has("--json")) {
        ctx.out << reportToJson(
            report, {definition->name, request.transcriptName, outcome.analysis->speaker});
        return cli::kExitOk;
    }
    if (!output) {
        ctx.out << reportToText(report);
        return cli::kExitOk;
    }
    if (std::string problem = writeReport(report, *output, prepared->settings); !problem.empty()) {
        ctx.err << "tavi report: " << *output << ": " << problem << '\n';
        return problem.rfind("unknown", 0) == 0 ? cli::kExitUsage : cli::kExitFailed;
    }
    return cli::kExitOk;
}

// The kinds of the report table, one per line, for the end of --help.
std::string reportList() {
    std::string list = "\nReports (KIND):\n";
    for (const ReportDefinition& report : reportDefinitions()) {
        std::string name(report.name);
        name.resize(std::max<size_t>(name.size() + 1, 26), ' ');
        list += "  " + name + std::string(report.title) +
                (report.database == DatabaseUse::Required ? " (--db)" : "") + "\n";
    }
    return list;
}

const cli::CommandRegistrar reg{
    {"report", "write a report of one transcript (Standard Measures Report and others)",
     "Usage: tavi report KIND [--speaker 1|2] [--db DB [selection flags]] [--json] "
     "[-o FILE] FILE\n\n"
     "Analyses one transcript with the settings in force (analysis set, word base,\n"
     "transcript cut, labels) and writes a report of one speaker. KIND is one of\n"
     "the reports listed at the end; docs/reports.md describes each.\n\n"
     "Without -o the report is printed as plain text. With -o the extension of FILE\n"
     "chooses the format: .txt, .rtf, .pdf, .html, .csv or .tsv (the last two write\n"
     "the report's lines and tables as cells).\n\n"
     "Options:\n"
     "  --speaker 1|2      the 1st (default) or 2nd speaker of the transcript\n"
     "  -o FILE            write the report to FILE\n"
     "  --json             print the report as JSON: {\"report\", \"title\", \"transcript\",\n"
     "                     \"speaker\", \"header\", \"sections\": [{\"title\", \"columns\",\n"
     "                     \"rows\": [{\"label\", \"cells\"}]}], \"footnotes\"}; numbers as\n"
     "                     numbers, a missing value as null\n"
     "  --lists KEYS       (utterance-lists) the lists to show, e.g. PQUES,PIMIT\n"
     "  --sort frequency|alpha  (word and morpheme tables) the order of the rows\n"
     "  --with-mazes       (word-roots) count the words of mazes too\n"
     "  --kinds A,B,...    (custom-pdf, db-custom-pdf) the reports the PDF holds, in\n"
     "                     order (custom-pdf by default: smr and every report of\n"
     "                     the Analyze menu that needs no database); custom-pdf\n"
     "                     with -o FILE.pdf writes one PDF with a title page and\n"
     "                     a table of contents, else the reports joined into one\n"
     "  --items W,[C],...  (explore-words-codes) the words and codes to count; a\n"
     "                     code in brackets, a final * matches any ending\n"
     "  --list-file FILE   (explore-words-codes) more items from a word list file\n"
     "                     (*.LST: items on lines, blank- or comma-separated;\n"
     "                     lines starting with ; are notes)\n"
     "  --plus-lines K,... (explore-plus-lines) the \"+\" lines to compare\n"
     "                     (default: every \"+\" line of the transcript with a number)\n"
     "  --include-errors   report on a transcript that has errors as it stands\n"
     "  --db DB            compare with the matched samples of the reference\n"
     "                     database DB (smr: each value is followed by the database\n"
     "                     mean and SD, and marked \"*\" at or beyond the SD interval;\n"
     "                     performance and goals: sentences against the database);\n"
     "                     the header says where the numbers come from\n\n" TAVI_PEER_FLAGS_HELP
     "\n"
     "A transcript with errors is refused: its problems go to stderr and the\n"
     "exit status is 1, unless --include-errors is given.\n\n"
     "Exit status: 0 written, 1 the transcript has errors or the file could not be\n"
     "written, 2 bad usage, settings that cannot be loaded or an unreadable\n"
     "transcript.\n",
     run, reportList}};

} // namespace
