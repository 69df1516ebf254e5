// Choosing a transcript's peers in a reference database and reducing their
// measures to statistics: the selection record (database, target speaker,
// age span or range, grade, gender, subgroup, ethnicity, location, "+Select",
// equating, transcript cut, SD interval), its checks with the system's
// messages, the record test, sample-length equating, and the recalculation of
// every measure of each selected sample through the analysis session with
// the transcript's own analysis context.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "analysis/equating.h"
#include "analysis/peer_stats.h"
#include "base/progress.h"
#include "base/prompter.h"
#include "database/database_file.h"
#include "database/sd2.h"
#include "session/analysis_session.h"
#include "settings/settings.h"

namespace tavi::db {

inline constexpr std::string_view kAllValues = "<all>";
inline constexpr int kMinAgeSpan = 1;
inline constexpr int kMaxAgeSpan = 60;

enum class AgeCriterion { None, Span, Range };

struct PeerSelection {
    std::filesystem::path database; // empty: "Database: NONE"
    int speaker = 0;                // target speaker: 0 the 1st, 1 the 2nd
    AgeCriterion age = AgeCriterion::Span;
    int ageSpan = kDefaultAgeSpan; // months either side of the target's age
    std::string ageFrom, ageTo;    // an explicit range as typed: "7;3" or "7.25" (years)
    bool useGrade = false;
    std::string grade;
    bool useGender = false;
    std::string gender; // "M", "F" or "N"
    std::string subgroup{kAllValues};
    std::string ethnicity{kAllValues};
    std::string location{kAllValues};
    std::string select{kAllValues}; // "+Select"
    EquatingMethod equating = EquatingMethod::TotalWords;
    bool applyCut = false; // the transcript's cut applies to the samples too
    float sdInterval = kDefaultSdInterval;
};

// A new selection for a database: its age span from the database's header,
// the SD interval from the settings ("SDINT").
PeerSelection newPeerSelection(const std::filesystem::path& database,
                               const DescriptiveHeader& header, const Settings& settings);

// The target speaker as matching sees it.
struct PeerTarget {
    std::string name;   // the transcript's file name
    int ageMonths = -1; // -1: unknown
    std::int16_t gender = kGenderUnknown;
    std::string grade;
    bool secondSpeaker = false;
    TranscriptAmount amount; // of the analysed speaker, inside the transcript's cut
};

// The target from the transcript's lines and its analysis.
PeerTarget peerTarget(std::string name, const TranLines& lines, const TranscriptAnalysis& analysis,
                      const AnalysisContext& context);

// An age typed as years;months ("7;3") or decimal years ("7.25"), in years.
std::optional<float> parseAgeYears(std::string_view text);
// Years to months: years x 12 + 0.5, truncated.
int ageYearsToMonths(float years);
// "%d;%d".
std::string formatAgeMonths(int months);

struct AgeBounds {
    int low = 0;
    int high = 0;
};

// Checks the selection before it is used, saying the first failure through
// the prompter: "Missing database name", the span's range, the age range
// values, grade, gender, "Problem opening database file". A second speaker
// chosen for a transcript without one is reset with its message. A chosen
// gender other than the target's is warned about and kept.
bool checkPeerSelection(PeerSelection& selection, const PeerTarget& target, Prompter& prompter);

// The bounds of the age criterion (both included); nullopt when age is not
// a criterion or the target's age is unknown with a span.
std::optional<AgeBounds> ageBounds(const PeerSelection& selection, const PeerTarget& target);

// The record test, in order: subgroup, ethnicity, "+Select", location, age,
// grade, gender. The first criterion that fails rejects the record.
bool recordMatches(const sd2& record, const PeerSelection& selection,
                   const std::optional<AgeBounds>& bounds);

// "Age +/- 6 months (6;9 - 7;9), Grade 2, Female, Subgroup Demo": the
// criteria in use, for the selection and report headers.
std::string criteriaLine(const PeerSelection& selection, const PeerTarget& target);
// "Select Database Samples for %s" with the transcript's name.
std::string selectionTitle(std::string_view transcriptName);

// The speaker a stored sample was taken from: 0 the 1st, 1 the 2nd.
int sampleSpeaker(const sd2& record);

// Values of one sample per measure; NaN where the value is missing.
using SampleValues = std::array<float, kMeasureCount>;

// The recalculated values of samples, kept while the analysis that produced
// them stays the same: the options of the context (analysis set, word base,
// window, code lists, word lists, dictionary, date format) and the cut each
// sample speaker is analysed with (the equating cut). Another analysis empties it.
class PeerValueCache {
public:
    struct Key {
        AnalysisSet analysisSet;
        WordBase wordBase;
        std::array<TranscriptCut, 2> cuts; // for samples of the 1st and the 2nd speaker
        int window = 0;
        CodeLists codeLists;
        const void* wordLists = nullptr;
        int wordListSet = 0;
        bool wordListsOnAnalysisSet = true;
        WordArea wordListArea = WordArea::MainBody;
        const void* dictionary = nullptr;
        bool distributionInMorphemes = false;
        bool distributionOnAnalysisSet = true;
        DateOrder dateOrder = DateOrder::MonthDayYear;
        std::string dateKeywords;

