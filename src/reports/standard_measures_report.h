// The Standard Measures Report: the measures of one speaker of one
// transcript in eight fixed sections, analysis-set measures marked "# ".
// The user chooses which of its 36 lines are printed; the same order is the
// order of the report's columns in the rectangular data file.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/peer_stats.h"
#include "reports/labels.h"
#include "reports/measure_source.h"
#include "reports/report.h"
#include "reports/report_header.h"

namespace tavi {

inline constexpr size_t kSmrLineCount = 36;

enum class SmrValueKind { Count, Mean, Percent, ElapsedTime };

// One line of the report: the measure it prints and how.
struct SmrLineDef {
    std::string_view measureId; // e.g. "MLUw"
    std::string_view labelKey;  // e.g. "RL_MLUW"
    std::string_view suffixKey; // a second label joined with a blank ("Moving-Average NTW")
    bool percentOfLabel;        // printed as "% " + label
    bool analysisSet;           // computed over analysis-set utterances: marked "# "
    SmrValueKind kind;
};

struct SmrSectionDef {
    std::string_view titleKey;
    size_t firstLine;
    size_t lineCount;
};

const std::array<SmrLineDef, kSmrLineCount>& smrLines();
const std::array<SmrSectionDef, 8>& smrSections();

// The dialog "Standard Measures Report Variables": one choice per line.
struct SmrVariables {
    std::array<bool, kSmrLineCount> chosen{};

    // The built-in choice ("&Reset"): every line except the scoring-scheme
    // composites (macro analysis and the SI score), which need scored transcripts.
    static SmrVariables defaults();
    void reset() { *this = defaults(); }
    void selectAll() { chosen.fill(true); }
    bool operator==(const SmrVariables&) const = default;
};

// The lines to print for one transcript: the chosen ones, plus the macro
// analysis lines and the SI score whenever the transcript holds their scored
// lines or codes.
SmrVariables smrVariablesFor(const SmrVariables& chosen, const MeasureSource& measures);

// The prefix of a line: "# " for analysis-set measures, two blanks otherwise.
std::string_view smrLinePrefix(const SmrLineDef& line);

// A measure's database columns: the mean and SD of the matched samples and
// whether the transcript's value lies at or beyond the SD interval; the
// database reports also print the smallest and largest sample value, the
// number of samples that gave one, the direction of a difference and the
// transcript's own value.
struct SmrDatabaseColumn {
    double mean = 0.0;
    std::optional<double> sd; // empty for measures that carry none
    bool differs = false;
    double min = 0.0;
    double max = 0.0;
    int n = 0;
    PeerStanding standing = PeerStanding::Comparable; // Above or Below when it differs
    std::optional<double> value;                      // the transcript's value
};
using SmrDatabaseSource = std::function<std::optional<SmrDatabaseColumn>(std::string_view id)>;

// The comparison with a database: its columns per measure, the lines that
// say where the numbers come from (printed in the header) and the SD
// interval the mark stands for.
struct SmrDatabase {
    SmrDatabaseSource columns;
    std::vector<std::string> sourceLines;
    std::string sdInterval; // as printed, e.g. "1"
    // Columns of things that are not measures ("word:dog", "plus:Score"),
    // counted in the transcript and the samples for the explore reports.
    std::function<std::optional<SmrDatabaseColumn>(std::string_view key)> extra;
};

// The mark beside a value at or beyond the SD interval.
inline constexpr std::string_view kSmrDifferenceMark = "*";

// The report compared with a database: each value followed by the database
// mean and SD ("(%s)     %0.2f     %0.2f") and the mark when it differs;
// the legend is a footnote.
Report buildStandardMeasuresReport(const TranscriptReportContext& context,
                                   const MeasureSource& measures, const SmrVariables& variables,
                                   const LabelSource& labels, const SmrDatabase& database);

// Builds the report. `databaseMeans`, when given, adds each measure's
// database mean beside its value ("(%s)     %0.2f").
Report buildStandardMeasuresReport(const TranscriptReportContext& context,
                                   const MeasureSource& measures, const SmrVariables& variables,
                                   const LabelSource& labels,
                                   const MeasureSource& databaseMeans = nullptr);

} // namespace tavi
