// The batch selections: which speaker, which variables and which stand-ins for
// absent values a batch writes. The same lines are kept in selection files
// (".SBT") and, each with "BATCH " in front, in the settings file, so this
// record is turned into lines and read back from lines here, in one place.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

class VariableCatalogue;

// One entry of the explore word list; speaker codes are written "$ " + text.
struct ExploreEntry {
    bool speakerCode = false;
    std::string text;
    bool operator==(const ExploreEntry&) const = default;
};

// What the explore variables count and over which words.
struct ExploreOptions {
    bool selectedUtterances = false;    // "EXPLSELUTTS"
    bool occurrences = false;           // "EXPLNUMOCC"
    bool utterances = false;            // "EXPLNUMUTT"
    bool differentForms = false;        // "EXPLDIFFFORM"
    bool differentWords = false;        // "EXPLDIFFWORD"
    bool presence = false;              // "EXPLPRESENCE"
    bool mentionedFirst = false;        // "EXPLMENTIONEDFIRST"
    int utteranceChoice = 0;            // "EXPLUTT"
    int areaChoice = 0;                 // "EXPLAREA"
    int rootIdChoice = 0;               // "EXPLRID"
    int codeTypeChoice = 0;             // "EXPLCODETYPE"
    bool wordBaseAnd = false;           // "WBSUT_AND" (else "WBSUT_OR")
    bool wordBaseNot = false;           // "WBSUT_NOT_YES"
    bool mazeFilledPauses = false;      // "WBSUT MZFP_YES"
    bool mazeRepetitions = false;       // "WBSUT MZREP_YES"
    bool mazeRevisions = false;         // "WBSUT MZREV_YES"
    std::set<int> wordBaseChoices;      // "WBSUT %d"
    int lengthFrom = 0;                 // "WBLENFROM"
    int lengthTo = 0;                   // "WBLENTO"
    bool lengthInMorphemes = false;     // "WB_MRPHLEN" (else "WB_WDLEN")
    std::vector<ExploreEntry> wordList; // "EXPLLIST"

    bool operator==(const ExploreOptions&) const = default;
};

struct BatchSelections {
    static constexpr int kTargetSpeaker = 0; // "SPEAKER 1ST"
    static constexpr int kOtherSpeaker = 1;  // "SPEAKER 2ND"
    static constexpr int kBothSpeakers = 2;  // no "SPEAKER" line: a row per main speaker

    int speaker = kTargetSpeaker;
    std::string missingText = "NA";                                  // "XTEXT"
    std::string missingInteger = "-999";                             // "XINT"
    std::string missingDecimal = "-999";                             // "XVAL"
    std::array<bool, 6> general{true, true, true, true, true, true}; // "GENINFO %d"
    std::array<bool, 20> plusLines{};                                // "PLUSLINE %d"
    std::vector<std::string> plusList; // "PLUSLIST": extra header keywords
    // Chosen variable or option numbers of each measure group, by keyword ("SMR").
    std::map<std::string, std::set<int>> groups;
    ExploreOptions explore;

    // A record with nothing chosen and no missing values: where loading starts.
    static BatchSelections empty();

    bool operator==(const BatchSelections&) const = default;
};

// The measure-group keywords in the order the lines are written: variable
// groups and the option numbers that go with them.
const std::vector<std::string_view>& selectionGroupKeywords();

// The record as lines of a selection file, without the "BATCH " prefix.
std::vector<std::string> selectionLines(const BatchSelections& s);
// The same lines each with "BATCH " in front, for the settings file.
std::vector<std::string> batchSectionLines(const BatchSelections& s);

// Applies one line (its keyword and its whole value); unknown keywords are ignored.
void applySelectionLine(BatchSelections& s, std::string_view keyword, std::string_view value);

// Which missing-value field failed validation, with the message to show.
struct MissingValueProblem {
    enum Field { Text, Integer, Decimal } field;
    std::string message;
};
// Checks the three missing values in order; the first failure, or nothing.
std::optional<MissingValueProblem> validateMissingValues(const BatchSelections& s);

// Chosen catalogue variables, in catalogue order.
std::vector<int> chosenVariables(const BatchSelections& s, const VariableCatalogue& c);
// The number a selection line gives a catalogue variable: its place in its
// group, counted on across earlier groups of the same keyword (the four
// scoring-scheme groups share "MACROSTRUCT": NSS 0-7, ESS 8-18, ...).
int selectionIndex(const VariableCatalogue& c, int index);
// Chooses one catalogue variable (by index) or all of them.
void chooseVariable(BatchSelections& s, const VariableCatalogue& c, int index);
void chooseAllVariables(BatchSelections& s, const VariableCatalogue& c);
// Chooses or leaves out one catalogue variable; a group left with nothing
// chosen is dropped, as a file without its line reads.
void setVariableChosen(BatchSelections& s, const VariableCatalogue& c, int index, bool on);

} // namespace tavi
