// The catalogue is the contract with every statistics script that reads a
// batch file: its column order, its odd spellings and its groups must not move.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "analysis/measure_id.h"
#include "batch/variable_catalogue.h"
#include "transcript/scoring_template.h"

namespace tavi {
namespace {

// The column names the shipped scoring templates give besides measure
// identifiers: their components, the "Rated" counts and "SI Coded".
std::set<std::string> macroVariables() {
    std::set<std::string> names{"SI Coded"};
    const TemplateSet shipped =
        loadTemplateFolder(std::string(TAVI_SOURCE_DIR) + "/data/templates/", nullptr);
    for (const ScoringTemplate& t : shipped.all()) {
        names.insert(t.key + " Rated");
        names.insert(t.variable); // "FCB Total"; the others are measure identifiers
        for (const TemplateComponent& c : t.components)
            names.insert(c.variable);
    }
    return names;
}

TEST(VariableCatalogue, EveryShippedTemplateComponentHasAColumn) {
    std::set<std::string> columns;
    for (const BatchVariable& v : VariableCatalogue::standard().variables())
        columns.insert(v.name);
    const TemplateSet shipped =
        loadTemplateFolder(std::string(TAVI_SOURCE_DIR) + "/data/templates/", nullptr);
    for (const ScoringTemplate& t : shipped.all()) {
        EXPECT_TRUE(columns.contains(t.variable)) << t.variable;
        for (const TemplateComponent& c : t.components)
            EXPECT_TRUE(columns.contains(c.variable)) << c.variable;
    }
}

const std::vector<std::string> kColumnOrder = {
    "Filename",
    "Speaker#",
    "Speaker",
    "AnalysisSet",
    "WordBase",
    "TranCut",
    "ParticipantId",
    "Name",
    "Gender",
    "DOB",
    "DOE",
    "CA",
    "CAyy",
    "CAmm",
    "Grade",
    "Ethnic",
    "ParentEduc",
    "Examiner",
    "Transcriber",
    "Location",
    "Collect",
    "Context",
    "Subgroup",
    "Language",
    "Bilingual",
    "Select",
    "TotNumUt",
    "TotASetUt",
    "AllWords",
    "TimeMin",
    "%IntelUt",
    "%IntelWd",
    "NSS",
    "ESS",
    "PSS",
    "ONQ",
    "ONC",
    "MLUw",
    "MLUm",
    "%UtWVerb",
    "VPU",
    "%UtWNMForms",
    "SI",
    "NTW",
    "NDW",
    "MA_NTW",
    "MA_NDW",
    "MA_TTR",
    "MeanTurnUt",
    "MeanTurnWd",
    "%RespQues",
    "%RespPrmpt",
    "%UtWOverlap",
    "%IntrOthSpk",
    "WPM",
    "%PauseTime",
    "%MzWds",
    "%AbanUt",
    "%UtWFluencyCd",
    "%UtWCSwitchCd",
    "%UtWErrors",
    "%WordErrors",
    "TotNumUt",
    "Statements",
    "Exclamations",
    "Questions",
    "IntPrmpts",
    "AbanUt",
    "InterruptUt",
    "TotVerbalUt",
    "NonVerbalUt",
    "UnintelUt",
    "PartIntelUt",
    "RespToQues",
    "YNRespToQues",
    "RespToIntPrmpt",
    "Imitations",
    "OneWdUt",
    "UtWMaze",
    "UtWPause",
    "UtWOmission",
    "UtWOverlap",
    "UtWParenthetical",
    "UtWDialogue",
    "UtWComment",
    "UttwWdCode",
    "UttwUtCode",
    "UttwExclCode",
    "MLUw",
    "MLUm",
    "BrownStg",
    "ExpAgeRange",
    "PCUttWithVerbs",
    "MeanVerbsPerUtt",
    "PCUttWithNMForms",
    "UttWithNMForms",
    "SI",
    "NTW",
    "BoundMorphs",
    "BoundClitics",
    "OmitWd",
    "OmitBm",
    "OmitCl",
    "UtbyUL0",
    "UtbyUL1",
    "UtbyUL2",
    "UtbyUL3",
    "UtbyUL4",
    "UtbyUL5",
    "UtbyUL6",
    "UtbyUL7",
    "UtbyUL8",
    "UtbyUL9",
    "UtbyUL10",
    "UtbyUL11",
    "UtbyUL12",
    "UtbyUL13",
    "UtbyUL14",
    "UtbyUL15",
    "UtbyULTot",
    "NTW",
    "NDW",
    "TTR",
    "MA_NTW",
    "MA_NDW",
    "MA_TTR",
    "BoundMorphs",
    "DiffBM",
    "BoundClitics",
    "MeanTurnUt",
    "MedTurnUt",
    "MeanTurnWd",
    "MedTurnWd",
    "%RespToQues",
    "OtherSpkQues",
    "RespToQues",
    "ReqClarRespToQues",
    "YNRespToQues",
    "OthRespToQues",
    "%RespToIntPrmpt",
    "OtherSpkIntPrmpt",
    "RespToIntPrmpt",
    "Imitations",
    "ExactImit",
    "ReducedImit",
    "SponUt",
    "SponStmt",
    "SponExcl",
    "SponQues",
    "SponIntPrmpt",
    "SponAban",
    "SponInter",
    "%UtWOverlap",
    "UtWOverlap",
    "%IntrOthSpk",
    "IntrOthSpk",
    "%WdsMention1st",
    "WdsMention1st",
    "TurnByTLUt1",
    "TurnByTLUt2",
    "TurnByTLUt3",
    "TurnByTLUt4",
    "TurnByTLUt5",
    "TurnByTLUt6",
    "TurnByTLUtTot",
    "TurnByTLWd0",
    "TurnByTLWd1",
    "TurnByTLWd2",
    "TurnByTLWd3",
    "TurnByTLWd4",
    "TurnByTLWd5",
    "TurnByTLWd6",
    "TurnByTLWd7",
    "TurnByTLWd8",
    "TurnByTLWd9",
    "TurnByTLWd10",
    "TurnByTLWd11",
    "TurnByTLWd12",
    "TurnByTLWd13",
    "TurnByTLWd14",
    "TurnByTLWd15",
    "TurnByTLWdTot",
    "TimeMin",
    "TimeSec",
    "TimeMinSec",
    "WPM",
    "UtPerMin",
    "%PauseTime",
    "AvgPauseWiUt",
    "AvgPauseBtUt",
    "%AbanUtt",
    "AbanUtt",
    "MzWds",
    "%MzWds",
    "Tot#Mz",
    "AvgWdPerMz",
    "AvgMzPerUt",
    "UtWMaze",
    "%UtWMaze",
    "MazeComp",
    "MzRevPartWd",
    "MzRevWd",
    "MzRevPhr",
    "MzRepPartWd",
    "MzRepWd",
    "MzRepPhr",
    "MzFPSingleWd",
    "MzFPMultWd",
    "%MazeComp",
    "%UttwFC",
    "UttwFC",
    "%UttwCS",
    "UttwCS",
    "QuesTot",
    "QuesTyp",
    "NegTot",
    "NegTyp",
    "ConjTot",
    "ConjTyp",
    "CoreModalTot",
    "CoreModalTyp",
    "MarModalTot",
    "MarModalTyp",
    "PersPrnTot",
    "PersPrnTyp",
    "PossPrnTot",
    "PossPrnTyp",
    "ReflPrnTot",
    "ReflPrnTyp",
    "DemoPrnTot",
    "DemPrnTyp",
    "RelPrnTot",
    "RelPrnTyp",
    "UnivPrnTot",
    "UnivPrnTyp",
    "PartPrnTot",
    "PartPrnTyp",
    "QuanPrnTot",
    "QuanPrnTyp",
    "Extra1Tot",
    "Extra1Typ",
    "Extra2Tot",
    "Extra2Typ",
    "Extra3Tot",
    "Extra3Typ",
    "Extra4Tot",
    "Extra4Typ",
    "Extra5Tot",
    "Extra5Typ",
    "YNTot",
    "YNTyp",
    "FPTot",
    "FPTyp",
    "RespToQues",
    "YNRespToQues",
    "RespToIntPrmpt",
    "Imitations",
    "SponUt",
    "OneWdUt",
    "NonVerbalUt",
    "PartOrAllUnintUt",
    "UtWMaze",
    "UtWPause",
    "UtWOmission",
    "UtWOverlap",
    "UtWParenthetical",
    "UtWDialogue",
    "UtWComment",
    "UtWCode",
    "UtWErrCode",
    "UtWFLuencyCode",
    "UtWNMFormCode",
    "UtWCSwitchCode",
    "Statements",
    "Exclamations",
    "Questions",
    "IntPrmpts",
    "AbanUt",
    "InterruptUt",
    "%UtWMzByUL1",
    "%UtWMzByUL2",
    "%UtWMzByUL3",
    "%UtWMzByUL4",
    "%UtWMzByUL5",
    "%UtWMzByUL6",
    "%UtWMzByUL7",
    "%UtWMzByUL8",
    "%UtWMzByUL9",
    "%UtWMzByUL10",
    "%UtWMzByUL11",
    "%UtWMzByUL12",
    "%UtWMzByUL13",
    "%UtWMzByUL14",
    "%UtWMzByUL15",
    "%UtWMzByULTot",
    "MzByUL1",
    "MzByUL2",
    "MzByUL3",
    "MzByUL4",
    "MzByUL5",
    "MzByUL6",
    "MzByUL7",
    "MzByUL8",
    "MzByUL9",
    "MzByUL10",
    "MzByUL11",
    "MzByUL12",
    "MzByUL13",
    "MzByUL14",
    "MzByUL15",
    "MzByULTot",
    "MzByML1",
    "MzByML2",
    "MzByML3",
    "MzByML4",
    "MzByML5",
    "MzByML6",
    "MzByML7",
    "MzByML8",
    "MzByML9",
    "MzByML10",
    "MzByML11",
    "MzByML12",
    "MzByML13",
    "MzByML14",
    "MzByML15",
    "MzByMLTot",
    "%UtWErrors",
    "%WordErrors",
    "Omissions",
    "OmitWd",
    "OmitBm",
    "OmitCl",
    "ErrCodes",
    "ErrCodesWd",
    "ErrCodesUt",
    "FlCodesWd",
    "FlCodesUt",
    "%UtWNMForms",
    "NMFormCodes",
    "NMFormCodesWd",
    "NMFormCodesUt",
    "%UtWCSwitch",
    "CSwitchCodes",
    "CSwitchCodesWd",
    "CSwitchCodesUt",
    "CQ Total",
    "ONC",
    "CQ_Q1",
    "CQ_Q2",
    "CQ_Q3",
    "CQ_Q4",
    "CQ_Q5",
    "CQ_Q6",
    "CQ_Q7",
    "CQ_Q8",
    "CQ_Q9",
    "CQ_Q10",
    "ONC_Who",
    "ONC_Where",
    "ONC_Problem",
    "ONC_Feeling",
    "ONC_Action",
    "ONC_Ending",
    "FCB Total",
    "FCB Rated",
    "FCB_Blink",
    "FCB_Gaze",
    "FCB_Face",
    "FCB_Head",
    "FCB_Limb",
    "FCB_Breath",
    "FCB_Voice",
    "FCB_Filler",
    "SI",
    "SI Coded",
    "NSS",
    "NSS_Intro",
    "NSS_CharDev",
    "NSS_MentalSt",
    "NSS_Ref",
    "NSS_ConfRes",
    "NSS_Cohes",
    "NSS_Concl",
    "ESS",
    "ESS_Prep",
    "ESS_Object",
    "ESS_Start",
    "ESS_Course",
    "ESS_Rules",
    "ESS_Scoring",
    "ESS_Ending",
    "ESS_Strategy",
    "ESS_Terms",
    "ESS_Cohes",
    "PSS",
    "PSS_Issue",
    "PSS_Reasons",
    "PSS_OtherPOV",
    "PSS_Compromise",
    "PSS_Concl",
    "PSS_Cohes",
    "PSS_Effect",
    "ONQ",
    "ONQ_Grammar",
    "ONQ_Sequence",
    "ONQ_Vocab",
    "ONQ_Fluency",
    "GC_InitTot",
    "GC_InitTyp",
    "GC_DetTot",
    "GC_DetTyp",
    "GC_AdjTot",
    "GC_AdjTyp",
    "GC_NounTot",
    "GC_NounTyp",
    "GC_PersPrnTot",
    "GC_PersPrnTyp",
    "GC_OthrPrnTot",
    "GC_OthrPrnTyp",
    "GC_AuxModTot",
    "GC_AuxModTyp",
    "GC_AuxOpTot",
    "GC_AuxOpTyp",
    "GC_VerbTot",
    "GC_VerbTyp",
    "GC_CopulaTot",
    "GC_CopulaTyp",
    "GC_VerbPartclTot",
    "GC_VerbPartclTyp",
    "GC_AdvTot",
    "GC_AdvTyp",
    "GC_IntenseTot",
    "GC_IntenseTyp",
    "GC_PrepTot",
    "GC_PrepTyp",
    "GC_ExistTot",
    "GC_ExistTyp",
    "GC_QuesTot",
    "GC_QuesTyp",
    "GC_CoordTot",
    "GC_CoordTyp",
    "GC_SubTot",
    "GC_SubTyp",
    "GC_InfTot",
    "GC_InfTyp",
    "GC_PossTot",
    "GC_PossTyp",
    "GC_NegTot",
    "GC_NegTyp",
    "GC_LetTot",
    "GC_LetTyp",
    "GC_IntjTot",
    "GC_IntjTyp",
};

TEST(VariableCatalogue, ColumnNamesInCatalogueOrder) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    ASSERT_EQ(c.size(), static_cast<int>(kColumnOrder.size()));
    for (int i = 0; i < c.size(); ++i)
        EXPECT_EQ(c.variable(i).name, kColumnOrder[i]) << "index " << i;
}

TEST(VariableCatalogue, OddNamesStandAsTheyAre) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    for (const char* name : {"%IntelUt", "Tot#Mz", "CQ Total", "UtWFLuencyCode", "DemoPrnTot",
                             "DemPrnTyp", "Speaker#"})
        EXPECT_EQ(c.find(name).size(), 1u) << name;
    EXPECT_TRUE(c.find("DemoPrnTyp").empty());
    EXPECT_TRUE(c.find("UtWFluencyCode").empty());
    const BatchVariable& speaker = c.variable(c.find("Speaker#").front());
    EXPECT_EQ(speaker.description, "Speaker #");
    int demo = c.find("DemoPrnTot").front();
    EXPECT_EQ(c.variable(demo + 1).name, "DemPrnTyp");
}

