// The table of reports. Each builder turns the shared inputs into one report;
// the builders themselves live beside the report they make.
#include "reports/report_registry.h"

#include <algorithm>
#include <array>

#include "reports/macro_report.h"
#include "reports/utterance_types_report.h"

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
    // Lists and tables of words, morphemes and codes of the Analyze menu.
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
