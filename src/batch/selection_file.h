// Selection files (".SBT") and the "BATCH" section of the settings file: the
// selection lines of batch_selections.h, read and written with the shared
// keyword-file reader and writer, and the messages the person sees.
#pragma once

#include <filesystem>
#include <vector>

#include "batch/batch_selections.h"
#include "settings/keyword_file.h"

namespace tavi {

class Prompter;

inline constexpr const char* kSelectionSaveFilter =
    "Rectangular Data File Selections (*.SBT)|*.SBT|All Files (*.*)|*.*|";
inline constexpr const char* kSelectionLoadFilter =
    "Rectangular Data File Selections (*.SBT)|*.SBT|Text File (*.TXT)|*.TXT|";
// Asked before other selections are loaded over the current ones.
inline constexpr const char* kSaveCurrentSelectionsQuestion =
    "Would you like to save the current selections?";
// Asked before the selections are saved as the program default ("BATCH" section).
inline constexpr const char* kSaveBatchDefaultQuestion =
    "Would you like to save these settings as the program default?";

// The record held by a selection file's lines (loading starts from
// BatchSelections::empty(), so a file reads back to the record that wrote it).
BatchSelections selectionsFromLines(const std::vector<KeywordLine>& lines);

// Loads a selection file into `s`. When it cannot be opened the person is told
// "Unable to open Batch selection file (" + path + ")", `s` is left as it was,
// and the result is false.
bool loadSelectionFile(const std::filesystem::path& path, BatchSelections& s, Prompter& prompter);

// Validates the missing values, writes the file and reports "Selections saved
// in " + path; a failure is reported in the settings writer's words.
bool saveSelectionFile(const std::filesystem::path& path, const BatchSelections& s,
                       Prompter& prompter);

// The "BATCH" lines of a settings file, when there are any, replace `s`.
void applyBatchSettings(BatchSelections& s, const std::vector<KeywordLine>& settingsLines);

} // namespace tavi
