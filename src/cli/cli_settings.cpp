// Settings for `tavi` commands.
#include "cli/cli_settings.h"

namespace tavi::cli {

StartupEnvironment commandEnvironment(const CommandContext& ctx) {
    StartupEnvironment env = StartupEnvironment::fromProcess();
    env.settingsDir = ctx.settingsDir;
    env.prepareDocumentsFolder = false;
    return env;
}

LoadedSettings loadCommandSettings(const CommandContext& ctx, Prompter& prompter) {
    return loadSettings(commandEnvironment(ctx), prompter);
}

} // namespace tavi::cli
