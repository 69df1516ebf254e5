// `tavi db select DB TRANSCRIPT...`: matches the transcript's target speaker
// with the database's samples, recalculates their measures with the
// transcript's settings and prints the statistics and comparisons, as text,
// as JSON, or for many transcripts as one CSV row each.
#include <charconv>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/format.h"
#include "base/json_text.h"
#include "batch/peer_report_inputs.h"
#include "cli/cli_analysis.h"
#include "cli/db_select.h"
#include "cli/peer_flags.h"
#include "cli/stream_prompter.h"
#include "database/peer_selection.h"
#include "database/sample_info.h"
#include "reports/grid_writer.h"
#include "transcript/transcript_file.h"

namespace tavi::cli {

namespace {

std::string floatOrNull(std::optional<float> x) {
    return x ? shortestFloat(*x) : "null";
}

std::string fixed(float x) {
    return format("%0.2f", static_cast<double>(x));
}

bool listed(MeasureId id) {
    return measureCarriesSd(id);
}

struct Compared {
    MeasureId id;
    std::optional<double> value;
    const PeerStat* stat;
    std::optional<PeerComparison> comparison;
};

std::vector<Compared> comparisons(const db::PeerSnapshot& snapshot, const SpeakerMeasures& m) {
    std::vector<Compared> out;
    for (std::size_t k = 0; k < kMeasureCount; ++k) {
        const MeasureId id = static_cast<MeasureId>(k);
        if (!listed(id))
            continue;
        std::optional<double> value = m[id].number();
        out.push_back({id, value, &snapshot.stats[k], snapshot.compare(id, value)});
    }
    return out;
}

std::string comparisonText(const std::optional<PeerComparison>& c) {
    if (!c)
        return "---";
    std::string word(standingWord(c->standing));
    return c->distance.empty() ? word : word + " (" + c->distance + ")";
}

void printText(std::ostream& out, const db::PeerSnapshot& snapshot, const SpeakerMeasures& m,
               const std::string& date) {
    for (const std::string& line : snapshot.sourceLines(date))
        out << line << '\n';
    out << "\nMeasure\tValue\tN\tMean\tSD\tMin\tMax\tz\tComparison\n";
    for (const Compared& c : comparisons(snapshot, m)) {
        const PeerStat& s = *c.stat;
        out << measureName(c.id) << '\t' << formatValue(m[c.id], measureFormat(c.id)) << '\t' << s.n
            << '\t' << (s.n ? fixed(s.mean) : "---") << '\t'
            << (s.n && s.hasSd ? fixed(s.sd) : "---") << '\t' << (s.n ? fixed(s.min) : "---")
            << '\t' << (s.n ? fixed(s.max) : "---") << '\t'
            << (c.comparison && c.comparison->z ? fixed(*c.comparison->z) : "---") << '\t'
            << comparisonText(c.comparison) << '\n';
    }
}

void printJson(std::ostream& out, const db::PeerSnapshot& snapshot, const SpeakerMeasures& m) {
    out << "{\"database\": " << jsonString(snapshot.database)
        << ", \"context\": " << jsonString(snapshot.context)
        << ", \"criteria\": " << jsonString(snapshot.criteria)
        << ", \"records\": " << snapshot.records << ", \"selected\": " << snapshot.selected
        << ", \"equating\": " << jsonString(snapshot.equatingText) << ", \"measures\": {";
    bool first = true;
    for (const Compared& c : comparisons(snapshot, m)) {
        const PeerStat& s = *c.stat;
        auto stat = [&](float x) { return s.n ? shortestFloat(x) : std::string("null"); };
        std::optional<float> value;
        if (c.value)
            value = static_cast<float>(*c.value);
        out << (first ? "\n  " : ",\n  ") << jsonString(measureName(c.id))
            << ": {\"value\": " << floatOrNull(value) << ", \"n\": " << s.n
            << ", \"mean\": " << stat(s.mean) << ", \"sd\": " << (s.hasSd ? stat(s.sd) : "null")
            << ", \"min\": " << stat(s.min) << ", \"max\": " << stat(s.max)
            << ", \"z\": " << floatOrNull(c.comparison ? c.comparison->z : std::nullopt)
            << ", \"comparison\": "
            << (c.comparison ? jsonString(standingWord(c.comparison->standing)) : "null")
            << ", \"distance\": "
            << (c.comparison && !c.comparison->distance.empty() ? jsonString(c.comparison->distance)
                                                                : "null")
            << "}";
        first = false;
    }
    out << "\n}}\n";
}

std::string numberCell(std::optional<double> x) {
    if (!x)
        return "";
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, *x);
    return std::string(buf, res.ptr);
}

int usage(CommandContext& ctx, const std::string& problem) {
    ctx.err << "tavi db: " << problem << "\nRun 'tavi db --help' for usage.\n";
    return kExitUsage;
}

} // namespace

