// Start-up: find the folders, reset to the built-in defaults, then read
// TAVI_SYS.ini (from /etc/tavi/ first when installed), TAVI.ini, TAVI_SWL.ini
// and TAVI_Labels.ini in that order and check the backup folder. The desktop
// program and every `tavi` command load their settings through loadSettings,
// so both see the same settings.
#pragma once

#include <string>
#include <vector>

#include "base/prompter.h"
#include "settings/settings.h"
#include "settings/startup_environment.h"

namespace tavi {

// The built-in defaults for the given folders: every setting of the record at
// its default, the folders below `sharedData`, `userData` and `documents`, the
// labels of PRIMARY built in and, when `printerExists` says there is no printer
// of that name, no PDF printer. Reads no file.
Settings defaultSettings(const std::string& sharedData, const std::string& userData,
                         const std::string& documents, const PrinterCheck& printerExists);

enum class FileStatus {
    Read,
    Missing, // not there (or unreadable): the defaults stand
    Skipped, // not read by rule (TAVI.ini in the shared data folder)
};

struct SettingsFileRecord {
    std::string role; // "program-level settings", "user-level settings", ...
    std::string path;
    FileStatus status = FileStatus::Missing;
};

struct LoadedSettings {
    bool ok = false; // false: no data folder was found and the program cannot run
    Settings settings;
    std::vector<SettingsFileRecord> files; // every file start-up looked for, in order
};

// Loads the settings as the program starts. Messages go through the prompter.
LoadedSettings loadSettings(const StartupEnvironment& env, Prompter& prompter);

} // namespace tavi