TEST(VariableCatalogue, DuplicateNamesAreSeparateVariables) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    for (const char* name : {"TotNumUt", "MLUw", "NTW", "RespToQues", "OmitWd"}) {
        std::vector<int> at = c.find(name);
        ASSERT_GE(at.size(), 2u) << name;
        std::set<int> groups;
        for (int i : at)
            groups.insert(c.variable(i).group);
        EXPECT_EQ(groups.size(), at.size()) << name << " twice in one group";
    }
}

TEST(VariableCatalogue, GroupTitlesAndFirstIndexes) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"General Information", "Filename"},
        {"Plus Lines", "ParticipantId"},
        {"Standard Measures Report", "TotNumUt"},
        {"Summary of Utterance Types", "TotNumUt"},
        {"Syntax/Morphology Summary", "MLUw"},
        {"Utterance Distribution", "UtbyUL0"},
        {"Semantics Summary", "NTW"},
        {"Discourse Summary", "MeanTurnUt"},
        {"Turn Length Distribution", "TurnByTLUt1"},
        {"Verbal Facility Summary", "TimeMin"},
        {"Verbal Facility Summary", "%AbanUtt"},
        {"Standard Word Lists", "QuesTot"},
        {"Standard Utterance Lists", "RespToQues"},
        {"Maze Distribution Tables", "%UtWMzByUL1"},
        {"Omissions and Errors", "%UtWErrors"},
        {"Nonmainstream-form Codes", "%UtWNMForms"},
        {"Code-switch Codes", "%UtWCSwitch"},
        {"Comprehension Questions", "CQ Total"},
        {"Fluency Codes and Behaviors", "FCB Total"},
        {"Subordination Index", "SI"},
        {"Narrative Scoring Scheme", "NSS"},
        {"Expository Scoring Scheme", "ESS"},
        {"Persuasion Scoring Scheme", "PSS"},
        {"Oral Narrative Quality", "ONQ"},
        {"Grammatical Categories", "GC_InitTot"},
        {"Explore", ""},
    };
    ASSERT_EQ(c.groups().size(), expected.size());
    int next = 0;
    for (size_t g = 0; g < expected.size(); ++g) {
        const VariableGroup& group = c.groups()[g];
        EXPECT_EQ(group.title, expected[g].first);
        EXPECT_EQ(group.first, next) << group.title;
        if (group.count > 0) {
            EXPECT_EQ(c.variable(group.first).name, expected[g].second) << group.title;
        }
        for (int i = group.first; i < group.first + group.count; ++i) {
            EXPECT_EQ(c.variable(i).group, static_cast<int>(g));
            EXPECT_EQ(c.variable(i).indexInGroup, i - group.first);
        }
        next = group.first + group.count;
    }
    EXPECT_EQ(next, c.size());
    EXPECT_EQ(c.groups()[0].count, VariableCatalogue::kGeneralCount);
    EXPECT_EQ(c.groups()[1].count, VariableCatalogue::kPlusLineCount);
}

