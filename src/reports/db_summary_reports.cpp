// The measure lists of the database summaries and distribution tables.
#include "reports/db_summary_reports.h"

#include "reports/db_comparison_report.h"

namespace tavi {

namespace {

// Rows "prefix1" .. "prefixN" labelled "1" .. "N", then the total row.
std::vector<DbLine> distributionRows(const std::string& prefix, int first, int last,
                                     const std::string& totalId) {
    std::vector<DbLine> rows;
    for (int i = first; i <= last; ++i)
        rows.push_back({prefix + std::to_string(i), std::to_string(i)});
    rows.push_back({totalId, "Total"});
    return rows;
}

// The Tot/Typ pair of each category of grammatical categories.
struct Category {
    const char* stem;
    const char* label;
};
constexpr Category kCategories[] = {
    {"GC_Init", "Initiators"},
    {"GC_Det", "Determiners"},
    {"GC_Adj", "Adjectives"},
    {"GC_Noun", "Nouns"},
    {"GC_PersPrn", "Personal pronouns"},
    {"GC_OthrPrn", "Other pronouns"},
    {"GC_AuxMod", "Auxiliaries and modals"},
    {"GC_AuxOp", "Auxiliary operators"},
    {"GC_Verb", "Verbs"},
    {"GC_Copula", "Copulas"},
    {"GC_VerbPartcl", "Verb particles"},
    {"GC_Adv", "Adverbs"},
    {"GC_Intense", "Intensifiers"},
    {"GC_Prep", "Prepositions"},
    {"GC_Exist", "Existentials"},
    {"GC_Ques", "Question words"},
    {"GC_Coord", "Coordinating conjunctions"},
    {"GC_Sub", "Subordinating conjunctions"},
    {"GC_Inf", "Infinitive markers"},
    {"GC_Poss", "Possessives"},
    {"GC_Neg", "Negatives"},
    {"GC_Let", "Let"},
    {"GC_Intj", "Interjections"},
};

std::vector<DbLine> categoryRows(const char* suffix) {
    std::vector<DbLine> rows;
    for (const Category& c : kCategories)
        rows.push_back({std::string(c.stem) + suffix, c.label});
    return rows;
}

DbSummary DbLengthSummary() {
    return DbSummary{"Database Transcript Length and Intelligibility Summary",
                     {{"TRANSCRIPT LENGTH",
                       {{"TotNumUt", "RL_NUMUTTT"},
                        {"TotASetUt", "RL_NUMUTTA"},
                        {"TotVerbalUt", "Verbal utterances"},
                        {"NonVerbalUt", "Nonverbal utterances"},
                        {"AllWords", "RL_ALLWDSINCLMZ"},
                        {"NTW", "RL_NTW"},
                        {"TimeMin", "Elapsed time (minutes)"}}},
                      {"INTELLIGIBILITY",
                       {{"UnintelUt", "Unintelligible utterances"},
                        {"PartIntelUt", "Partly intelligible utterances"},
                        {"%IntelUt", "RL_PCINTEL"},
                        {"%IntelWd", "RL_PCINTELWDS"}}}}};
}

DbSummary DbSyntaxSummary() {
    return DbSummary{"Database Syntax/Morphology Summary",
                     {{"SYNTAX/MORPHOLOGY",
                       {{"MLUw", "RL_MLUW"},
                        {"MLUm", "RL_MLUM"},
                        {"MLUwTot", "MLU in words, all utterances"},
                        {"MLUmTot", "MLU in morphemes, all utterances"},
                        {"%UtWVerb", "RL_GCPCVERBS"},
                        {"VPU", "RL_GCVERBS"},
                        {"%UtWNMForms", "RL_PCNMFC"},
                        {"UttWithNMForms", "Utterances with non-standard forms"},
                        {"BoundMorphs", "Bound morphemes"},
                        {"BoundClitics", "Bound clitics"},
                        {"OneWdUt", "One-word utterances"}}},
                      {"OMISSIONS",
                       {{"OmitWd", "Omitted words"},
                        {"OmitBm", "Omitted bound morphemes"},
                        {"OmitCl", "Omitted clitics"}}}}};
}

DbSummary DbDistributionSummary() {
    return DbSummary{
        "Database Utterance Distribution Tables",
        {{"ANALYSIS-SET UTTERANCES BY LENGTH", distributionRows("UtbyUL", 0, 15, "UtbyULTot")}}};
}

DbSummary DbSemanticsSummary() {
    return DbSummary{"Database Semantics Summary",
                     {{"SEMANTICS",
                       {{"NTW", "RL_NTW"},
                        {"NDW", "RL_NDW"},
                        {"TTR", "Type Token Ratio"},
                        {"DiffBM", "Different bound morphemes"},
                        {"MA_NTW", "Moving-Average NTW"},
                        {"MA_NDW", "Moving-Average NDW"},
                        {"MA_TTR", "Moving-Average TTR"}}},
                      {"WORD LISTS (TOKENS)",
                       {{"QuesTot", "Question words"},
                        {"NegTot", "Negatives"},
                        {"ConjTot", "Conjunctions"},
                        {"CoreModalTot", "Core modals"},
                        {"MarModalTot", "Marginal modals"},
                        {"PersPrnTot", "Personal pronouns"},
                        {"PossPrnTot", "Possessive pronouns"},
                        {"ReflPrnTot", "Reflexive pronouns"},
                        {"DemoPrnTot", "Demonstrative pronouns"},
                        {"RelPrnTot", "Relative pronouns"}}}}};
}

DbSummary DbCategoriesSummary() {
    return DbSummary{"Database Grammatical Categories",
                     {{"TOKENS", categoryRows("Tot")}, {"TYPES", categoryRows("Typ")}}};
}

DbSummary DbDiscourseSummary() {
    return DbSummary{"Database Discourse Summary",
                     {{"TURNS",
                       {{"MeanTurnUt", "Mean turn length (utterances)"},
                        {"MeanTurnWd", "Mean turn length (words)"},
                        {"MedTurnUt", "Median turn length (utterances)"},
                        {"MedTurnWd", "Median turn length (words)"}}},
                      {"RESPONSES",
                       {{"%RespQues", "RL_PCRQU"},
                        {"%RespToIntPrmpt", "% Responses to intonational prompts"},
                        {"Imitations", "Imitations"},
                        {"SponUt", "Spontaneous utterances"}}},
                      {"OVERLAPS AND INTERRUPTIONS",
                       {{"%UtWOverlap", "RL_PCULOV"},
                        {"%IntrOthSpk", "RL_PCINTROS"},
                        {"%WdsMention1st", "% Words mentioned first"}}}}};
}

DbSummary DbTurnsSummary() {
    return DbSummary{
        "Database Turn Length Distribution Tables",
        {{"TURNS BY LENGTH IN UTTERANCES", distributionRows("TurnByTLUt", 1, 6, "TurnByTLUtTot")},
         {"TURNS BY LENGTH IN WORDS", distributionRows("TurnByTLWd", 0, 15, "TurnByTLWdTot")}}};
}

DbSummary DbFacilitySummary() {
    return DbSummary{"Database Verbal Facility Summary",
                     {{"RATE AND PAUSES",
                       {{"WPM", "RL_RPWDPERMIN"},
                        {"UtPerMin", "Utterances per minute"},
                        {"%PauseTime", "RL_PCPZTIME"},
                        {"AvgPauseWiUt", "Mean pause within utterances (s)"},
                        {"AvgPauseBtUt", "Mean pause between utterances (s)"}}},
                      {"MAZES AND ABANDONED UTTERANCES",
                       {{"%MzWds", "RL_MZWDSPCTOT"},
                        {"MzWds", "Maze words"},
                        {"Tot#Mz", "Mazes"},
                        {"AvgWdPerMz", "Mean words per maze"},
                        {"%UtWMaze", "% Utterances with mazes"},
                        {"%AbanUt", "RL_PCABANUTT"}}},
                      {"CODES",
                       {{"%UtWFluencyCd", "% Utterances with fluency codes"},
                        {"%UtWCSwitchCd", "% Utterances with code switches"}}}}};
}

DbSummary DbMazesSummary() {
    return DbSummary{
        "Database Maze Distribution Tables",
        {{"MAZES BY UTTERANCE LENGTH IN WORDS", distributionRows("MzByUL", 1, 15, "MzByULTot")},
         {"MAZES BY MAZE LENGTH IN WORDS", distributionRows("MzByML", 1, 15, "MzByMLTot")},
         {"MAZE KINDS",
          {{"MzRevPartWd", "Part-word revisions"},
           {"MzRevWd", "Word revisions"},
           {"MzRevPhr", "Phrase revisions"},
           {"MzRepPartWd", "Part-word repetitions"},
           {"MzRepWd", "Word repetitions"},
           {"MzRepPhr", "Phrase repetitions"},
           {"MzFPSingleWd", "Filled pauses, single word"},
           {"MzFPMultWd", "Filled pauses, several words"}}}}};
}

DbSummary DbErrorsSummary() {
    return DbSummary{"Database Errors Summary",
                     {{"ERRORS",
                       {{"%UtWErrors", "RL_PCERRORS"},
                        {"%WordErrors", "RL_PCWDERRORS"},
                        {"UtWErrCode", "Utterances with error codes"},
                        {"ErrCodes", "Error codes"},
                        {"ErrCodesWd", "Word-level error codes"},
                        {"ErrCodesUt", "Utterance-level error codes"}}},
                      {"OMISSIONS",
                       {{"Omissions", "Omissions"},
                        {"OmitWd", "Omitted words"},
                        {"OmitBm", "Omitted bound morphemes"}}}}};
}

} // namespace

std::optional<DbSummary> dbSummary(std::string_view name) {
    using Make = DbSummary (*)();
    static constexpr std::pair<std::string_view, Make> kSummaries[] = {
        {"length-intelligibility", DbLengthSummary},
        {"db-syntax-summary", DbSyntaxSummary},
        {"db-utterance-distribution", DbDistributionSummary},
        {"db-semantics-summary", DbSemanticsSummary},
        {"db-grammatical-categories", DbCategoriesSummary},
        {"db-discourse-summary", DbDiscourseSummary},
        {"db-turn-distribution", DbTurnsSummary},
        {"db-facility-summary", DbFacilitySummary},
        {"db-maze-distribution", DbMazesSummary},
        {"db-errors-summary", DbErrorsSummary},
    };
    for (const auto& [n, make] : kSummaries)
        if (n == name)
            return make();
    return std::nullopt;
}

namespace {

Report build(const ReportInputs& in, std::string_view name) {
    DbSummary summary = *dbSummary(name);
    return buildDbComparisonReport(in, std::move(summary.title), summary.sections);
}

} // namespace

Report buildDbLengthReport(const ReportInputs& in) {
    return build(in, "length-intelligibility");
}
Report buildDbSyntaxReport(const ReportInputs& in) {
    return build(in, "db-syntax-summary");
}
Report buildDbDistributionReport(const ReportInputs& in) {
    return build(in, "db-utterance-distribution");
}
Report buildDbSemanticsReport(const ReportInputs& in) {
    return build(in, "db-semantics-summary");
}
Report buildDbCategoriesReport(const ReportInputs& in) {
    return build(in, "db-grammatical-categories");
}
Report buildDbDiscourseReport(const ReportInputs& in) {
    return build(in, "db-discourse-summary");
}
Report buildDbTurnsReport(const ReportInputs& in) {
    return build(in, "db-turn-distribution");
}
Report buildDbFacilityReport(const ReportInputs& in) {
    return build(in, "db-facility-summary");
}
Report buildDbMazesReport(const ReportInputs& in) {
    return build(in, "db-maze-distribution");
}
Report buildDbErrorsReport(const ReportInputs& in) {
    return build(in, "db-errors-summary");
}

} // namespace tavi
