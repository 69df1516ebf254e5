// `tavi graph`: a normative graph of one measure, the matched database
// samples by age against the transcript's value, as SVG, PNG or PDF.
#include <filesystem>
#include <ostream>
#include <string>

#include "batch/normative_graph_data.h"
#include "cli/args.h"
#include "cli/cli_analysis.h"
#include "cli/command.h"
#include "cli/peer_flags.h"
#include "cli/stream_prompter.h"
#include "reports/standard_measures_report.h"
#include "reports/transcript_report.h"
#ifdef TAVI_HAVE_QT
#include "qt/graph_writer.h"
#endif

namespace {

using namespace tavi;

// The measure's label in the report language when a report line prints it,
// else its identifier.
std::string measureLabel(std::string_view id, const Settings& settings) {
    const LabelSource labels = labelSource(settings.labels, LanguageSlot::Primary);
    for (const SmrLineDef& line : smrLines())
        if (line.measureId == id && line.suffixKey.empty() && !line.percentOfLabel)
            return labels(line.labelKey);
    return std::string(id);
}

int run(cli::CommandContext& ctx) {
    cli::Args args(ctx.args, {"--speaker", "-o", "--db", "--window", TAVI_PEER_VALUED_FLAGS},
                   {cli::kIncludeErrors, TAVI_PEER_SWITCHES});
    const auto& positional = args.positional();
    if (!args.ok() || positional.size() != 2 || !args.has("--db") || !args.has("-o")) {
        ctx.err << "tavi graph: "
                << (args.ok() ? "usage: tavi graph MEASURE --db DB [selection flags] "
                                "-o FILE.svg|png|pdf FILE"
                              : args.error())
                << '\n';
        return cli::kExitUsage;
    }
    const std::optional<MeasureId> id = measureIdByName(positional[0]);
    if (!id || measureFormat(*id) == MeasureFormat::Text) {
        ctx.err << "tavi graph: " << positional[0]
                << " is not a measure with numbers (see tavi measures)\n";
        return cli::kExitUsage;
    }
    int window = 6;
    if (auto text = args.value("--window")) {
        try {
            window = std::stoi(*text);
        } catch (const std::exception&) {
            window = -1;
        }
        if (window < 0 || window > 60) {
            ctx.err << "tavi graph: --window takes a whole number of months from 0 to 60\n";
            return cli::kExitUsage;
        }
    }
    const std::filesystem::path output = *args.value("-o");
#ifndef TAVI_HAVE_QT
    ctx.err << "tavi graph: this build draws no graphs (built without Qt)\n";
    return cli::kExitUsage;
#else
    cli::StreamPrompter prompter(ctx.err, Answer::No, false);
    std::optional<cli::CommandAnalysis> prepared = cli::prepareAnalysis(ctx, prompter);
    if (!prepared)
        return cli::kExitUsage;
    const std::filesystem::path file = positional[1];
    AnalysisRequest request;
    request.speaker = args.value("--speaker").value_or("1") == "2" ? 1 : 0;
    cli::CommandOutcome outcome =
        cli::analyseForCommand(ctx, "graph", file.string(), prepared->context, request,
                               args.has(cli::kIncludeErrors), prompter);
    if (!outcome.analysis)
        return outcome.exitStatus;
    int status = cli::kExitOk;
    auto comparison =
        cli::openComparisonForCommand(ctx, args, file.string(), *outcome.analysis,
                                      prepared->settings, prepared->context, prompter, status);
    if (!comparison)
        return status;
    const NormativeGraph graph = normativeGraph(
        *comparison->database, comparison->snapshot, *id,
        measureLabel(measureName(*id), prepared->settings), file.filename().string(),
        comparison->target.ageMonths, outcome.analysis->measures()[*id].number(), window);
    if (std::string problem = qt::saveNormativeGraph(graph, output); !problem.empty()) {
        ctx.err << "tavi graph: " << output.string() << ": " << problem << '\n';
        return problem.rfind("unknown", 0) == 0 ? cli::kExitUsage : cli::kExitFailed;
    }
    return cli::kExitOk;
#endif
}

const cli::CommandRegistrar reg{
    {"graph", "draw a normative graph: database samples by age against a transcript",
     "Usage: tavi graph MEASURE --db DB [selection flags] [--window N] -o FILE.svg|png|pdf FILE\n\n"
     "Compares the transcript with the matched samples of the reference database DB\n"
     "and draws measure MEASURE (an identifier of tavi measures, e.g. MLUw, NDW)\n"
     "by age in months: every selected sample as a point, the database mean and\n"
     "the band of the SD interval either side of it, moving over the ages present\n"
     "(at each sample age, the samples within N months of it; default 6), and the\n"
     "transcript's value as a red point. The graph is drawn from the database each\n"
     "time; the extension of FILE chooses SVG, PNG or PDF.\n\n"
     "Options:\n"
     "  -o FILE            the graph file (.svg, .png or .pdf)\n"
     "  --window N         months either side of each age for the band (0 to 60)\n"
     "  --include-errors   draw for a transcript that has errors as it stands\n\n"
     "" TAVI_PEER_FLAGS_HELP "\n"
     "Exit status: 0 written, 1 the transcript has errors, no sample matches or\n"
     "the file could not be written, 2 bad usage.\n",
     run}};

} // namespace
