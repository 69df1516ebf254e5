// How `tavi` commands run the analysis session: the settings and the word
// lists and dictionary loaded once, and one policy for a transcript with
// errors in every command: its problems go to stderr and the command stops
// with exit status 1, unless --include-errors is given, when the transcript
// is analysed as it stands.
#pragma once

#include <optional>
#include <string>

#include "base/prompter.h"
#include "cli/command.h"
#include "session/analysis_session.h"
#include "settings/startup.h"

namespace tavi::cli {

// The flag that lets a transcript with errors be analysed.
inline constexpr const char* kIncludeErrors = "--include-errors";

struct CommandAnalysis {
    Settings settings;
    AnalysisContext context;
};

// Loads the settings and the analysis context. Null when the settings cannot
// be loaded (exit status 2; the reason was said through the prompter).
std::optional<CommandAnalysis> prepareAnalysis(const CommandContext& ctx, Prompter& prompter);

struct CommandOutcome {
    std::optional<TranscriptAnalysis> analysis; // null: the command stops
    int exitStatus = kExitOk;                   // when it stops
};

// Analyses one transcript file for the command `name` ("report", ...): an
// unreadable file stops it with status 2, a transcript with errors with
// status 1 (unless `includeErrors`); the session's messages (speaker
// fallback, cut outcome) go through the prompter.
CommandOutcome analyseForCommand(const CommandContext& ctx, std::string_view name,
                                 const std::string& path, const AnalysisContext& context,
                                 const AnalysisRequest& request, bool includeErrors,
                                 Prompter& prompter);

} // namespace tavi::cli
