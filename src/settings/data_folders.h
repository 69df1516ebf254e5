// Finding the data folders on Linux: the shared data folder (the "program
// folder" of the settings), the user data folder, and the documents folder
// with its "My TAVI Data" subfolder. All folders end in "/".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/prompter.h"
#include "settings/startup_environment.h"

namespace tavi {

// TAVI_DATA_GROUP when set; else the installed share/tavi beside the program
// (<bin>/../share/tavi), the source tree's data/ (a build tree), or the
// configured install folder, the first that exists. Nothing when none is found.
std::optional<std::string> findSharedDataFolder(const StartupEnvironment& env);

// The configuration folder of an installed program: the program runs from
// <prefix>/bin and its shared data folder is the <prefix>/share/tavi beside it
// (TAVI_DATA_GROUP not set). /etc/tavi/ for the prefix /usr (a package), else
// <prefix>/etc/tavi/. Nothing for a program run from a build tree or with
// TAVI_DATA_GROUP.
std::optional<std::string> installedConfigFolder(const StartupEnvironment& env,
                                                 const std::string& sharedData);

// Where the program-level settings file (TAVI_SYS.ini) is looked for, in
// order: the installed configuration folder (when there is one), then the
// shared data folder. The first that exists is read.
std::vector<std::string> programSettingsFiles(const StartupEnvironment& env,
                                              const std::string& sharedData);

// --settings-dir when given; else TAVI_DATA_USER; else $XDG_CONFIG_HOME/tavi/
// or ~/.config/tavi/. Relative values are taken from the current folder.
std::string findUserDataFolder(const StartupEnvironment& env);

// $XDG_DOCUMENTS_DIR, else ~/Documents when it exists, else the home folder,
// else the current folder.
std::string findDocumentsFolder(const StartupEnvironment& env);

inline constexpr std::string_view kMyTaviData = "My TAVI Data";

// The start-up step for "My TAVI Data" below the documents folder: an old
// "TAVI" folder is renamed (and the user told); when neither exists the user
// is asked whether to create it. Returns true when the user answered No, which
// means defaults cannot be saved in this run.
bool prepareMyTaviData(const std::string& documents, Prompter& prompter);

} // namespace tavi
