// The table of reports. Each builder turns the shared inputs into one report;
// the builders themselves live beside the report they make.
#include "reports/report_registry.h"

#include <algorithm>
#include <array>

#include "reports/code_summary_report.h"
#include "reports/custom_report.h"
#include "reports/db_custom_report.h"
#include "reports/db_summary_reports.h"
#include "reports/discourse_summary_report.h"
#include "reports/errors_summary_report.h"
#include "reports/explore_db_reports.h"
#include "reports/macro_report.h"
#include "reports/maze_distribution_report.h"
#include "reports/quick_look_report.h"
#include "reports/semantics_summary_report.h"
#include "reports/syntax_summary_report.h"
#include "reports/table_reports.h"
#include "reports/turn_distribution_report.h"
#include "reports/utterance_distribution_report.h"
#include "reports/utterance_types_report.h"
#include "reports/verbal_facility_report.h"

namespace tavi {

namespace {

Report standardMeasures(const ReportInputs& in) {
    const SmrVariables shown = smrVariablesFor(in.choices.smrVariables, in.values);
    if (in.database)
        return buildStandardMeasuresReport(in.context, in.values, shown, in.labels, *in.database);
    return buildStandardMeasuresReport(in.context, in.values, shown, in.labels);
}

Report utteranceTypes(const ReportInputs& in) {
    return buildUtteranceTypesReport(in.context, in.values, in.labels);
}

PerformanceInputs performanceFrom(const ReportInputs& in) {
    static const TranLines kNoLines;
    PerformanceInputs inputs = performanceInputs(in.analysis, in.lines ? *in.lines : kNoLines);
    if (in.performancePeers)
        inputs.peers = *in.performancePeers;
    return inputs;
}

Report performance(const ReportInputs& in) {
    return buildPerformanceReport(performanceFrom(in));
}

Report goalBank(const ReportInputs& in) {
    return buildGoalBank(performanceFrom(in));
}

template <char... K> Report scoringTemplate(const ReportInputs& in) {
    static constexpr char kKey[] = {K..., '\0'};
    return buildTemplateReport(kKey, in.context, in.analysis.measures(), in.labels, in.database);
}

Report subordinationIndex(const ReportInputs& in) {
    return buildSubordinationIndexReport(in.context, in.analysis.measures(), in.labels,
                                         in.database);
}

using enum ReportKind;

// clang-format off
constexpr std::array kReports{
    ReportDefinition{"smr", "Standard Measures Report", "ID_ANAL_SMR", RichText, standardMeasures,
                     false, DatabaseUse::Optional},
    ReportDefinition{"types", "Summary of Utterance Types", "ID_ANAL_UTT_TYPES", Grid, utteranceTypes},
    ReportDefinition{"performance", "Performance Report", "ID_ANAL_PERF", RichText, performance,
                     true, DatabaseUse::Optional},
    // Without a database the goal bank lists the goals with their targets open.
    ReportDefinition{"goals", "Goal Bank", "ID_DB_GOALS", RichText, goalBank, true,
                     DatabaseUse::Optional},
    // Summaries and distribution tables of the Analyze menu.
    ReportDefinition{"syntax-summary", "Syntax/Morphology Summary", "ID_ANAL_SYNTAX", RichText,
                     buildSyntaxSummaryReport},
    ReportDefinition{"utterance-distribution", "Utterance Distribution Tables", "ID_ANAL_DIST",
                     Grid, buildUtteranceDistributionReport},
    ReportDefinition{"semantics-summary", "Semantics Summary", "ID_ANAL_SEMANTICS", RichText,
                     buildSemanticsSummaryReport},
    ReportDefinition{"discourse-summary", "Discourse Summary", "ID_ANAL_DISCOURSE", RichText,
                     buildDiscourseSummaryReport},
    ReportDefinition{"turn-distribution", "Turn Length Distribution Tables", "ID_ANAL_TURNS", Grid,
                     buildTurnDistributionReport},
    ReportDefinition{"verbal-facility", "Verbal Facility Summary", "ID_ANAL_FACILITY", RichText,
                     buildVerbalFacilityReport},
    ReportDefinition{"maze-distribution", "Maze Distribution Tables", "ID_ANAL_MAZES", Grid,
                     buildMazeDistributionReport},
    ReportDefinition{"errors-summary", "Errors Summary", "ID_ANAL_ERRORS", RichText,
                     buildErrorsSummaryReport},
    ReportDefinition{"code-summary", "Code Summary", "ID_ANAL_CODES", RichText,
                     buildCodeSummaryReport},
    // The contents page; the front ends add the chosen reports behind it.
    ReportDefinition{"custom-pdf", "Create Customized PDF Report", "ID_ANAL_CUSTOM_PDF", RichText,
                     buildCustomContents, true, DatabaseUse::Optional},
    // Lists and tables of words, morphemes and codes of the Analyze menu.
    ReportDefinition{"utterance-lists", "Standard Utterance Lists", "ID_ANAL_SUL", RichText,
                     buildUtteranceListsReport, true},
    ReportDefinition{"bound-morphemes", "Bound Morpheme Tables", "ID_ANAL_BM", Grid,
                     buildBoundMorphemeTable},
    ReportDefinition{"bound-clitics", "Bound Clitic Tables", "ID_ANAL_CLITIC", Grid,
                     buildBoundCliticTable},
    ReportDefinition{"word-roots", "Word Root Tables", "ID_ANAL_WR", Grid, buildWordRootTable},
    ReportDefinition{"word-lists", "Standard Word Lists", "ID_ANAL_SWL", Grid, buildWordListReport},
    ReportDefinition{"grammatical-categories", "Grammatical Categories", "ID_ANAL_GC", Grid,
                     buildGrammaticalCategoryReport},
    ReportDefinition{"category-lists", "Grammatical Category Lists", "ID_ANAL_GCL", RichText,
                     buildCategoryListReport},
    ReportDefinition{"omissions-errors", "Omissions and Error Codes", "ID_ANAL_OMITERR", RichText,
                     buildOmissionsErrorsReport, true},
    ReportDefinition{"word-codes", "Word Code Tables", "ID_ANAL_WC", Grid, buildWordCodeTable},
    ReportDefinition{"utterance-codes", "Utterance Code Tables", "ID_ANAL_UC", Grid,
                     buildUtteranceCodeTable},
    ReportDefinition{"fluency-codes", "Fluency Codes and Behaviors", "ID_ANAL_FLUENCY", RichText,
                     buildFluencyCodesReport, true},
    ReportDefinition{"nonmainstream-codes", "Nonmainstream-form Codes", "ID_ANAL_NONMAINSTREAM",
                     RichText, buildNonmainstreamCodesReport, true},
    ReportDefinition{"code-switch-codes", "Code-switch Codes", "ID_ANAL_CODESWITCH", RichText,
                     buildCodeSwitchCodesReport, true},
    // Macro analysis: scoring schemes, questions, Subordination Index.
    ReportDefinition{"nss", "Narrative Scoring Scheme", "ID_ANAL_NSS", RichText, scoringTemplate<'N', 'S', 'S'>},
    ReportDefinition{"ess", "Expository Scoring Scheme", "ID_ANAL_ESS", RichText, scoringTemplate<'E', 'S', 'S'>},
    ReportDefinition{"pss", "Persuasion Scoring Scheme", "ID_ANAL_PSS", RichText, scoringTemplate<'P', 'S', 'S'>},
    ReportDefinition{"onq", "Oral Narrative Quality", "ID_ANAL_ONQ", RichText, scoringTemplate<'O', 'N', 'Q'>},
    ReportDefinition{"questions", "Comprehension Questions", "ID_ANAL_CQ", RichText, scoringTemplate<'C', 'Q'>},
    ReportDefinition{"onc", "Oral Narrative Comprehension", "", RichText, scoringTemplate<'O', 'N', 'C'>},
    ReportDefinition{"si", "Subordination Index", "ID_ANAL_SI", RichText, subordinationIndex},
    ReportDefinition{"db-nss", "Database Narrative Scoring Scheme", "ID_DB_NSS", RichText, scoringTemplate<'N', 'S', 'S'>, false, DatabaseUse::Required},
    ReportDefinition{"db-ess", "Database Expository Scoring Scheme", "ID_DB_ESS", RichText, scoringTemplate<'E', 'S', 'S'>, false, DatabaseUse::Required},
    ReportDefinition{"db-pss", "Database Persuasion Scoring Scheme", "ID_DB_PSS", RichText, scoringTemplate<'P', 'S', 'S'>, false, DatabaseUse::Required},
    ReportDefinition{"db-onq", "Database Oral Narrative Quality", "ID_DB_ONQ", RichText, scoringTemplate<'O', 'N', 'Q'>, false, DatabaseUse::Required},
    ReportDefinition{"db-questions", "Database Comprehension Questions", "ID_DB_CQ", RichText, scoringTemplate<'C', 'Q'>, false, DatabaseUse::Required},
    ReportDefinition{"db-si", "Database Subordination Index", "ID_DB_SI", RichText, subordinationIndex, false, DatabaseUse::Required},
    // Reports against a database (the Database menu).
    ReportDefinition{"quick-look", "Quick Look", "ID_DB_QUICK", RichText, buildQuickLookReport,
                     false, DatabaseUse::Required},
    ReportDefinition{"length-intelligibility", "Transcript Length & Intelligibility",
                     "ID_DB_LENGTH", RichText, buildDbLengthReport, false, DatabaseUse::Required},
    ReportDefinition{"db-syntax-summary", "Syntax/Morphology Summary (database)", "ID_DB_SYNTAX",
                     RichText, buildDbSyntaxReport, false, DatabaseUse::Required},
    ReportDefinition{"db-utterance-distribution", "Utterance Distribution Tables (database)",
                     "ID_DB_DIST", RichText, buildDbDistributionReport, false,
                     DatabaseUse::Required},
    ReportDefinition{"db-semantics-summary", "Semantics Summary (database)", "ID_DB_SEMANTICS",
                     RichText, buildDbSemanticsReport, false, DatabaseUse::Required},
    ReportDefinition{"db-grammatical-categories", "Grammatical Categories (database)", "ID_DB_GC",
                     RichText, buildDbCategoriesReport, false, DatabaseUse::Required},
    ReportDefinition{"db-discourse-summary", "Discourse Summary (database)", "ID_DB_DISCOURSE",
                     RichText, buildDbDiscourseReport, false, DatabaseUse::Required},
    ReportDefinition{"db-turn-distribution", "Turn Length Distribution Tables (database)",
                     "ID_DB_TURNS", RichText, buildDbTurnsReport, false, DatabaseUse::Required},
    ReportDefinition{"db-facility-summary", "Verbal Facility Summary (database)", "ID_DB_FACILITY",
                     RichText, buildDbFacilityReport, false, DatabaseUse::Required},
    ReportDefinition{"db-maze-distribution", "Maze Distribution Tables (database)", "ID_DB_MAZES",
                     RichText, buildDbMazesReport, false, DatabaseUse::Required},
    ReportDefinition{"db-errors-summary", "Errors Summary (database)", "ID_DB_ERRORS", RichText,
                     buildDbErrorsReport, false, DatabaseUse::Required},
    ReportDefinition{"explore-words-codes", "Explore Words & Codes", "ID_DB_EXPLORE_WC",
                     RichText, buildExploreWordsCodesReport, false, DatabaseUse::Required},
    ReportDefinition{"explore-plus-lines", "Explore Plus Line Values", "ID_DB_EXPLORE_PLUS",
                     RichText, buildExplorePlusLinesReport, false, DatabaseUse::Required},
    ReportDefinition{"db-custom-pdf", "Customized Database Report", "ID_DB_CUSTOM_PDF", RichText,
                     buildDbCustomReport, true, DatabaseUse::Required},
};
// clang-format on

} // namespace

std::span<const ReportDefinition> reportDefinitions() {
    return kReports;
}

const ReportDefinition* findReport(std::string_view name) {
    auto it = std::ranges::find(kReports, name, &ReportDefinition::name);
    return it == kReports.end() ? nullptr : &*it;
}

const ReportDefinition* findReportByCommand(std::string_view commandId) {
    if (commandId.empty())
        return nullptr;
    auto it = std::ranges::find(kReports, commandId, &ReportDefinition::commandId);
    return it == kReports.end() ? nullptr : &*it;
}

std::string reportNames() {
    std::string names;
    for (const ReportDefinition& report : kReports)
        names += (names.empty() ? "" : ", ") + std::string(report.name);
    return names;
}

} // namespace tavi
