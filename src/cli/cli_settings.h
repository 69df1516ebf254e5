// How every `tavi` command loads its settings: the same files and start-up
// order as the desktop program, with --settings-dir naming the user data
// folder. `tavi` never creates or renames folders below the documents folder.
#pragma once

#include "base/prompter.h"
#include "cli/command.h"
#include "settings/startup.h"

namespace tavi::cli {

// The environment of this process with the command's --settings-dir applied.
StartupEnvironment commandEnvironment(const CommandContext& ctx);

// Loads the settings for a command; messages go through `prompter`
// (normally a StreamPrompter on ctx.err).
LoadedSettings loadCommandSettings(const CommandContext& ctx, Prompter& prompter);

} // namespace tavi::cli
