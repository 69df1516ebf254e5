// `tavi report`: a single-transcript report (Standard Measures Report or
// Summary of Utterance Types) printed as plain text, or written in the format
// of the -o file's extension (.txt .rtf .pdf .html .csv .tsv).
#include <filesystem>
#include <ostream>
#include <string>

#include "base/text.h"
#include "batch/peer_report_inputs.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/peer_flags.h"
#include "cli/stream_prompter.h"
#include "reports/grid_writer.h"
#include "reports/html_writer.h"
#include "reports/performance_report.h"
#include "reports/report_file.h"
#include "reports/report_grid.h"
#include "reports/rtf_writer.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"
#include "transcript/transcript_file.h"
#ifdef TAVI_HAVE_QT
#include "qt/page_setup.h"
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

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args, {"--speaker", "-o", "--db", TAVI_PEER_VALUED_FLAGS},
                   {cli::kIncludeErrors, TAVI_PEER_SWITCHES});
    const auto& positional = args.positional();
    if (!args.ok() || positional.size() != 2) {
        ctx.err << "tavi report: "
                << (args.ok() ? "usage: tavi report smr|types|performance|goals [--speaker 1|2] "
                                "[--db DB [selection flags]] "
                                "[-o FILE] FILE"
                              : args.error())
                << '\n';
        return cli::kExitUsage;
    }
    TranscriptReportRequest request;
    const bool performance = positional[0] == "performance", goals = positional[0] == "goals";
    if (positional[0] == "smr" || performance || goals)
        request.kind = TranscriptReportKind::StandardMeasures;
    else if (positional[0] == "types")
        request.kind = TranscriptReportKind::UtteranceTypes;
    else {
        ctx.err << "tavi report: unknown report " << positional[0]
                << " (use smr, types, performance or goals)\n";
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
    const std::filesystem::path file = positional[1];
    AnalysisRequest analysisRequest;
    analysisRequest.speaker = speaker == "2" ? 1 : 0;
    cli::CommandOutcome outcome =
        cli::analyseForCommand(ctx, "report", file.string(), prepared->context, analysisRequest,
                               args.has(cli::kIncludeErrors), prompter);
    if (!outcome.analysis)
        return outcome.exitStatus;

    request.transcriptName = file.filename().string();
    std::optional<db::PeerSnapshot> snapshot;
    if (args.has("--db")) {
        if (request.kind != TranscriptReportKind::StandardMeasures && !performance && !goals) {
            ctx.err << "tavi report: --db goes with smr, performance or goals\n";
            return cli::kExitUsage;
        }
        int status = cli::kExitOk;
        snapshot = cli::compareForCommand(ctx, args, file.string(), *outcome.analysis,
                                          prepared->settings, prepared->context, prompter, status);
        if (!snapshot)
            return status;
        if (!performance && !goals)
            request.database =
                smrDatabase(*snapshot, outcome.analysis->measures(), todayText(prepared->context));
    }
    Report report;
    if (performance || goals) {
        std::string text;
        readTranscriptText(file, text);
        const TranLines lines = splitTranscriptLines(text);
        PerformanceInputs inputs = performanceInputs(*outcome.analysis, lines);
        if (snapshot) {
            inputs.peers = performancePeers(*snapshot, todayText(prepared->context));
        }
        report = performance ? buildPerformanceReport(inputs) : buildGoalBank(inputs);
    } else {
        report = buildTranscriptReport(*outcome.analysis, prepared->settings, request);
    }
    const auto output = args.value("-o");
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

const cli::CommandRegistrar reg{
    {"report", "write a Standard Measures Report or Summary of Utterance Types",
     "Usage: tavi report smr|types|performance|goals [--speaker 1|2] [--db DB [selection flags]] "
     "[-o FILE] FILE\n\n"
     "Analyses one transcript with the settings in force (analysis set, word base,\n"
     "transcript cut, labels) and writes a report of one speaker:\n"
     "  smr     the Standard Measures Report\n"
     "  types   the Summary of Utterance Types\n"
     "  performance  the Performance Report: the measures in sentences, compared\n"
     "          with the database's matched samples when --db is given\n"
     "  goals   the goal bank: a goal for each measure below the database, its\n"
     "          target the lowest value within normal limits\n\n"
     "Without -o the report is printed as plain text. With -o the extension of FILE\n"
     "chooses the format: .txt, .rtf, .pdf, .html, .csv or .tsv (the last two write\n"
     "the report's lines and tables as cells).\n\n"
     "Options:\n"
     "  --speaker 1|2      the 1st (default) or 2nd speaker of the transcript\n"
     "  -o FILE            write the report to FILE\n"
     "  --include-errors   report on a transcript that has errors as it stands\n"
     "  --db DB            (smr) compare with the matched samples of the reference\n"
     "                     database DB: each value is followed by the database mean\n"
     "                     and SD, and marked \"*\" at or beyond the SD interval; the\n"
     "                     header says where the numbers come from\n\n" TAVI_PEER_FLAGS_HELP "\n"
     "A transcript with errors is refused: its problems go to stderr and the\n"
     "exit status is 1, unless --include-errors is given.\n\n"
     "Exit status: 0 written, 1 the transcript has errors or the file could not be\n"
     "written, 2 bad usage, settings that cannot be loaded or an unreadable\n"
     "transcript.\n",
     run}};

} // namespace
