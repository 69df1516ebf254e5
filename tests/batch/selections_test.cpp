// Selection files must read back to exactly the record that wrote them, in the
// file and in the settings section, and bad missing values must be refused
// with the system's words before anything is run or saved.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/file_io.h"
#include "batch/selection_file.h"
#include "batch/variable_catalogue.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

BatchSelections fullRecord() {
    BatchSelections s;
    s.speaker = BatchSelections::kOtherSpeaker;
    s.missingText = "n/a here";
    s.missingInteger = "-1";
    s.missingDecimal = "-1.5";
    s.general = {true, false, true, false, false, true};
    s.plusLines[0] = s.plusLines[19] = true;
    s.plusList = {"Story", "Test Site"};
    s.groups["SMR"] = {0, 11, 35};
    s.groups["UDLENGTH"] = {3};
    s.groups["GCL"] = {45};
    s.groups["MACROSTRUCT"] = {2};
    s.explore.occurrences = true;
    s.explore.mentionedFirst = true;
    s.explore.utteranceChoice = 2;
    s.explore.codeTypeChoice = 1;
    s.explore.wordBaseAnd = true;
    s.explore.wordBaseNot = true;
    s.explore.mazeRevisions = true;
    s.explore.wordBaseChoices = {1, 4};
    s.explore.lengthFrom = 2;
    s.explore.lengthTo = 9;
    s.explore.lengthInMorphemes = true;
    s.explore.wordList = {{false, "dog*"}, {true, "Child"}, {false, "ice cream"}};
    return s;
}

fs::path tempFolder(const char* name) {
    fs::path dir = fs::temp_directory_path() / ("tavi_batch_" + std::string(name));
    fs::remove_all(dir);
    fs::create_directories(dir);
    return dir;
}

TEST(SelectionFile, WrittenAndReadBackToTheSameRecord) {
    fs::path file = tempFolder("sbt") / "study.SBT";
    test::RecordingPrompter prompter;
    for (BatchSelections s : {fullRecord(), BatchSelections{}, BatchSelections::empty()}) {
        if (s.missingText.empty())
            s.missingText = s.missingInteger = s.missingDecimal = "0";
        ASSERT_TRUE(saveSelectionFile(file, s, prompter));
        EXPECT_EQ(prompter.messages.back(), "Selections saved in " + file.string());
        BatchSelections back;
        ASSERT_TRUE(loadSelectionFile(file, back, prompter));
        EXPECT_EQ(back, s);
    }
    std::string bytes;
    ASSERT_TRUE(readFile(file, bytes));
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBF"));
}

TEST(SelectionFile, LinesInTheirFixedOrder) {
    std::vector<std::string> lines = selectionLines(fullRecord());
    const std::vector<std::string> expected = {"SPEAKER 2ND",
                                               "XTEXT n/a here",
                                               "XINT -1",
                                               "XVAL -1.5",
                                               "GENINFO 0",
                                               "GENINFO 2",
                                               "GENINFO 5",
                                               "PLUSLINE 0",
                                               "PLUSLINE 19",
                                               "PLUSLIST Story",
                                               "PLUSLIST Test Site",
                                               "SMR 0",
                                               "SMR 11",
                                               "SMR 35",
                                               "UDLENGTH 3",
                                               "MACROSTRUCT 2",
                                               "GCL 45",
                                               "EXPLSELUTTS_NO",
                                               "EXPLNUMOCC_YES",
                                               "EXPLNUMUTT_NO",
                                               "EXPLDIFFFORM_NO",
                                               "EXPLDIFFWORD_NO",
                                               "EXPLPRESENCE_NO",
                                               "EXPLMENTIONEDFIRST_YES",
                                               "EXPLUTT 2",
                                               "EXPLAREA 0",
                                               "EXPLRID 0",
                                               "EXPLCODETYPE 1",
                                               "WBSUT_AND",
                                               "WBSUT_NOT_YES",
                                               "WBSUT MZFP_NO",
                                               "WBSUT MZREP_NO",
                                               "WBSUT MZREV_YES",
                                               "WBSUT 1",
                                               "WBSUT 4",
                                               "WBLENFROM 2",
                                               "WBLENTO 9",
                                               "WB_MRPHLEN",
                                               "EXPLLIST dog*",
                                               "EXPLLIST $ Child",
                                               "EXPLLIST ice cream"};
    EXPECT_EQ(lines, expected);
}

TEST(SelectionFile, SpeakerLineAndExplorePairs) {
    BatchSelections s = BatchSelections::empty();
    std::vector<std::string> lines = selectionLines(s);
    EXPECT_TRUE(std::none_of(lines.begin(), lines.end(),
                             [](const std::string& l) { return l.starts_with("SPEAKER"); }));
    EXPECT_TRUE(std::none_of(lines.begin(), lines.end(),
                             [](const std::string& l) { return l.starts_with("X"); }));
    for (const char* pair : {"EXPLSELUTTS_NO", "EXPLNUMOCC_NO", "EXPLNUMUTT_NO", "EXPLDIFFFORM_NO",
                             "EXPLDIFFWORD_NO", "EXPLPRESENCE_NO", "EXPLMENTIONEDFIRST_NO"})
        EXPECT_NE(std::find(lines.begin(), lines.end(), pair), lines.end()) << pair;
    s.speaker = BatchSelections::kTargetSpeaker;
    EXPECT_EQ(selectionLines(s).front(), "SPEAKER 1ST");
}