TEST(VariableCatalogue, DescriptionsTypesAndSources) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    std::set<std::string> seenInGroup;
    for (const BatchVariable& v : c.variables()) {
        EXPECT_FALSE(v.description.empty()) << v.name;
        EXPECT_TRUE(seenInGroup.insert(std::to_string(v.group) + "/" + v.name).second);
        if (v.type == ValueType::Decimal) {
            EXPECT_TRUE(v.decimals == 2 || v.decimals == 3) << v.name;
        }
    }
    auto first = [&](const char* name) { return c.variable(c.find(name).front()); };
    EXPECT_EQ(first("CA").description, "CA (yy;mm)");
    EXPECT_EQ(first("CAmm").type, ValueType::Integer);
    EXPECT_EQ(first("Ethnic").description, "Ethnicity");
    EXPECT_EQ(first("Ethnic").measure, "Ethnicity");
    EXPECT_EQ(first("Ethnic").source, ValueSource::PlusLine);
    EXPECT_EQ(first("Filename").source, ValueSource::General);
    EXPECT_EQ(first("Tot#Mz").description, "Total Number of Mazes");
    EXPECT_EQ(first("TimeMinSec").type, ValueType::Text);
    EXPECT_EQ(first("TimeMinSec").description, "Elapsed Time (min:sec)");
    EXPECT_EQ(first("BrownStg").type, ValueType::Text);
    EXPECT_EQ(first("MLUw").type, ValueType::Decimal);
    EXPECT_EQ(first("TTR").decimals, 3);
    EXPECT_EQ(first("TotNumUt").type, ValueType::Integer);
    EXPECT_EQ(first("MA_NTW").type, ValueType::Integer); // the window size, a whole number
    EXPECT_EQ(c.variable(c.find("MLUw")[1]).description,
              "MLU in Words - words, analysis set utterances");
}

// Every measure column is a measure the analysis computes, printed in the
// same kind of number: counts as whole numbers, means and percentages as
// decimals, stages and times as texts.
TEST(VariableCatalogue, MeasureColumnsNameComputedMeasures) {
    for (const BatchVariable& v : VariableCatalogue::standard().variables()) {
        if (v.source != ValueSource::Measure)
            continue;
        std::optional<MeasureId> id = measureIdByName(v.measure);
        if (!id) {
            // Scoring-template components and counts: whole numbers read
            // from the shipped templates' lines.
            EXPECT_TRUE(macroVariables().contains(v.name)) << v.name;
            EXPECT_EQ(v.type, ValueType::Integer) << v.name;
            continue;
        }
        MeasureFormat f = measureFormat(*id);
        ValueType expected = f == MeasureFormat::Count  ? ValueType::Integer
                             : f == MeasureFormat::Text ? ValueType::Text
                                                        : ValueType::Decimal;
        EXPECT_EQ(v.type, expected) << v.name;
    }
}

} // namespace
} // namespace tavi
