// Explore criteria: which utterances of a transcript a search finds. Each
// chosen criterion (an utterance type, the length, the word items, the code
// items) tests an utterance; they are joined all with AND or all with OR, and
// the outcome may be reversed (NOT). The criteria are kept in the settings
// sections "YOL" (one transcript) and "EMULT" (many transcripts), their item
// lists in "YOLIST" and "EMULTLIST", and in word list files ("*.LST").
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "settings/keyword_file.h"

namespace tavi {

// The utterance types a search can ask for, numbered as "WBSUT n" stores them.
enum class ExploreType {
    Statement = 0,    // "."
    Exclamation = 1,  // "!"
    Question = 2,     // "?"
    Prompt = 3,       // "~"
    Abandoned = 4,    // ">"
    Interrupted = 5,  // "^"
    RespQuestion = 6, // Q
    RespYesNo = 7,    // Y
    RespPrompt = 8,   // P
    Imitation = 9,    // I
    OneWord = 10,     // O
    Unintelligible = 11,
    PartlyIntelligible = 12,
    Nonverbal = 13,
    Maze = 14,     // narrowed by the maze kinds when any is chosen
    Pause = 15,    // a pause inside the utterance
    Omission = 16, // an omitted word, bound morpheme or clitic
};
inline constexpr int kExploreTypes = 17;

// The name of a type as the command line and the list report spell it
// ("question", "resp-question", "maze"), and back.
std::string_view exploreTypeName(ExploreType type);
std::optional<ExploreType> exploreTypeByName(std::string_view name);

enum class ExploreSpeaker { First, Second, Either };                 // "EITHER"
enum class ExploreUtterances { Total, AnalysisSet, NonAnalysisSet }; // "TOTAL", "ASET", "NONASET"
enum class ExploreArea { MainBody, Mazes, Both };                    // "MBODY", "MAZE", "MBMAZE"
enum class ExploreRoots { Produced, Identified, Either }; // "RIDPROD", "RIDIDEN", "RIDEITHER"
enum class ExploreCodes { Word, Utterance, Either };      // "WCODE", "UCODE", "WORDUTT"

struct ExploreCriteria {
    ExploreSpeaker speaker = ExploreSpeaker::First;
    ExploreUtterances utterances = ExploreUtterances::Total;
    ExploreArea area = ExploreArea::MainBody;
    ExploreRoots roots = ExploreRoots::Produced;
    ExploreCodes codes = ExploreCodes::Either;
    bool all = false;               // "WBSUT_AND": every criterion; else "WBSUT_OR": any
    bool negate = false;            // "WBSUT_NOT_YES"
    std::set<ExploreType> types;    // "WBSUT n"
    bool mazeFilledPauses = false;  // "MZFP_YES"
    bool mazeRepetitions = false;   // "MZREP_YES"
    bool mazeRevisions = false;     // "MZREV_YES"
    int lengthFrom = 0;             // "WBLENFROM"; 0 with lengthTo 0: no length criterion
    int lengthTo = 0;               // "WBLENTO"; 0: no upper bound
    bool lengthInMorphemes = false; // "WB_MRPHLEN" (else "WB_WDLEN")
    std::vector<std::string> items; // words ("go*") and codes ("[EW*]")

    bool hasLength() const { return lengthFrom > 0 || lengthTo > 0; }
    // The word items and the code items (without brackets) of `items`.
    std::vector<std::string> wordItems() const;
    std::vector<std::string> codeItems() const;
    // How many criteria take part; none means every utterance is found.
    int criterionCount() const;

    bool operator==(const ExploreCriteria&) const = default;
};

// An item matches a text when they are equal without regard to case; a "*"
// at the start or the end of the item stands for any run of characters.
bool exploreItemMatches(std::string_view item, std::string_view text);

// The lines of the criteria section ("YOL" or "EMULT"), each beginning with
// the keyword, and of its item list ("YOLIST" or "EMULTLIST").
std::vector<std::string> exploreCriteriaLines(std::string_view keyword,
                                              const ExploreCriteria& criteria);
std::vector<std::string> exploreItemLines(std::string_view listKeyword,
                                          const ExploreCriteria& criteria);
// Applies the lines of both sections; lines of other keywords are ignored.
void applyExploreCriteriaLine(const KeywordLine& line, ExploreCriteria& criteria);
void applyExploreItemLine(const KeywordLine& line, ExploreCriteria& criteria);
// The list keyword that goes with a criteria keyword: "YOL" -> "YOLIST".
std::string exploreListKeyword(std::string_view keyword);

// A word list file: one item per line, blank lines and lines beginning with
// ";" skipped, blanks around items dropped.
std::vector<std::string> parseWordListFile(std::string_view text);
// The file's text for a list of items, one a line.
std::string wordListFileText(const std::vector<std::string>& items);

} // namespace tavi
