// What start-up needs to know about the machine: environment variables, where
// the program runs from, the --settings-dir override and how to ask about
// printers. Gathered in one place at the edge, so the loader itself reads no
// environment and tests can describe any machine they like.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "settings/settings.h"

namespace tavi {

struct StartupEnvironment {
    std::optional<std::string> dataGroup;       // TAVI_DATA_GROUP: the shared data folder
    std::optional<std::string> dataUser;        // TAVI_DATA_USER: the user data folder
    std::optional<std::string> xdgConfigHome;   // XDG_CONFIG_HOME
    std::optional<std::string> xdgDocumentsDir; // XDG_DOCUMENTS_DIR
    std::optional<std::string> home;            // HOME
    std::filesystem::path currentDir;           // the last resort for the documents folder
    std::filesystem::path executable;           // the running program; empty when unknown
    // The data folders built into the program: the installed share/tavi and the
    // source tree's data/ (for a program run from its build tree).
    std::string installDataDir = TAVI_INSTALL_DATA_DIR;
    std::string sourceDataDir = TAVI_SOURCE_DATA_DIR;
    // --settings-dir: the user data folder (and the user-level setup folder) to use.
    std::optional<std::filesystem::path> settingsDir;
    // Rename or offer to create "My TAVI Data" below the documents folder (the
    // desktop program does; `tavi` does not touch the documents folder).
    bool prepareDocumentsFolder = true;
    // Whether a named printer exists; empty: every name is taken.
    PrinterCheck printerExists;

    // The environment of this process (getenv, /proc/self/exe, current folder).
    static StartupEnvironment fromProcess();
};

} // namespace tavi
