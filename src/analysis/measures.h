// The measure record: every measure of one main speaker of one transcript,
// computed from the segmented transcript and the options of one analysis.
// Reports and batch columns fetch single values by identifier; the tables
// (word lists, grammatical categories, utterance lists, distributions) sit
// beside them. Measures are pure: the same transcript and options give the
// same record.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/analysis_set.h"
#include "analysis/code_lists.h"
#include "analysis/macro_measures.h"
#include "analysis/measure_id.h"
#include "analysis/selection.h"
#include "analysis/transcript_cut.h"
#include "analysis/value.h"
#include "analysis/word_base.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

class StandardWordLists; // analysis/word_lists.h
class GcDictionary;      // analysis/gc_dictionary.h
class VerbList;          // analysis/verb_list.h

inline constexpr int kMinWindow = 10;
inline constexpr int kMaxWindow = 999;
inline constexpr int kDefaultWindow = 100;

// Where words are counted: main body, mazes, or both ("SWL MBODY" ...).
enum class WordArea { MainBody, Mazes, MainBodyAndMazes };

struct MeasureOptions {
    AnalysisSet analysisSet;
    WordBase wordBase;
    TranscriptCut cut;
    int window = kDefaultWindow; // moving-average window, "MATTRSET WINDOW"
    // "TIMINGLINES SUBTRACT": elapsed time counts from the timing line in
    // force at the start; off, it counts from 0:00 (the last time as written).
    bool subtractStartTime = true;
    CodeLists codeLists;

    // Standard word lists and the language set counted (0 primary, 1 first
    // alternate, 2 second alternate, 3 other). Null: word-list counts and
    // yes/no responses are not determined.
    const StandardWordLists* wordLists = nullptr;
    int wordListSet = 0;
    bool wordListsOnAnalysisSet = true; // "SWL ASET" / "SWL TOTAL"
    WordArea wordListArea = WordArea::MainBody;

    // Grammatical-category dictionary. Null: categories and verb measures missing.
    const GcDictionary* dictionary = nullptr;
    // Verb file. Null: a word the dictionary lacks is a verb only by its form.
    const VerbList* verbs = nullptr;

    // Utterance-length distribution: "DIST MORPH" / "DIST WORD", "DIST ASET" / "DIST TOTAL".
    bool distributionInMorphemes = false;
    bool distributionOnAnalysisSet = true;

    // Scoring templates read from the "+" lines (null: none), and the form of
    // the Subordination Index code ("[SI-2]").
    const TemplateSet* templates = nullptr;
    std::string siCodePrefix = std::string(kDefaultSiCodePrefix);
};

// Types and total of one standard word list or grammatical category.
struct WordCount {
    int types = 0;
    int total = 0;
    std::vector<std::string> words; // the different words found, in order of first use
};

inline constexpr int kWordListKinds = 20;
inline constexpr int kGrammaticalCategories = 23;
inline constexpr int kUtteranceLists = 21;

struct SpeakerMeasures {
    int speaker = 0; // 0 1st speaker, 1 2nd speaker
    std::array<Value, kMeasureCount> values{};

    const Value& operator[](MeasureId id) const { return values[static_cast<int>(id)]; }
    Value& operator[](MeasureId id) { return values[static_cast<int>(id)]; }
    // The value of an identifier or catalogue column name; null when unknown.
    const Value* find(std::string_view name) const;
    // The value in its report format ("   ---" when missing).
    std::string formatted(MeasureId id) const;

    // Tables, in the orders of kWordListKeys, the category table and kUtteranceListKeys.
    std::array<WordCount, kWordListKinds> wordLists{};
    std::array<WordCount, kGrammaticalCategories> categories{};
    std::array<std::vector<int>, kUtteranceLists> utteranceLists{}; // utterance indices

    // Macro analysis: the templates the transcript scores (1st speaker only)
    // and the Subordination Index codes of this speaker.
    std::vector<MacroScore> macro;
    SiSummary si;
    // A template by key ("NSS"), or null.
    const MacroScore* macroScore(std::string_view key) const;

    // Notes the reports print beside values.
    bool timingMissing = false;     // "Timing information was not provided."
    bool pausesUntimed = false;     // "Pauses were not timed."
    bool somePausesUntimed = false; // "Some pauses were not timed."
};

struct MeasureResult {
    std::array<SpeakerMeasures, 2> speakers;
    Selection selection;
    bool wordListsAvailable =
        false; // false: "Yes/no responses not determined - list not available."
    bool categoriesAvailable = false;
};

// The main speakers whose measure records are filled; a speaker left out
// keeps an empty record (a command that shows one speaker needs no more).
enum class MeasuredSpeakers { Both, First, Second };

MeasureResult computeMeasures(const SegmentedTranscript& transcript, const MeasureOptions& options,
                              MeasuredSpeakers which = MeasuredSpeakers::Both);

} // namespace tavi
