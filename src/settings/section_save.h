// Saving one section of TAVI.ini as the program default: the one procedure
// every options dialog uses. The new section stands first in the rewritten
// file and the other sections follow in their old order; the file is replaced
// through a temporary file, so it is never left half written.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/prompter.h"
#include "settings/save_outcome.h"

namespace tavi {

// The questions the dialogs ask before saving.
inline constexpr std::string_view kSaveAnalysisSetQuestion =
    "Would you like to save this analysis set as the program default?";
inline constexpr std::string_view kSaveWordBaseQuestion =
    "Would you like to save this word base as the program default?";
inline constexpr std::string_view kSaveSettingsQuestion =
    "Would you like to save these settings as the program default?";
inline constexpr std::string_view kSaveCriteriaQuestion =
    "Would you like to save these criteria settings as the program default?";
inline constexpr std::string_view kSaveReportSettingsQuestion =
    "Would you like to save these report settings as the program default?";
inline constexpr std::string_view kSaveListQuestion =
    "Would you like to save this list and settings as the program default?";

inline constexpr std::string_view kSettingsSavedIn = "Settings saved in ";
inline constexpr std::string_view kListSavedIn = "List and settings saved in ";

struct SectionSaveRequest {
    std::filesystem::path file;     // TAVI.ini in the user-level setup folder
    std::string keyword;            // the section keyword, e.g. "ASET"
    std::vector<std::string> lines; // the section's new lines, each beginning with it
    std::string_view question = kSaveSettingsQuestion;
    std::string_view savedMessage = kSettingsSavedIn;
    bool savingAllowed = false; // Settings::canSaveDefaults()
    // Checks the dialog's fields after the question was answered Yes; it shows
    // its own message ("Error: illegal code specification (save cancelled)") and
    // returns false to cancel. Empty: nothing to check.
    std::function<bool()> validate;
};

// The whole procedure: refusal ("Default settings cannot be saved on this
// computer."), the Yes/No/Cancel question, validation, then the rewrite with
// "Settings saved in " + path, "Cannot write to " + path + " (not saved)" or
// "Problem writing to " + path + " (not saved)".
SaveOutcome saveSection(const SectionSaveRequest& request, Prompter& prompter);

// The same for a dialog that saves several sections at once: the lines of the
// request's keyword and of every keyword in `alsoReplaced` are dropped from the
// present file, and the request's lines (which may begin with any of them)
// stand first.
SaveOutcome saveSections(const SectionSaveRequest& request,
                         const std::vector<std::string>& alsoReplaced, Prompter& prompter);

// The rewritten file's lines: the new section's lines, then every non-empty
// line of the present file (trimmed on the left) whose keyword is not the
// section keyword, in its old order.
std::vector<std::string> mergedSectionLines(std::string_view presentBytes, std::string_view keyword,
                                            const std::vector<std::string>& newLines);
std::vector<std::string> mergedSectionLines(std::string_view presentBytes,
                                            const std::vector<std::string>& keywords,
                                            const std::vector<std::string>& newLines);

} // namespace tavi
