// The batch selections as a program default: read from the "BATCH" section of
// the user settings file at start-up, and saved back there with the settings'
// one section-save procedure.
#pragma once

#include "base/prompter.h"
#include "batch/batch_selections.h"
#include "settings/save_outcome.h"
#include "settings/settings.h"

namespace tavi {

// The saved default selections, or the built-in ones when TAVI.ini has no "BATCH" lines.
BatchSelections defaultBatchSelections(const Settings& settings);

// Asks "Would you like to save these settings as the program default?",
// validates the missing values (their message shown, nothing saved when they
// fail) and rewrites the "BATCH" section of TAVI.ini.
SaveOutcome saveBatchDefaults(const BatchSelections& selections, const Settings& settings,
                              Prompter& prompter);

} // namespace tavi