        bool operator==(const Key&) const = default;
    };
    static Key keyOf(const std::array<AnalysisContext, 2>& contexts);

    // Makes `key` the analysis in force, forgetting values of another.
    void use(const Key& key);
    const SampleValues* find(std::int64_t dataPosition) const;
    void store(std::int64_t dataPosition, const SampleValues& values);
    std::size_t size() const { return values_.size(); }

private:
    std::optional<Key> key_;
    std::unordered_map<std::int64_t, SampleValues> values_;
};

// A database read once for matching: its records and, as they are needed,
// the stored transcripts and the samples' recalculated values.
class PeerDatabase {
public:
    // Opens the database for reading and reads its records; null after the
    // message when it cannot be used.
    static std::unique_ptr<PeerDatabase> open(const std::filesystem::path& path,
                                              Prompter& prompter);

    const std::string& name() const { return database_->name(); }
    const DescriptiveHeader& info() const { return database_->info(); }
    const std::vector<sd2>& records() const { return records_; }
    // The stored transcript of record `index`; null after the message when
    // it cannot be read.
    const std::string* transcript(std::size_t index, Prompter& prompter);
    PeerValueCache& cache() { return cache_; }

private:
    std::unique_ptr<Database> database_;
    std::vector<sd2> records_;
    std::vector<std::optional<std::string>> texts_;
    PeerValueCache cache_;
};

// The matched samples: indices into the database's records.
struct SampleMatch {
    int records = 0;
    std::vector<std::size_t> selected;
    std::array<int, 4> genderCounts{}; // unknown, male, female, non-binary
    DatabaseTiming timing = DatabaseTiming::All;
};

// Walks the records with the record test, leaving out the keys in `exclude`.
// "Empty database" or "No samples match the criteria you selected." when
// nothing is selected (nullopt).
std::optional<SampleMatch> matchSamples(const PeerDatabase& database,
                                        const PeerSelection& selection, const PeerTarget& target,
                                        const std::vector<std::string>& exclude, Prompter& prompter,
                                        Progress& progress);

// The equating actually used: the chosen method when it can be used; an
// elapsed-time choice that cannot is reset with its message, another with its
// "NOT AVAILABLE" text; when no method can be used, "No methods available -
// using all matched samples". A note is said when only some samples are timed.
EquatingMethod resolveEquating(EquatingMethod chosen, const TranscriptAmount& amount,
                               DatabaseTiming timing, Prompter& prompter);

// Recalculates every measure of each selected sample: the stored transcript
// analysed through the session with `context`, its cut replaced by the
// equating cut, for the sample's own speaker. Samples are analysed on
// `threads` threads; their values are summed in selection order. Values
// the database's cache holds for the same analysis are not recalculated.
std::optional<std::vector<SampleValues>>
peerSampleValues(PeerDatabase& database, const SampleMatch& match, const AnalysisContext& context,
                 EquatingMethod equating, const TranscriptAmount& amount, bool applyCut,
                 Prompter& prompter, Progress& progress, int threads = 2);

// dbstat over the samples' values, one entry per measure.
std::array<PeerStat, kMeasureCount> peerStatistics(const std::vector<SampleValues>& values);

// Everything a comparing report needs: where the numbers come from and the
// statistics.
struct PeerSnapshot {
    std::string database; // file name
    std::string context;  // the database's sampling context
    std::string criteria;
    int records = 0;
    int selected = 0;
    std::array<int, 4> genderCounts{};
    EquatingMethod equating = EquatingMethod::EntireTranscript;
    std::string equatingText; // the option text of the method used
    float sdInterval = kDefaultSdInterval;
    std::array<PeerStat, kMeasureCount> stats{};
    std::vector<std::string> keys; // the selected records' keys
    // The selected samples one by one, for graphs and the explore reports:
    // their indices into the database's records, their values (in the same
    // order) and the transcript amount and cut choice the equating used.
    std::vector<std::size_t> selectedRecords;
    std::vector<SampleValues> sampleValues;
    TranscriptAmount amount;
    bool applyCut = false;

    // The comparison of a transcript value with measure `id`'s statistics.
    std::optional<PeerComparison> compare(MeasureId id, std::optional<double> value) const;
    // "Database: %s     Sampling context: %s".
    std::string databaseLine() const;
    // "%d/%d samples selected".
    std::string countLine() const;
    // Where the numbers come from, for a report's header or footer: "TAVI"
    // with the program version and `date`, the database line, "SELECT
    // DATABASE SAMPLES - " with the criteria, the count line, the equating
    // used and "SD interval: " with the interval.
    std::vector<std::string> sourceLines(std::string_view date) const;
};

// Matching, equating and statistics in one call, saying every problem through
// the prompter; nullopt when the comparison cannot be made.
std::optional<PeerSnapshot> comparePeers(PeerDatabase& database, PeerSelection& selection,
                                         const PeerTarget& target, const AnalysisContext& context,
                                         const std::vector<std::string>& exclude,
                                         Prompter& prompter, Progress& progress);

} // namespace tavi::db
