// The catalogue's contents, group by group in column order. Each group's first
// index is the previous group's first index plus its count, so the order of
// the `add` calls below is the order of the columns in every batch file.
#include "batch/variable_catalogue.h"

#include "base/format.h"

namespace tavi {

namespace {

// Scopes appended to the descriptions of measure variables.
constexpr const char* kTotal = " - total utterances";
constexpr const char* kASet = " - analysis set utterances";
constexpr const char* kWordsASet = " - words, analysis set utterances";
constexpr const char* kMorphsASet = " - morphemes, analysis set utterances";
constexpr const char* kMazesTotal = " - mazes, total utterances";
constexpr const char* kBodyTotal = " - main body, total utterances";

} // namespace

class CatalogueBuilder {
public:
    explicit CatalogueBuilder(VariableCatalogue& c) : c_(c) {}

    void group(const char* title, const char* keyword) {
        int first = c_.size();
        c_.groups_.push_back({title, keyword, first, 0});
    }
    void add(std::string name, std::string description, ValueType type, int decimals,
             ValueSource source, std::string measure) {
        VariableGroup& g = c_.groups_.back();
        BatchVariable v;
        v.name = std::move(name);
        v.description = std::move(description);
        v.group = static_cast<int>(c_.groups_.size()) - 1;
        v.indexInGroup = g.count++;
        v.type = type;
        v.decimals = decimals;
        v.source = source;
        v.measure = measure.empty() ? v.name : std::move(measure);
        if (source == ValueSource::Measure)
            v.measureId = measureIdByName(v.measure);
        c_.variables_.push_back(std::move(v));
    }
    // Measures: a count, a decimal with two places, a ratio with three, a text.
    void count(std::string name, std::string d, std::string measure = {}) {
        add(std::move(name), std::move(d), ValueType::Integer, 0, ValueSource::Measure,
            std::move(measure));
    }
    void decimal(std::string name, std::string d, std::string measure = {}) {
        add(std::move(name), std::move(d), ValueType::Decimal, 2, ValueSource::Measure,
            std::move(measure));
    }
    void ratio(std::string name, std::string d, std::string measure = {}) {
        add(std::move(name), std::move(d), ValueType::Decimal, 3, ValueSource::Measure,
            std::move(measure));
    }
    void text(std::string name, std::string d, std::string measure = {}) {
        add(std::move(name), std::move(d), ValueType::Text, 0, ValueSource::Measure,
            std::move(measure));
    }

private:
    VariableCatalogue& c_;
};

namespace {

void addGeneral(CatalogueBuilder& b) {
    b.group("General Information", "GENINFO");
    b.add("Filename", "Filename", ValueType::Text, 0, ValueSource::General, {});
    b.add("Speaker#", "Speaker #", ValueType::Integer, 0, ValueSource::General, {});
    b.add("Speaker", "Speaker", ValueType::Text, 0, ValueSource::General, {});
    b.add("AnalysisSet", "Analysis Set", ValueType::Text, 0, ValueSource::General, {});
    b.add("WordBase", "Word Base", ValueType::Text, 0, ValueSource::General, {});
    b.add("TranCut", "Transcript Cut", ValueType::Text, 0, ValueSource::General, {});
}

void addPlusLines(CatalogueBuilder& b) {
    b.group("Plus Lines", "PLUSLINE");
    struct Line {
        const char* name;
        const char* description;
        const char* keyword; // header keyword the value is read from
        ValueType type;
    };
    const Line lines[] = {
        {"ParticipantId", "ParticipantId", "ParticipantId", ValueType::Text},
        {"Name", "Name", "Name", ValueType::Text},
        {"Gender", "Gender", "Gender", ValueType::Text},
        {"DOB", "DOB", "DOB", ValueType::Text},
        {"DOE", "DOE", "DOE", ValueType::Text},
        {"CA", "CA (yy;mm)", "CA", ValueType::Text},
        {"CAyy", "CA (in years)", "CA", ValueType::Integer},
        {"CAmm", "CA (in months)", "CA", ValueType::Integer},
        {"Grade", "Grade", "Grade", ValueType::Text},
        {"Ethnic", "Ethnicity", "Ethnicity", ValueType::Text},
        {"ParentEduc", "ParentEduc", "ParentEduc", ValueType::Text},
        {"Examiner", "Examiner", "Examiner", ValueType::Text},
        {"Transcriber", "Transcriber", "Transcriber", ValueType::Text},
        {"Location", "Location", "Location", ValueType::Text},
        {"Collect", "Collect", "Collect", ValueType::Text},
        {"Context", "Context", "Context", ValueType::Text},
        {"Subgroup", "Subgroup", "Subgroup", ValueType::Text},
        {"Language", "Language", "Language", ValueType::Text},
        {"Bilingual", "Bilingual", "Bilingual", ValueType::Text},
        {"Select", "Select", "Select", ValueType::Text},
    };
    for (const Line& l : lines)
        b.add(l.name, l.description, l.type, 0, ValueSource::PlusLine, l.keyword);
}

void addStandardMeasures(CatalogueBuilder& b) {
    b.group("Standard Measures Report", "SMR");
    b.count("TotNumUt", "Total Utterances");
    b.count("TotASetUt", "Analysis Set Utterances");
    b.count("AllWords", "All Words Including Mazes");
    b.decimal("TimeMin", "Elapsed Time (minutes)");
    b.decimal("%IntelUt", "% Intelligible Utterances");
    b.decimal("%IntelWd", "% Intelligible Words");
    b.count("NSS", "NSS Composite Score");
    b.count("ESS", "ESS Composite Score");
    b.count("PSS", "PSS Composite Score");
    b.count("ONQ", "Oral Narrative Quality");
    b.count("ONC", "Oral Narrative Comprehension");
    b.decimal("MLUw", "MLU in Words");
    b.decimal("MLUm", "MLU in Morphemes");
    b.decimal("%UtWVerb", "% Utterances with Verbs");
    b.decimal("VPU", "Mean Verbs per Utterance");
    b.decimal("%UtWNMForms", "% Utts with Nonmainstream Forms");
    b.decimal("SI", "SI Composite Score");
    b.count("NTW", "Number Total Words");
    b.count("NDW", "Number Different Words");
    b.count("MA_NTW", "Moving-Average NTW");
    b.decimal("MA_NDW", "Moving-Average NDW");
    b.ratio("MA_TTR", "Moving-Average TTR");
    b.decimal("MeanTurnUt", "Mean Turn Length (utterances)");
    b.decimal("MeanTurnWd", "Mean Turn Length (words)");
    b.decimal("%RespQues", "% Responses to Questions");
    b.decimal("%RespPrmpt", "% Responses to Intonation Prompts");
    b.decimal("%UtWOverlap", "% Utterances with Overlaps");
    b.decimal("%IntrOthSpk", "% Utts Interrupted Other Speaker");
    b.decimal("WPM", "Words per Minute");
    b.decimal("%PauseTime", "Pause Time as % of Total Time");
    b.decimal("%MzWds", "Maze Words as % of Total Words");
    b.decimal("%AbanUt", "% Abandoned Utterances");
    b.decimal("%UtWFluencyCd", "% Utterances with Fluency Codes");
    b.decimal("%UtWCSwitchCd", "% Utterances with Code-switch Codes");
    b.decimal("%UtWErrors", "% Utterances with Errors");
    b.decimal("%WordErrors", "% Word Errors");
}

// Utterances by terminator, shared by the utterance-type and utterance-list groups.
void addTerminatorCounts(CatalogueBuilder& b) {
    b.count("Statements", std::string("Statements") + kTotal);
    b.count("Exclamations", std::string("Exclamations") + kTotal);
    b.count("Questions", std::string("Questions") + kTotal);
    b.count("IntPrmpts", std::string("Intonation Prompts") + kTotal);
    b.count("AbanUt", std::string("Abandoned Utterances") + kTotal);
    b.count("InterruptUt", std::string("Interrupted Utterances") + kTotal);
}

void addUtteranceTypes(CatalogueBuilder& b) {
    b.group("Summary of Utterance Types", "UTTYPE");
    b.count("TotNumUt", std::string("Total Utterances") + kTotal);
    addTerminatorCounts(b);
    const std::pair<const char*, const char*> kinds[] = {
        {"TotVerbalUt", "Verbal Utterances"},
        {"NonVerbalUt", "Nonverbal Utterances"},
        {"UnintelUt", "Unintelligible Utterances"},
        {"PartIntelUt", "Partly Intelligible Utterances"},
        {"RespToQues", "Responses to Questions"},
        {"YNRespToQues", "Yes/No Responses to Questions"},
        {"RespToIntPrmpt", "Responses to Intonation Prompts"},
        {"Imitations", "Imitations"},
        {"OneWdUt", "One-word Utterances"},
        {"UtWMaze", "Utterances with Mazes"},
        {"UtWPause", "Utterances with Pauses"},
        {"UtWOmission", "Utterances with Omissions"},
        {"UtWOverlap", "Utterances with Overlapping Speech"},
        {"UtWParenthetical", "Utterances with Parenthetical Remarks"},
        {"UtWDialogue", "Utterances with Dialogue"},
        {"UtWComment", "Utterances with Comments"},
        {"UttwWdCode", "Utterances with Word Codes"},
        {"UttwUtCode", "Utterances with Utterance Codes"},
        {"UttwExclCode", "Utterances with Excluding Codes"},
    };
    for (auto [name, description] : kinds)
        b.count(name, std::string(description) + kTotal);
}

void addSyntax(CatalogueBuilder& b) {
    b.group("Syntax/Morphology Summary", "SYNSMRY");
    b.decimal("MLUw", std::string("MLU in Words") + kWordsASet);
    b.decimal("MLUm", std::string("MLU in Morphemes") + kMorphsASet);
    b.text("BrownStg", std::string("Brown's Stage") + kMorphsASet);
    b.text("ExpAgeRange",
           std::string("Expected Age Range in Months for Brown's Stage") + kMorphsASet);
    b.decimal("PCUttWithVerbs", std::string("% Utterances with Verbs") + kASet);
    b.decimal("MeanVerbsPerUtt", std::string("Mean Verbs per Utterance") + kASet);
    b.decimal("PCUttWithNMForms", std::string("% Utts with Nonmainstream Forms") + kASet);
    b.count("UttWithNMForms", std::string("Utterances with Nonmainstream Forms") + kASet);
    b.decimal("SI", std::string("SI Composite Score") + kASet);
    b.count("NTW", std::string("Number Total Words") + kWordsASet);
    b.count("BoundMorphs", std::string("Number of Bound Morphemes") + kASet);
    b.count("BoundClitics", std::string("Number of Bound Clitics") + kASet);
    b.count("OmitWd", std::string("Omitted Words") + kTotal);
    b.count("OmitBm", std::string("Omitted Bound Morphemes") + kTotal);
    b.count("OmitCl", std::string("Omitted Bound Clitics") + kTotal);
}

// A numbered family ("UtbyUL0" .. "UtbyUL15") and its total ("UtbyULTot"); the
// last number collects that length and longer.
void addFamily(CatalogueBuilder& b, const char* prefix, int from, int to, const char* lead,
               const char* unit, const char* total, const char* scope, bool percent) {
    for (int n = from; n <= to; ++n) {
        std::string length = n == to  ? format("%d or More %ss", n, unit)
                             : n == 1 ? format("1 %s", unit)
                                      : format("%d %ss", n, unit);
        std::string description = lead + length + scope;
        if (percent)
            b.decimal(format("%s%d", prefix, n), description);
        else
            b.count(format("%s%d", prefix, n), description);
    }
    if (percent)
        b.decimal(std::string(prefix) + "Tot", std::string(total) + scope);
    else
        b.count(std::string(prefix) + "Tot", std::string(total) + scope);
}

void addUtteranceDistribution(CatalogueBuilder& b) {
    b.group("Utterance Distribution", "UTTDIST");
    addFamily(b, "UtbyUL", 0, 15, "Utterances of ", "Word", "Utterances of All Lengths", kWordsASet,
              false);
}

void addSemantics(CatalogueBuilder& b) {
    b.group("Semantics Summary", "SEMSMRY");
    b.count("NTW", std::string("Number Total Words") + kWordsASet);
    b.count("NDW", std::string("Number Different Words") + kWordsASet);
    b.ratio("TTR", std::string("Type-Token Ratio") + kWordsASet);
    b.count("MA_NTW", std::string("Moving-Average NTW") + kWordsASet);
    b.decimal("MA_NDW", std::string("Moving-Average NDW") + kWordsASet);
    b.ratio("MA_TTR", std::string("Moving-Average TTR") + kWordsASet);
    b.count("BoundMorphs", std::string("Number of Bound Morphemes") + kASet);
    b.count("DiffBM", std::string("Number of Different Bound Morphemes") + kASet);
    b.count("BoundClitics", std::string("Number of Bound Clitics") + kASet);
}

void addDiscourse(CatalogueBuilder& b) {
    b.group("Discourse Summary", "DCSMRY");
    b.decimal("MeanTurnUt", std::string("Mean Turn Length (utterances)") + kTotal);
    b.decimal("MedTurnUt", std::string("Median Turn Length (utterances)") + kTotal);
    b.decimal("MeanTurnWd", std::string("Mean Turn Length (words)") + kTotal);
    b.decimal("MedTurnWd", std::string("Median Turn Length (words)") + kTotal);
    b.decimal("%RespToQues", std::string("% Responses to Questions") + kTotal);
    b.count("OtherSpkQues", std::string("Questions of the Other Speaker") + kTotal);
    b.count("RespToQues", std::string("Responses to Questions") + kTotal);
    b.count("ReqClarRespToQues",
            std::string("Requests for Clarification in Response to Questions") + kTotal);
    b.count("YNRespToQues", std::string("Yes/No Responses to Questions") + kTotal);
    b.count("OthRespToQues", std::string("Other Responses to Questions") + kTotal);
    b.decimal("%RespToIntPrmpt", std::string("% Responses to Intonation Prompts") + kTotal);
    b.count("OtherSpkIntPrmpt", std::string("Intonation Prompts of the Other Speaker") + kTotal);
    b.count("RespToIntPrmpt", std::string("Responses to Intonation Prompts") + kTotal);
    b.count("Imitations", std::string("Imitations") + kTotal);
    b.count("ExactImit", std::string("Exact Imitations") + kTotal);
    b.count("ReducedImit", std::string("Reduced Imitations") + kTotal);
    b.count("SponUt", std::string("Spontaneous Utterances") + kTotal);
    b.count("SponStmt", std::string("Spontaneous Statements") + kTotal);
    b.count("SponExcl", std::string("Spontaneous Exclamations") + kTotal);
    b.count("SponQues", std::string("Spontaneous Questions") + kTotal);
    b.count("SponIntPrmpt", std::string("Spontaneous Intonation Prompts") + kTotal);
    b.count("SponAban", std::string("Spontaneous Abandoned Utterances") + kTotal);
    b.count("SponInter", std::string("Spontaneous Interrupted Utterances") + kTotal);
    b.decimal("%UtWOverlap", std::string("% Utterances with Overlaps") + kTotal);
    b.count("UtWOverlap", std::string("Utterances with Overlaps") + kTotal);
    b.decimal("%IntrOthSpk", std::string("% Utts Interrupted Other Speaker") + kTotal);
    b.count("IntrOthSpk", std::string("Utterances Interrupting the Other Speaker") + kTotal);
    b.decimal("%WdsMention1st", std::string("% Words Mentioned First") + kWordsASet);
    b.count("WdsMention1st", std::string("Words Mentioned First") + kWordsASet);
}

void addTurnLengths(CatalogueBuilder& b) {
    b.group("Turn Length Distribution", "TURNLEN");
    addFamily(b, "TurnByTLUt", 1, 6, "Turns of ", "Utterance", "Turns of All Lengths", kTotal,
              false);
    addFamily(b, "TurnByTLWd", 0, 15, "Turns of ", "Word", "Turns of All Lengths", kTotal, false);
}

void addTiming(CatalogueBuilder& b) {
    b.group("Verbal Facility Summary", "VFSMRY");
    b.decimal("TimeMin", "Elapsed Time (minutes)");
    b.count("TimeSec", "Elapsed Time (seconds)");
    b.text("TimeMinSec", "Elapsed Time (min:sec)");
    b.decimal("WPM", "Words per Minute");
    b.decimal("UtPerMin", "Utterances per Minute");
    b.decimal("%PauseTime", "Pause Time as % of Total Time");
    b.decimal("AvgPauseWiUt", "Average Within-utterance Pause Time");
    b.decimal("AvgPauseBtUt", "Average Between-utterance Pause Time");
}

void addMazes(CatalogueBuilder& b) {
    b.group("Verbal Facility Summary", "MZCDSMRY");
    b.decimal("%AbanUtt", std::string("% Abandoned Utterances") + kTotal);
    b.count("AbanUtt", std::string("Abandoned Utterances") + kTotal);
    b.count("MzWds", std::string("Maze Words") + kMazesTotal);
    b.decimal("%MzWds", "Maze Words as % of Total Words");
    b.count("Tot#Mz", "Total Number of Mazes");
    b.decimal("AvgWdPerMz", "Average Words per Maze");
    b.decimal("AvgMzPerUt", std::string("Average Mazes per Utterance") + kMazesTotal);
    b.count("UtWMaze", std::string("Utterances with Mazes") + kTotal);
    b.decimal("%UtWMaze", std::string("% Utterances with Mazes") + kTotal);
    b.count("MazeComp", std::string("Maze Components") + kMazesTotal);
    b.count("MzRevPartWd", std::string("Maze Revisions, Part Words") + kMazesTotal);
    b.count("MzRevWd", std::string("Maze Revisions, Words") + kMazesTotal);
    b.count("MzRevPhr", std::string("Maze Revisions, Phrases") + kMazesTotal);
    b.count("MzRepPartWd", std::string("Maze Repetitions, Part Words") + kMazesTotal);
    b.count("MzRepWd", std::string("Maze Repetitions, Words") + kMazesTotal);
    b.count("MzRepPhr", std::string("Maze Repetitions, Phrases") + kMazesTotal);
    b.count("MzFPSingleWd", std::string("Maze Filled Pauses, Single Words") + kMazesTotal);
    b.count("MzFPMultWd", std::string("Maze Filled Pauses, Multiple Words") + kMazesTotal);
    b.decimal("%MazeComp", std::string("% Maze Components") + kMazesTotal);
    b.decimal("%UttwFC", std::string("% Utterances with Fluency Codes") + kTotal);
    b.count("UttwFC", std::string("Utterances with Fluency Codes") + kTotal);
    b.decimal("%UttwCS", std::string("% Utterances with Code-switch Codes") + kTotal);
    b.count("UttwCS", std::string("Utterances with Code-switch Codes") + kTotal);
}

void addWordLists(CatalogueBuilder& b) {
    b.group("Standard Word Lists", "SWL");
    const std::pair<const char*, const char*> lists[] = {
        {"Ques", "Question Words"},
        {"Neg", "Negatives"},
        {"Conj", "Conjunctions"},
        {"CoreModal", "Core Modal Auxiliaries"},
        {"MarModal", "Marginal Modal Auxiliaries"},
        {"PersPrn", "Personal Pronouns"},
        {"PossPrn", "Possessive Pronouns"},
        {"ReflPrn", "Reflexive Pronouns"},
        {"DemoPrn", "Demonstrative Pronouns"},
        {"RelPrn", "Relative Pronouns"},
        {"UnivPrn", "Universal Pronouns"},
        {"PartPrn", "Partitive Pronouns"},
        {"QuanPrn", "Quantifying Pronouns"},
        {"Extra1", "Extra List 1"},
        {"Extra2", "Extra List 2"},
        {"Extra3", "Extra List 3"},
        {"Extra4", "Extra List 4"},
        {"Extra5", "Extra List 5"},
        {"YN", "Yes/No Words"},
        {"FP", "Filled Pauses"},
    };
    for (auto [stem, words] : lists) {
        b.count(std::string(stem) + "Tot", std::string(words) + ", Total");
        // The demonstrative pronouns' type column is spelt "DemPrnTyp".
        std::string typ = std::string(stem) == "DemoPrn" ? "DemPrnTyp" : std::string(stem) + "Typ";
        b.count(typ, std::string(words) + ", Different Types");
    }
}

void addUtteranceLists(CatalogueBuilder& b) {
    b.group("Standard Utterance Lists", "SUL");
    const std::pair<const char*, const char*> kinds[] = {
        {"RespToQues", "Responses to Questions"},
        {"YNRespToQues", "Yes/No Responses to Questions"},
        {"RespToIntPrmpt", "Responses to Intonation Prompts"},
        {"Imitations", "Imitations"},
        {"SponUt", "Spontaneous Utterances"},
        {"OneWdUt", "One-word Utterances"},
        {"NonVerbalUt", "Nonverbal Utterances"},
        {"PartOrAllUnintUt", "Partly or Wholly Unintelligible Utterances"},
        {"UtWMaze", "Utterances with Mazes"},
        {"UtWPause", "Utterances with Pauses"},
        {"UtWOmission", "Utterances with Omissions"},
        {"UtWOverlap", "Utterances with Overlapping Speech"},
        {"UtWParenthetical", "Utterances with Parenthetical Remarks"},
        {"UtWDialogue", "Utterances with Dialogue"},
        {"UtWComment", "Utterances with Comments"},
        {"UtWCode", "Utterances with Codes"},
        {"UtWErrCode", "Utterances with Error Codes"},
        {"UtWFLuencyCode", "Utterances with Fluency Codes"},
        {"UtWNMFormCode", "Utterances with Nonmainstream-form Codes"},
        {"UtWCSwitchCode", "Utterances with Code-switch Codes"},
    };
    for (auto [name, description] : kinds)
        b.count(name, std::string(description) + kTotal);
    addTerminatorCounts(b);
}

void addMazeDistribution(CatalogueBuilder& b) {
    b.group("Maze Distribution Tables", "MZDIST");
    addFamily(b, "%UtWMzByUL", 1, 15, "% Utterances with Mazes, Utterances of ", "Word",
              "% Utterances with Mazes, All Lengths", kBodyTotal, true);
    addFamily(b, "MzByUL", 1, 15, "Mazes in Utterances of ", "Word",
              "Mazes in Utterances of All Lengths", kBodyTotal, false);
    addFamily(b, "MzByML", 1, 15, "Mazes of ", "Word", "Mazes of All Lengths", kMazesTotal, false);
}

void addErrors(CatalogueBuilder& b) {
    b.group("Omissions and Errors", "OMITERR");
    b.decimal("%UtWErrors", "% Utterances with Errors");
    b.decimal("%WordErrors", "% Word Errors");
    b.count("Omissions", std::string("Total Omissions") + kTotal);
    b.count("OmitWd", std::string("Omitted Words") + kTotal);
    b.count("OmitBm", std::string("Omitted Bound Morphemes") + kTotal);
    b.count("OmitCl", std::string("Omitted Bound Clitics") + kTotal);
    b.count("ErrCodes", std::string("Total Error Codes") + kTotal);
    b.count("ErrCodesWd", std::string("Word-level Error Codes") + kTotal);
    b.count("ErrCodesUt", std::string("Utterance-level Error Codes") + kTotal);
    b.count("FlCodesWd", std::string("Word-level Fluency Codes") + kTotal);
    b.count("FlCodesUt", std::string("Utterance-level Fluency Codes") + kTotal);
}

void addNonmainstream(CatalogueBuilder& b) {
    b.group("Nonmainstream-form Codes", "NMFORM");
    b.decimal("%UtWNMForms", "% Utts with Nonmainstream Forms");
    b.count("NMFormCodes", std::string("Total Nonmainstream-form Codes") + kTotal);
    b.count("NMFormCodesWd", std::string("Word-level Nonmainstream-form Codes") + kTotal);
    b.count("NMFormCodesUt", std::string("Utterance-level Nonmainstream-form Codes") + kTotal);
}

void addCodeSwitch(CatalogueBuilder& b) {
    b.group("Code-switch Codes", "CSCODE");
    b.decimal("%UtWCSwitch", std::string("% Utterances with Code-switch Codes") + kTotal);
    b.count("CSwitchCodes", std::string("Total Code-switch Codes") + kTotal);
    b.count("CSwitchCodesWd", std::string("Word-level Code-switch Codes") + kTotal);
    b.count("CSwitchCodesUt", std::string("Utterance-level Code-switch Codes") + kTotal);
}

// The components of the shipped scoring templates (data/templates): column
// name and component name. A template file edited by the user keeps these
// columns; components it adds are read by `tavi measures` but have no column.
using Components = std::initializer_list<std::pair<const char*, const char*>>;

void addComponents(CatalogueBuilder& b, Components components, const char* kind) {
    for (const auto& [name, title] : components)
        b.count(name, std::string(title) + " - " + kind);
}

void addComprehension(CatalogueBuilder& b) {
    b.group("Comprehension Questions", "COMPQUES");
    b.count("CQ Total", "CQ Score");
    b.count("ONC", "Oral Narrative Comprehension");
    for (int q = 1; q <= 10; ++q)
        b.count("CQ_Q" + std::to_string(q), "Question " + std::to_string(q) + " - CQ Score");
    addComponents(b,
                  {{"ONC_Who", "Who"},
                   {"ONC_Where", "Where"},
                   {"ONC_Problem", "Problem"},
                   {"ONC_Feeling", "Feeling"},
                   {"ONC_Action", "Action"},
                   {"ONC_Ending", "Ending"}},
                  "ONC score");
}

// Fluency behaviours, the Subordination Index and the scoring schemes: the
// composites and the components of the shipped templates.
void addMacroGroups(CatalogueBuilder& b) {
    b.group("Fluency Codes and Behaviors", "FLUENCY");
    b.count("FCB Total", "Total Rating - Concomitant Behaviors");
    b.count("FCB Rated", "Behaviors Rated - Concomitant Behaviors");
    addComponents(b,
                  {{"FCB_Blink", "Eye Blinking"},
                   {"FCB_Gaze", "Eye Gaze Shift"},
                   {"FCB_Face", "Facial Tension"},
                   {"FCB_Head", "Head Movement"},
                   {"FCB_Limb", "Limb Movement"},
                   {"FCB_Breath", "Breathing"},
                   {"FCB_Voice", "Vocal Changes"},
                   {"FCB_Filler", "Filler Sounds"}},
                  "Concomitant Behaviors");
    b.group("Subordination Index", "SI");
    b.decimal("SI", "SI Composite Score - SI code");
    b.count("SI Coded", "Utterances with an SI code - SI code");
    b.group("Narrative Scoring Scheme", "MACROSTRUCT");
    b.count("NSS", "NSS Composite Score");
    addComponents(b,
                  {{"NSS_Intro", "Introduction"},
                   {"NSS_CharDev", "Character Development"},
                   {"NSS_MentalSt", "Mental States"},
                   {"NSS_Ref", "Referencing"},
                   {"NSS_ConfRes", "Conflict Resolution"},
                   {"NSS_Cohes", "Cohesion"},
                   {"NSS_Concl", "Conclusion"}},
                  "NSS score");
    b.group("Expository Scoring Scheme", "MACROSTRUCT");
    b.count("ESS", "ESS Composite Score");
    addComponents(b,
                  {{"ESS_Prep", "Preparations"},
                   {"ESS_Object", "Object"},
                   {"ESS_Start", "Start"},
                   {"ESS_Course", "Course of Play"},
                   {"ESS_Rules", "Rules"},
                   {"ESS_Scoring", "Scoring"},
                   {"ESS_Ending", "Ending"},
                   {"ESS_Strategy", "Strategy"},
                   {"ESS_Terms", "Terminology"},
                   {"ESS_Cohes", "Cohesion"}},
                  "ESS score");
    b.group("Persuasion Scoring Scheme", "MACROSTRUCT");
    b.count("PSS", "PSS Composite Score");
    addComponents(b,
                  {{"PSS_Issue", "Issue Identification"},
                   {"PSS_Reasons", "Supporting Reasons"},
                   {"PSS_OtherPOV", "Other Point of View"},
                   {"PSS_Compromise", "Compromise"},
                   {"PSS_Concl", "Conclusion"},
                   {"PSS_Cohes", "Cohesion"},
                   {"PSS_Effect", "Effectiveness"}},
                  "PSS score");
    b.group("Oral Narrative Quality", "MACROSTRUCT");
    b.count("ONQ", "Oral Narrative Quality");
    addComponents(b,
                  {{"ONQ_Grammar", "Story Grammar"},
                   {"ONQ_Sequence", "Sequence"},
                   {"ONQ_Vocab", "Vocabulary"},
                   {"ONQ_Fluency", "Fluency"}},
                  "ONQ score");
}

void addGrammaticalCategories(CatalogueBuilder& b) {
    b.group("Grammatical Categories", "GCL");
    const std::pair<const char*, const char*> categories[] = {
        {"Init", "Initiators"},
        {"Det", "Determiners"},
        {"Adj", "Adjectives"},
        {"Noun", "Nouns"},
        {"PersPrn", "Personal Pronouns"},
        {"OthrPrn", "Other Pronouns"},
        {"AuxMod", "Modal Auxiliaries"},
        {"AuxOp", "Auxiliary Operators"},
        {"Verb", "Verbs"},
        {"Copula", "Copulas"},
        {"VerbPartcl", "Verb Particles"},
        {"Adv", "Adverbs"},
        {"Intense", "Intensifiers"},
        {"Prep", "Prepositions"},
        {"Exist", "Existentials"},
        {"Ques", "Question Words"},
        {"Coord", "Coordinating Conjunctions"},
        {"Sub", "Subordinating Conjunctions"},
        {"Inf", "Infinitive Markers"},
        {"Poss", "Possessives"},
        {"Neg", "Negatives"},
        {"Let", "Let"},
        {"Intj", "Interjections"},
    };
    for (auto [stem, words] : categories) {
        b.count(format("GC_%sTot", stem), format("Grammatical Category %s, Total", words));
        b.count(format("GC_%sTyp", stem),
                format("Grammatical Category %s, Different Types", words));
    }
}

} // namespace

const VariableCatalogue& VariableCatalogue::standard() {
    static const VariableCatalogue catalogue = [] {
        VariableCatalogue c;
        CatalogueBuilder b(c);
        addGeneral(b);
        addPlusLines(b);
        addStandardMeasures(b);
        addUtteranceTypes(b);
        addSyntax(b);
        addUtteranceDistribution(b);
        addSemantics(b);
        addDiscourse(b);
        addTurnLengths(b);
        addTiming(b);
        addMazes(b);
        addWordLists(b);
        addUtteranceLists(b);
        addMazeDistribution(b);
        addErrors(b);
        addNonmainstream(b);
        addCodeSwitch(b);
        addComprehension(b);
        addMacroGroups(b);
        addGrammaticalCategories(b);
        b.group("Explore", "EXPLORE");
        return c;
    }();
    return catalogue;
}

std::optional<int> VariableCatalogue::groupByKeyword(std::string_view keyword) const {
    for (size_t g = 0; g < groups_.size(); ++g)
        if (groups_[g].keyword == keyword)
            return static_cast<int>(g);
    return std::nullopt;
}

std::vector<int> VariableCatalogue::find(std::string_view name) const {
    std::vector<int> found;
    for (int i = 0; i < size(); ++i)
        if (variables_[i].name == name)
            found.push_back(i);
    return found;
}

} // namespace tavi
