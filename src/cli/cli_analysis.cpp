// The command line's side of the analysis session.
#include "cli/cli_analysis.h"

#include <ostream>

#include "cli/cli_settings.h"
#include "transcript/check_listing.h"

namespace tavi::cli {

std::optional<CommandAnalysis> prepareAnalysis(const CommandContext& ctx, Prompter& prompter) {
    LoadedSettings loaded = loadCommandSettings(ctx, prompter);
    if (!loaded.ok)
        return std::nullopt;
    CommandAnalysis prepared;
    prepared.context = analysisContext(loaded.settings, prompter);
    prepared.settings = std::move(loaded.settings);
    return prepared;
}

CommandOutcome analyseForCommand(const CommandContext& ctx, std::string_view name,
                                 const std::string& path, const AnalysisContext& context,
                                 const AnalysisRequest& request, bool includeErrors,
                                 Prompter& prompter) {
    CommandOutcome outcome;
    TranscriptAnalysis analysis = analyseFile(path, context, request);
    if (analysis.load == LoadStatus::CannotOpen) {
        ctx.err << "tavi " << name << ": cannot read " << path << '\n';
        outcome.exitStatus = kExitUsage;
        return outcome;
    }
    if (analysis.load == LoadStatus::Corrupted) {
        ctx.err << "tavi " << name << ": " << path << " corrupted\n";
        outcome.exitStatus = kExitUsage;
        return outcome;
    }
    if (analysis.hasErrors()) {
        for (const err& problem : analysis.check.problems)
            ctx.err << formatProblem(problem) << '\n';
        if (!includeErrors) {
            ctx.err << "tavi " << name << ": " << path
                    << " contains errors; correct them (see tavi check) or give " << kIncludeErrors
                    << " to analyse it as it stands\n";
            outcome.exitStatus = kExitFailed;
            return outcome;
        }
        ctx.err << "tavi " << name << ": " << path << " contains errors; analysed as it stands ("
                << kIncludeErrors << ")\n";
    }
    for (const std::string& message : analysis.messages())
        prompter.inform(message);
    outcome.analysis = std::move(analysis);
    return outcome;
}

} // namespace tavi::cli
