// Checker and measure options from the settings record, and the run-time
// resources the measures read (standard word lists, grammatical-category
// dictionary). Every front end builds its options here (through the analysis
// session), so one transcript gives the same problems and measures everywhere.
#pragma once

#include <memory>
#include <string>

#include "analysis/gc_dictionary.h"
#include "analysis/measures.h"
#include "analysis/verb_list.h"
#include "analysis/word_lists.h"
#include "settings/settings.h"
#include "transcript/checker.h"

namespace tavi {

class Prompter;

// The date format of the "DOB" and "DOE" header lines ("DATEMD"/"DATEDM",
// "DATESEP") and the header keywords of the primary label slot.
CheckOptions checkOptionsFrom(const Settings& settings);

// The analysis set, word base, cut and window in force, the code lists
// ("OMITERR", "FLUENCY", "NONMAINSTREAM", "CODESWITCH" lines holding
// bracketed items, e.g. "OMITERR [EW][EO*]"), the distribution settings
// ("DIST WORD"/"MORPH", "DIST TOTAL"/"ASET") and the word-list settings
// ("SWL TOTAL"/"ASET", "SWL MBODY"/"MAZE"/"MBMAZE"). Resources are not set.
MeasureOptions measureOptionsFrom(const Settings& settings);

// The word lists and the dictionary, loaded once and kept for a run.
struct MeasureResources {
    StandardWordLists wordLists;
    bool wordListsFound = false;
    std::unique_ptr<GcDictionary> dictionary; // null when the file is missing
    std::unique_ptr<VerbList> verbs;          // null when the verb file is missing

    // Points the options at whatever was found.
    void attach(MeasureOptions& options) const;
};

std::string dictionaryPath(const Settings& settings);
std::string verbFilePath(const Settings& settings);

// Loads them all; a missing file is reported through the prompter with the
// system's message and leaves that resource off.
MeasureResources loadMeasureResources(const Settings& settings, Prompter& prompter);

} // namespace tavi
