// Every report a single transcript can be turned into, in one table: the name
// the command line uses (`tavi report NAME`), the menu command that opens it
// in the desktop program, its form (rich text, or a grid of counts saved as
// CSV by default) and the function that builds it. The command line, the
// desktop program and the customised PDF all walk this table, so a report
// added here is reachable from every front end at once.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reports/labels.h"
#include "reports/measure_source.h"
#include "reports/performance_report.h"
#include "reports/report.h"
#include "reports/report_header.h"
#include "reports/save_state.h"
#include "reports/standard_measures_report.h"
#include "session/analysis_session.h"
#include "settings/settings.h"
#include "transcript/tran_line.h"

namespace tavi {

// What a report's dialog or command-line flags choose besides the speaker.
struct ReportChoices {
    SmrVariables smrVariables = SmrVariables::defaults();
    std::vector<std::string> utteranceLists; // list keys ("PQUES"); empty: every list
    bool sortAlphabetically = false;         // tables of words: by frequency otherwise
    bool includeMazes = false;               // word roots: main body and mazes
    std::vector<std::string> kinds;          // the customised PDF: the reports it holds
    std::vector<std::string> exploreItems;   // explore words & codes: "dog", "go*", "[EW]"
    std::vector<std::string> plusLines;      // explore plus lines: keywords; empty: every one
};

// Everything a report builder reads. The header context is filled for the
// analysed speaker; `values` reads that speaker's measure record.
struct ReportInputs {
    const TranscriptAnalysis& analysis;
    const Settings& settings;
    const TranscriptReportContext& context;
    const LabelSource& labels;
    const MeasureSource& values;
    const ReportChoices& choices;
    const TranLines* lines = nullptr;                   // the transcript's lines, when known
    const SmrDatabase* database = nullptr;              // a database comparison, when asked for
    const PerformancePeers* performancePeers = nullptr; // the same, as sentences need it
};

using ReportBuilder = Report (*)(const ReportInputs&);

// Whether a report compares with a reference database: never (a database
// offered is refused), when one is given, or only against one.
enum class DatabaseUse { None, Optional, Required };

struct ReportDefinition {
    std::string_view name;      // "syntax-summary"
    std::string_view title;     // "Syntax/Morphology Summary"
    std::string_view commandId; // the desktop menu command, "ID_ANAL_SYNTAX"; may be empty
    ReportKind form;            // RichText, or Grid for tables of counts
    ReportBuilder build;
    bool needsLines = false; // reads the transcript's header lines
    DatabaseUse database = DatabaseUse::None;
};

// Every report, in menu order.
std::span<const ReportDefinition> reportDefinitions();
// The report of a command-line name, or null.
const ReportDefinition* findReport(std::string_view name);
// The report a desktop menu command opens, or null.
const ReportDefinition* findReportByCommand(std::string_view commandId);
// The names joined with ", ", for usage messages.
std::string reportNames();

} // namespace tavi
