// The `tavi` commands register themselves here, one file each, so adding a
// command never touches another command's file.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace tavi::cli {

// Exit statuses shared by every command.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1; // input has errors, or the work failed
inline constexpr int kExitUsage = 2;  // bad usage or unreadable input

struct CommandContext {
    std::vector<std::string> args; // after the command name, global options removed
    std::ostream& out;
    std::ostream& err;
    std::optional<std::filesystem::path> settingsDir; // --settings-dir
};

struct CommandInfo {
    const char* name;
    const char* summary; // one line for `tavi --help`
    const char* help;    // full text for `tavi COMMAND --help`
    int (*run)(CommandContext&);
    std::string (*helpTail)() = nullptr; // appended to `help`: lists built from tables
};

const std::vector<CommandInfo>& commands();

struct CommandRegistrar {
    explicit CommandRegistrar(const CommandInfo& info);
};

} // namespace tavi::cli
