// The Standard Measures Report built from a measure record: sections and
// their order, "# " marks, value forms, the variable choice, labels.
#include <gtest/gtest.h>

#include "fake_inputs.h"
#include "reports/standard_measures_report.h"
#include "reports/text_writer.h"

namespace tavi {
namespace {

using testing::labelSource;
using testing::measureSource;
using testing::primaryLabels;

TranscriptReportContext sampleContext() {
    TranscriptReportContext context;
    context.transcriptName = "Story1.tvi";
    context.speakerLabel = "Child";
    context.analysisSetName = "C&I Verbal Utts";
    context.wordBase = "Main Body";
    context.cutDescription = "Entire Transcript";
    context.elapsedSeconds = 185;
    return context;
}

testing::MeasureMap sampleMeasures() {
    return {{"TotNumUt", 52},
            {"TotASetUt", 48},
            {"AllWords", 231},
            {"TimeSec", 185},
            {"%IntelUt", 100.0f},
            {"%IntelWd", 99.96f},
            {"MLUw", 4.4375f},
            {"MLUm", 5.0625f},
            {"%UtWVerb", 87.5f},
            {"VPU", 1.25f},
            {"%UtWNMForms", 4.1666665f},
            {"NTW", 213},
            {"NDW", 98},
            {"MA_NTW", 100},
            {"MA_NDW", 61.5f},
            {"MA_TTR", 0.615f},
            {"MeanTurnUt", 1.6f},
            {"MeanTurnWd", 7.1f},
            {"%RespQues", 90.0f},
            {"%RespPrmpt", 50.0f},
            {"%UtWOverlap", 0.0f},
            {"%IntrOthSpk", 1.9230769f},
            {"WPM", 74.918915f},
            {"%MzWds", 7.8f},
            {"%AbanUt", 1.9230769f},
            {"%UtWFluencyCd", 0.0f},
            {"%UtWCSwitchCd", 0.0f},
            {"%UtWErrors", 5.7692308f},
            {"%WordErrors", 1.3f}};
}

TEST(StandardMeasuresReport, DefaultChoicePrintsSevenSectionsInOrderAsPlainText) {
    Report report =
        buildStandardMeasuresReport(sampleContext(), measureSource(sampleMeasures()),
                                    SmrVariables::defaults(), labelSource(primaryLabels()));
    EXPECT_EQ(reportToText(report), R"(Standard Measures Report

Story1.tvi
Speaker:  Child (1st Speaker)
Based on:  C&I Verbal Utts
Word Base:  Main Body
Transcript Cut:  Entire Transcript
Elapsed Time (minutes):  3 Minutes  5 Seconds

TRANSCRIPT LENGTH
  Total Utterances:  52
# Analysis Set Utterances:  48
  All Words Including Mazes:  231
  Elapsed Time (minutes):  3 Minutes  5 Seconds

INTELLIGIBILITY
  % Intelligible Utterances:  100%
  % Intelligible Words:  100.0%

SYNTAX/MORPHOLOGY
# MLU in Words:  4.44
# MLU in Morphemes:  5.06
# % Utterances with Verbs:  87.5%
# Mean Verbs/Utterance:  1.25
# % Utts with Nonmainstream Forms:  4.2%

SEMANTICS
# Number Total Words (NTW):  213
# Number Different Words (NDW):  98
# Moving-Average NTW:  100
# Moving-Average NDW:  61.50
# Moving-Average TTR:  0.62

DISCOURSE
  Mean Turn Length (utterances):  1.60
  Mean Turn Length (words):  7.10
  % Responses to Questions:  90.0%
  % Responses to Intonation Prompts:  50.0%
  % Utts with Overlapping Speech:  0.0%
  % Utts Interrupted Other Speaker:  1.9%

VERBAL FACILITY
  Words/Minute:  74.92
  Pause Time as % of Total Time:     ---
  Maze Words as % of Total Words:  7.8%
  % Abandoned Utterances:  1.9%
  % Utterances with Fluency Codes:  0.0%
  % Utterances with Code-switch Codes:  0.0%

ERRORS
  % Utterances with Errors:  5.8%
  % Word Errors:  1.3%

# Calculations based on current analysis set
)");
}

TEST(StandardMeasuresReport, VariableChoiceDropsLinesAndEmptySections) {
    SmrVariables variables;
    EXPECT_NE(variables, SmrVariables::defaults());
    variables.reset();
    EXPECT_EQ(variables, SmrVariables::defaults());
    variables.selectAll();
    Report all = buildStandardMeasuresReport(sampleContext(), measureSource(sampleMeasures()),
                                             variables, labelSource(primaryLabels()));
    ASSERT_EQ(all.sections.size(), 8u);
    EXPECT_EQ(all.sections[2].title, "MACRO ANALYSIS");
    EXPECT_EQ(std::get<LabelledLine>(all.sections[2].items[0]).text(),
              "  NSS Composite Score:     ---");
    EXPECT_EQ(std::get<LabelledLine>(all.sections[3].items[5]).text(),
              "# SI Composite Score:     ---");

    // Only lines over all utterances: no "# " legend.
    SmrVariables few;
    few.chosen[0] = few.chosen[35] = true;
    Report small = buildStandardMeasuresReport(sampleContext(), measureSource(sampleMeasures()),
                                               few, labelSource(primaryLabels()));
    ASSERT_EQ(small.sections.size(), 2u);
    EXPECT_EQ(small.sections[0].title, "TRANSCRIPT LENGTH");
    EXPECT_EQ(small.sections[1].title, "ERRORS");
    EXPECT_TRUE(small.footnotes.empty());
}

TEST(StandardMeasuresReport, ThirtySixLinesInBatchColumnOrderWithTheirMarks) {
    const auto& lines = smrLines();
    size_t covered = 0;
    for (const auto& section : smrSections()) {
        EXPECT_EQ(section.firstLine, covered);
        covered += section.lineCount;
    }
    EXPECT_EQ(covered, kSmrLineCount);
    int marked = 0;
    for (const auto& line : lines)
        marked += line.analysisSet;
    EXPECT_EQ(marked, 12); // analysis-set utterances, syntax/morphology (6), semantics (5)
    EXPECT_EQ(smrLinePrefix(lines[1]), "# ");
    EXPECT_EQ(lines[35].measureId, "%WordErrors");
}

TEST(StandardMeasuresReport, SecondSpeakerMissingTimingAndDatabaseMeans) {
    TranscriptReportContext context = sampleContext();
    context.speaker = 1;
    context.speakerLabel = "Examiner";
    context.elapsedSeconds.reset();
    testing::MeasureMap values = sampleMeasures();
    values.erase("TimeSec");
    SmrVariables variables;
    variables.chosen[3] = variables.chosen[11] = true;
    Report report =
        buildStandardMeasuresReport(context, measureSource(values), variables,
                                    labelSource(primaryLabels()), measureSource({{"MLUw", 5.1}}));
    EXPECT_EQ(report.header[1].text(), "Speaker:  Examiner (2nd Speaker)");
    EXPECT_EQ(report.header[5].text(),
              "Elapsed Time (minutes):  Timing information was not provided.");
    EXPECT_EQ(std::get<LabelledLine>(report.sections[0].items[0]).text(),
              "  Elapsed Time (minutes):  Timing information was not provided.");
    EXPECT_EQ(std::get<LabelledLine>(report.sections[1].items[0]).text(),
              "# MLU in Words:  (4.44)     5.10");
}

TEST(StandardMeasuresReport, UntimedPausesAreSaidSo) {
    TranscriptReportContext context = sampleContext();
    context.pausesUntimed = true;
    SmrVariables variables;
    variables.chosen[29] = true; // Pause Time as % of Total Time
    Report report = buildStandardMeasuresReport(context, measureSource(sampleMeasures()), variables,
                                                labelSource(primaryLabels()));
    EXPECT_EQ(std::get<LabelledLine>(report.sections[0].items[0]).text(),
              "  Pause Time as % of Total Time:  Pauses were not timed.");
    EXPECT_TRUE(report.footnotes.empty());

    context.pausesUntimed = false;
    context.somePausesUntimed = true;
    testing::MeasureMap values = sampleMeasures();
    values["%PauseTime"] = 3.25;
    report = buildStandardMeasuresReport(context, measureSource(values), variables,
                                         labelSource(primaryLabels()));
    EXPECT_EQ(std::get<LabelledLine>(report.sections[0].items[0]).text(),
              "  Pause Time as % of Total Time:  3.2%");
    EXPECT_EQ(report.footnotes, std::vector<std::string>{"Some pauses were not timed."});
}

TEST(StandardMeasuresReport, HeadingsComeFromTheLabelSlot) {
    auto labels = primaryLabels();
    labels["RL_HEADSM"] = "SINTAXIS/MORFOLOGÍA";
    labels["RL_MLUW"] = "LME en palabras";
    SmrVariables variables;
    variables.chosen[11] = true;
    Report report = buildStandardMeasuresReport(sampleContext(), measureSource(sampleMeasures()),
                                                variables, labelSource(labels));
    EXPECT_EQ(report.sections[0].title, "SINTAXIS/MORFOLOGÍA");
    EXPECT_EQ(std::get<LabelledLine>(report.sections[0].items[0]).text(),
              "# LME en palabras:  4.44");
}

} // namespace
} // namespace tavi
