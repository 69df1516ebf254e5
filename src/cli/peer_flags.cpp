// Selection flags of the commands that compare with a database.
#include "cli/peer_flags.h"

#include <cstdlib>

#include "base/format.h"
#include "transcript/transcript_file.h"

namespace tavi::cli {

std::optional<std::string> applyPeerFlags(const Args& args, db::PeerSelection& selection) {
    if (args.has("--age-span") && args.has("--age-range"))
        return "give --age-span or --age-range, not both";
    if (auto span = args.value("--age-span")) {
        try {
            std::size_t used = 0;
            selection.ageSpan = std::stoi(*span, &used);
            if (used != span->size())
                return "--age-span takes a whole number of months from 1 to 60";
        } catch (const std::exception&) {
            return "--age-span takes a whole number of months from 1 to 60";
        }
        selection.age = db::AgeCriterion::Span;
    }
    if (auto range = args.value("--age-range")) {
        std::size_t dash = range->find('-');
        if (dash == std::string::npos)
            return "--age-range takes FROM-TO, e.g. 6;0-7;11";
        selection.age = db::AgeCriterion::Range;
        selection.ageFrom = range->substr(0, dash);
        selection.ageTo = range->substr(dash + 1);
    }
    if (auto grade = args.value("--grade")) {
        selection.useGrade = true;
        selection.grade = *grade;
    }
    if (auto gender = args.value("--gender")) {
        selection.useGender = true;
        selection.gender = *gender;
    }
    selection.subgroup = args.value("--subgroup").value_or(std::string(db::kAllValues));
    selection.ethnicity = args.value("--ethnicity").value_or(std::string(db::kAllValues));
    selection.location = args.value("--location").value_or(std::string(db::kAllValues));
    selection.select = args.value("--select").value_or(std::string(db::kAllValues));
    if (auto equate = args.value("--equate")) {
        if (*equate == "words")
            selection.equating = EquatingMethod::TotalWords;
        else if (*equate == "time")
            selection.equating = EquatingMethod::ElapsedTime;
        else if (*equate == "utts")
            selection.equating = EquatingMethod::AnalysisSetUtterances;
        else if (*equate == "none")
            selection.equating = EquatingMethod::EntireTranscript;
        else
            return "--equate takes words, time, utts or none";
    }
    selection.applyCut = args.has("--apply-cut");
    if (auto interval = args.value("--sd-interval")) {
        char* end = nullptr;
        const float value = std::strtof(interval->c_str(), &end);
        if (interval->empty() || *end != '\0' || !(value > 0.0f) || value > 100.0f)
            return "--sd-interval takes a positive number";
        selection.sdInterval = value;
    }
    if (auto speaker = args.value("--speaker")) {
        if (*speaker != "1" && *speaker != "2")
            return "--speaker takes 1 or 2";
        selection.speaker = *speaker == "2" ? 1 : 0;
    }
    return std::nullopt;
}

std::optional<OpenComparison>
openComparisonForCommand(CommandContext& ctx, const Args& args, const std::string& transcriptPath,
                         const TranscriptAnalysis& analysis, const Settings& settings,
                         const AnalysisContext& context, Prompter& prompter, int& status) {
    const std::filesystem::path dbPath = args.value("--db").value_or("");
    std::unique_ptr<db::PeerDatabase> database;
    std::error_code ec;
    if (std::filesystem::is_regular_file(dbPath, ec))
        database = db::PeerDatabase::open(dbPath, prompter);
    db::PeerSelection selection = db::newPeerSelection(
        dbPath, database ? database->info() : db::DescriptiveHeader{}, settings);
    if (auto problem = applyPeerFlags(args, selection)) {
        ctx.err << "tavi: " << *problem << '\n';
        status = kExitUsage;
        return std::nullopt;
    }
    std::string text;
    readTranscriptText(transcriptPath, text, context.encoding);
    db::PeerTarget target =
        db::peerTarget(std::filesystem::path(transcriptPath).filename().string(),
                       splitTranscriptLines(text), analysis, context);
    if (!db::checkPeerSelection(selection, target, prompter)) {
        status = kExitUsage;
        return std::nullopt;
    }
    status = kExitFailed;
    if (!database)
        return std::nullopt;
    NoProgress progress;
    auto snapshot = db::comparePeers(*database, selection, target, context, {}, prompter, progress);
    if (!snapshot)
        return std::nullopt;
    status = kExitOk;
    return OpenComparison{std::move(database), std::move(target), std::move(*snapshot)};
}

std::optional<db::PeerSnapshot>
compareForCommand(CommandContext& ctx, const Args& args, const std::string& transcriptPath,
                  const TranscriptAnalysis& analysis, const Settings& settings,
                  const AnalysisContext& context, Prompter& prompter, int& status) {
    auto open = openComparisonForCommand(ctx, args, transcriptPath, analysis, settings, context,
                                         prompter, status);
    if (!open)
        return std::nullopt;
    return std::move(open->snapshot);
}

} // namespace tavi::cli
