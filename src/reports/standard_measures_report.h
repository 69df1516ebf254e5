// The Standard Measures Report: the measures of one speaker of one
// transcript in eight fixed sections, analysis-set measures marked "# ".
// The user chooses which of its 36 lines are printed; the same order is the
// order of the report's columns in the rectangular data file.
#pragma once

#include <array>
#include <optional>
#include <string_view>

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

// The prefix of a line: "# " for analysis-set measures, two blanks otherwise.
std::string_view smrLinePrefix(const SmrLineDef& line);

// Builds the report. `databaseMeans`, when given, adds each measure's
// database mean beside its value ("(%s)     %0.2f").
Report buildStandardMeasuresReport(const TranscriptReportContext& context,
                                   const MeasureSource& measures, const SmrVariables& variables,
                                   const LabelSource& labels,
                                   const MeasureSource& databaseMeans = nullptr);

} // namespace tavi