TEST(SelectionFile, SettingsSectionReadsBack) {
    BatchSelections s = fullRecord();
    std::vector<std::string> section = batchSectionLines(s);
    for (const std::string& line : section)
        EXPECT_TRUE(line.starts_with("BATCH ")) << line;
    std::vector<std::string> file = {"ASET INCLUDEINC"};
    file.insert(file.end(), section.begin(), section.end());
    file.push_back("MATTRSET WINDOW 50");
    BatchSelections back;
    applyBatchSettings(back, parseKeywordText(keywordFileBytes(file)));
    EXPECT_EQ(back, s);

    BatchSelections untouched;
    applyBatchSettings(untouched, parseKeywordText(keywordFileBytes({"ASET INCLUDEINC"})));
    EXPECT_EQ(untouched, BatchSelections{});
}

TEST(SelectionFile, LowerCaseKeywordsAndUnknownLines) {
    BatchSelections s = selectionsFromLines(
        parseKeywordText("speaker 1st\nxint 7\nsmr 3\nNONSENSE 4\nsmr x\nGENINFO 6\nPLUSLINE -1\n"
                         "wbsut mzfp_yes\nexplnumocc_yes\n"));
    EXPECT_EQ(s.speaker, BatchSelections::kTargetSpeaker);
    EXPECT_EQ(s.missingInteger, "7");
    EXPECT_EQ(s.groups["SMR"], std::set<int>{3});
    EXPECT_EQ(s.general, (std::array<bool, 6>{}));
    EXPECT_EQ(s.plusLines, (std::array<bool, 20>{}));
    EXPECT_TRUE(s.explore.mazeFilledPauses);
    EXPECT_TRUE(s.explore.occurrences);
}

TEST(SelectionFile, MissingFileIsReportedAndChangesNothing) {
    fs::path file = tempFolder("missing") / "none.SBT";
    test::RecordingPrompter prompter;
    BatchSelections s = fullRecord();
    EXPECT_FALSE(loadSelectionFile(file, s, prompter));
    EXPECT_EQ(s, fullRecord());
    ASSERT_EQ(prompter.messages.size(), 1u);
    EXPECT_EQ(prompter.messages[0], "Unable to open Batch selection file (" + file.string() + ")");
}

TEST(MissingValues, ValidatedInOrderWithTheSystemsWords) {
    using P = MissingValueProblem;
    struct Case {
        const char* text;
        const char* integer;
        const char* decimal;
        std::optional<P::Field> field;
        const char* message;
    };
    const Case cases[] = {
        {"NA", "-999", "-999", std::nullopt, ""},
        {"NA", "+12", "1e3", std::nullopt, ""},
        {"NA", "0", ".5", std::nullopt, ""},
        {"  ", "1.5", "x", P::Text, "'Missing text value' cannot be blank"},
        {"NA", "", "x", P::Integer, "'Missing integer value' cannot be blank"},
        {"NA", "1.5", "x", P::Integer,
         "'Missing integer value' must be a whole number (not a decimal)"},
        {"NA", "seven", "", P::Integer,
         "'Missing integer value' must be a whole number (not a decimal)"},
        {"NA", "3", " ", P::Decimal, "'Missing decimal value' cannot be blank"},
        {"NA", "3", "abc", P::Decimal, "'Missing decimal value' must be numeric"},
        {"NA", "3", "1.2.3", P::Decimal, "'Missing decimal value' must be numeric"},
        {"NA", "3", "-", P::Decimal, "'Missing decimal value' must be numeric"},
    };
    for (const Case& c : cases) {
        BatchSelections s;
        s.missingText = c.text;
        s.missingInteger = c.integer;
        s.missingDecimal = c.decimal;
        std::optional<P> problem = validateMissingValues(s);
        ASSERT_EQ(problem.has_value(), c.field.has_value()) << c.integer << " " << c.decimal;
        if (problem) {
            EXPECT_EQ(problem->field, *c.field);
            EXPECT_EQ(problem->message, c.message);
        }
    }
}

TEST(MissingValues, SaveRefusesBadValuesAndWritesNothing) {
    fs::path file = tempFolder("refuse") / "bad.SBT";
    BatchSelections s;
    s.missingInteger = "1.5";
    test::RecordingPrompter prompter;
    EXPECT_FALSE(saveSelectionFile(file, s, prompter));
    EXPECT_FALSE(fs::exists(file));
    ASSERT_EQ(prompter.messages.size(), 1u);
    EXPECT_EQ(prompter.messages[0],
              "'Missing integer value' must be a whole number (not a decimal)");
}

TEST(Selections, ChosenVariablesFollowCatalogueOrder) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    BatchSelections s = BatchSelections::empty();
    s.groups["GCL"] = {0};
    s.groups["SMR"] = {11, 0};
    s.general[0] = true;
    s.plusLines[5] = true;
    s.groups["SYNSMRY"] = {0, 99}; // 99 lies outside the group and is not a variable
    std::vector<std::string> names;
    for (int i : chosenVariables(s, c))
        names.push_back(c.variable(i).name);
    EXPECT_EQ(names, (std::vector<std::string>{"Filename", "CA", "TotNumUt", "MLUw", "MLUw",
                                               "GC_InitTot"}));
    BatchSelections all = BatchSelections::empty();
    chooseAllVariables(all, c);
    EXPECT_EQ(static_cast<int>(chosenVariables(all, c).size()), c.size());
}

} // namespace
} // namespace tavi
