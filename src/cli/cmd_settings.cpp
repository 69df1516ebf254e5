// `tavi settings`: where the settings come from, the folders in force and the
// messages raised while loading them, so a user can see why a default is not
// what they expected.
#include <ostream>
#include <string>
#include <vector>

#include "cli/args.h"
#include "cli/cli_settings.h"
#include "cli/command.h"

namespace tavi::cli {
namespace {

// Collects the loader's messages so they can be printed as part of the result.
class CollectingPrompter final : public Prompter {
public:
    std::vector<std::string> messages;
    void inform(std::string_view text) override { messages.emplace_back(text); }
    Answer ask(std::string_view text) override {
        messages.emplace_back(text);
        return Answer::No;
    }
    bool confirm(std::string_view text) override {
        messages.emplace_back(text);
        return false;
    }
};

const char* statusWord(FileStatus status) {
    switch (status) {
    case FileStatus::Read:
        return "read";
    case FileStatus::Missing:
        return "not found, defaults used";
    case FileStatus::Skipped:
        return "not read: the setup folder is the shared data folder";
    }
    return "";
}

// A message may span lines; later lines are indented under the first.
void printMessage(std::ostream& out, const std::string& message) {
    out << "  ";
    for (char c : message) {
        out << c;
        if (c == '\n')
            out << "    ";
    }
    out << '\n';
}

void printSettings(std::ostream& out, const LoadedSettings& loaded,
                   const std::vector<std::string>& messages) {
    const Settings& s = loaded.settings;
    const SettingsFolders& f = s.folders;
    out << "Shared data folder: " << f.sharedData << '\n'
        << "User data folder: " << f.userData << '\n'
        << "User-level setup folder: " << f.setup << '\n'
        << "Documents folder: " << f.documents << '\n'
        << "\nFiles:\n";
    for (const SettingsFileRecord& file : loaded.files)
        out << "  " << file.role << ": " << file.path << " (" << statusWord(file.status) << ")\n";
    out << "\nFolders:\n"
        << "  automatic backups: " << f.backup << '\n'
        << "  transcripts: " << f.transcript << '\n'
        << "  reports: " << f.report << '\n'
        << "  word and code lists: " << f.list << '\n'
        << "  built-in databases: " << f.database << '\n'
        << "  external databases: " << f.altDatabase << '\n'
        << "  RIF files: " << f.rif << '\n'
        << "  rectangular data file selections: " << f.batch << '\n'
        << "\nDefaults can be saved: " << (s.canSaveDefaults() ? "yes" : "no") << '\n'
        << "\nMessages while loading:";
    if (messages.empty())
        out << " none\n";
    else
        out << '\n';
    for (const std::string& message : messages)
        printMessage(out, message);
}

int run(CommandContext& ctx) {
    Args args(ctx.args, {}, {});
    if (!args.ok() || !args.positional().empty()) {
        ctx.err << "tavi settings: " << (args.ok() ? "takes no file arguments" : args.error())
                << '\n';
        return kExitUsage;
    }
    CollectingPrompter prompter;
    LoadedSettings loaded = loadCommandSettings(ctx, prompter);
    if (!loaded.ok) {
        for (const std::string& message : prompter.messages)
            ctx.err << message << '\n';
        return kExitFailed;
    }
    printSettings(ctx.out, loaded, prompter.messages);
    return kExitOk;
}

const CommandRegistrar reg{
    {"settings", "show where the settings are read from and the folders in force",
     "Usage: tavi [--settings-dir DIR] settings\n\n"
     "Loads the settings as every command does and prints where each\n"
     "settings file is read from (TAVI_SYS.ini in the configuration folder,\n"
     "/etc/tavi/ for a package, else in the shared data folder; TAVI.ini,\n"
     "TAVI_SWL.ini and TAVI_Labels.ini in the user-level setup folder), the\n"
     "folders in force and the messages raised while loading.\n\n"
     "The shared data folder is $TAVI_DATA_GROUP, else the installed\n"
     "share/tavi (or the source tree's data/ when run from a build tree).\n"
     "The user data folder is --settings-dir DIR, else $TAVI_DATA_USER,\n"
     "else $XDG_CONFIG_HOME/tavi/ (default ~/.config/tavi/).\n",
     run}};

} // namespace
} // namespace tavi::cli