int dbSelect(CommandContext& ctx) {
    Args args(ctx.args, {TAVI_PEER_VALUED_FLAGS, "--speaker", "--csv", "--exclude"},
              {TAVI_PEER_SWITCHES, "--json", "--exclude-self", kIncludeErrors});
    if (!args.ok())
        return usage(ctx, args.error());
    const std::vector<std::string>& positional = args.positional();
    if (positional.size() < 3)
        return usage(ctx, "select needs a database file and a transcript");
    const bool csv = args.has("--csv");
    if (positional.size() > 3 && !csv)
        return usage(ctx, "select with several transcripts needs --csv OUT");
    if (csv && args.has("--json"))
        return usage(ctx, "give --json or --csv, not both");

    StreamPrompter prompter(ctx.err, Answer::No, true);
    std::optional<CommandAnalysis> prepared = prepareAnalysis(ctx, prompter);
    if (!prepared)
        return kExitUsage;
    const std::filesystem::path dbPath = positional[1];
    std::unique_ptr<db::PeerDatabase> database;
    std::error_code ec;
    if (std::filesystem::is_regular_file(dbPath, ec))
        database = db::PeerDatabase::open(dbPath, prompter);
    db::PeerSelection defaults = db::newPeerSelection(
        dbPath, database ? database->info() : db::DescriptiveHeader{}, prepared->settings);
    if (auto problem = applyPeerFlags(args, defaults))
        return usage(ctx, *problem);
    const std::string date = todayText(prepared->context);

    Grid grid;
    grid.title = "Database comparison";
    if (csv) {
        for (const char* heading : {"File", "Speaker", "Samples"})
            grid.addColumn(heading);
        for (std::size_t k = 0; k < kMeasureCount; ++k) {
            const MeasureId id = static_cast<MeasureId>(k);
            if (!listed(id))
                continue;
            const std::string name(measureName(id));
            grid.addColumn(name);
            grid.addColumn(name + " z");
            grid.addColumn(name + " comparison");
        }
    }
    int status = kExitOk;
    for (std::size_t f = 2; f < positional.size(); ++f) {
        const std::string& file = positional[f];
        db::PeerSelection selection = defaults;
        AnalysisRequest request;
        request.speaker = selection.speaker;
        CommandOutcome outcome = analyseForCommand(ctx, "db select", file, prepared->context,
                                                   request, args.has(kIncludeErrors), prompter);
        if (!outcome.analysis) {
            status = std::max(status, outcome.exitStatus);
            continue;
        }
        const TranscriptAnalysis& analysis = *outcome.analysis;
        std::string text;
        readTranscriptText(file, text, prepared->context.encoding);
        db::PeerTarget target =
            db::peerTarget(std::filesystem::path(file).filename().string(),
                           splitTranscriptLines(text), analysis, prepared->context);
        if (!db::checkPeerSelection(selection, target, prompter))
            return kExitUsage;
        if (!database)
            return kExitFailed;
        std::vector<std::string> exclude = args.values("--exclude");
        if (args.has("--exclude-self"))
            exclude.push_back(db::recordKey(db::baseName(file), selection.speaker + 1));
        NoProgress progress;
        std::optional<db::PeerSnapshot> snapshot = db::comparePeers(
            *database, selection, target, prepared->context, exclude, prompter, progress);
        if (!snapshot)
            status = std::max(status, kExitFailed);
        const SpeakerMeasures& m = analysis.measures();
        if (csv) {
            std::vector<std::string> row{file, std::to_string(analysis.speaker + 1),
                                         std::to_string(snapshot ? snapshot->selected : 0)};
            if (snapshot)
                for (const Compared& c : comparisons(*snapshot, m)) {
                    row.push_back(numberCell(c.value));
                    row.push_back(c.comparison && c.comparison->z ? shortestFloat(*c.comparison->z)
                                                                  : "");
                    row.push_back(c.comparison ? std::string(standingWord(c.comparison->standing))
                                               : "");
                }
            grid.addRow(std::move(row));
        } else if (snapshot) {
            if (args.has("--json"))
                printJson(ctx.out, *snapshot, m);
            else
                printText(ctx.out, *snapshot, m, date);
        }
    }
    if (csv) {
        if (std::string problem = saveGrid(grid, GridFormat::Csv, *args.value("--csv"));
            !problem.empty()) {
            ctx.err << "tavi db: " << *args.value("--csv") << ": " << problem << '\n';
            return kExitFailed;
        }
    }
    return status;
}

} // namespace tavi::cli
