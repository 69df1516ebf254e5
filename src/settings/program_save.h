// Saving settings for every user of this computer: sections of the
// program-level file (TAVI_SYS.ini) written by the network or lab setup
// commands. The lines follow the same rules as a user-level section (the new
// lines first, every other line kept in its old order, the file replaced
// through a temporary file), but the file usually belongs to an administrator
// (/etc/tavi/ when installed), so a file that cannot be written is said as
// defaults that cannot be saved on this computer, naming the file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/prompter.h"
#include "settings/save_outcome.h"

namespace tavi {

inline constexpr std::string_view kSaveProgramQuestion =
    "Would you like to save these settings as the default for every user of this computer?";
inline constexpr std::string_view kProgramCannotSave =
    "Default settings cannot be saved on this computer.";

struct ProgramSaveRequest {
    std::filesystem::path file;        // TAVI_SYS.ini (Settings::programSettingsFile)
    std::vector<std::string> keywords; // the keywords whose old lines are replaced
    std::vector<std::string> lines;    // the new lines, each beginning with one of them
};

// What is said when the program-level file cannot be written: the refusal,
// then which file and who can change it.
std::string programCannotSaveMessage(const std::filesystem::path& file);

// Asks kSaveProgramQuestion (only Yes goes on), then rewrites the file:
// "Settings saved in " + path, or programCannotSaveMessage() when the file
// cannot be created or written.
SaveOutcome saveProgramSection(const ProgramSaveRequest& request, Prompter& prompter);

} // namespace tavi
