// The Summary of Utterance Types: rows in their fixed order with their marks,
// "Number" and "Percent" of the total, and the table in plain text.
#include <gtest/gtest.h>

#include "fake_inputs.h"
#include "reports/text_writer.h"
#include "reports/utterance_types_report.h"

namespace tavi {
namespace {

using testing::labelSource;
using testing::measureSource;
using testing::primaryLabels;

TEST(UtteranceTypesReport, TableOfCountsAndPercentsOfTotalUtterances) {
    TranscriptReportContext context;
    context.transcriptName = "Talk.tvi";
    context.speakerLabel = "Child";
    context.analysisSetName = "C&I Verbal Utts";
    context.wordBase = "Main Body";
    context.cutDescription = "Entire Transcript";
    context.elapsedSeconds = 300;
    testing::MeasureMap counts{
        {"TotNumUt", 7},    {"Statements", 3}, {"Exclamations", 1}, {"Questions", 1},
        {"IntPrmpts", 0},   {"AbanUt", 1},     {"InterruptUt", 1},  {"UnintelUt", 0},
        {"PartIntelUt", 1}, {"RespToQues", 2}, {"YNRespToQues", 1}, {"RespToIntPrmpt", 0},
        {"Imitations", 0},  {"OneWdUt", 2},    {"UtWMaze", 1},      {"UtWPause", 0},
        {"UtWOmission", 1}, {"UttwWdCode", 2}, {"UttwUtCode", 1},
    };
    Report report =
        buildUtteranceTypesReport(context, measureSource(counts), labelSource(primaryLabels()));
    EXPECT_EQ(reportToText(report), R"(Summary of Utterance Types

Talk.tvi
Speaker:  Child (1st Speaker)
Based on:  C&I Verbal Utts
Word Base:  Main Body
Transcript Cut:  Entire Transcript
Elapsed Time (minutes): 5 Minutes

                                       Number    Percent
Total Utterances                            7       100%
Statements (.)                              3      42.9%
Exclamations (!)                            1      14.3%
Questions (?)                               1      14.3%
Intonation Prompts (~)                      0       0.0%
Abandoned Utterances (>)                    1      14.3%
Interrupted Utterances (^)                  1      14.3%
Unintelligible Utterances                   0       0.0%
Partly Intelligible Utterances              1      14.3%
Responses to Questions (Q)                  2      28.6%
Yes/No Responses to Questions (Y)           1      14.3%
Responses to Intonation Prompts (P)         0       0.0%
Imitations (I)                              0       0.0%
One-word Utterances (O)                     2      28.6%
Utterances with Mazes                       1      14.3%
Utterances with Pauses                      0       0.0%
Utterances with Omissions                   1      14.3%
Utterances with Word Codes                  2      28.6%
Utterances with Utterance Codes             1      14.3%
Utterances with Excluding Codes           ---        ---
)");
}

TEST(UtteranceTypesReport, NoUtterancesGivesCountsWithoutPercentages) {
    Report report = buildUtteranceTypesReport(
        {}, measureSource({{"TotNumUt", 0}, {"Statements", 0}}), labelSource(primaryLabels()));
    const auto& table = std::get<ReportTable>(report.sections[0].items[0]);
    ASSERT_EQ(table.rows.size(), kUtteranceTypeRowCount);
    EXPECT_EQ(table.headings, (std::vector<std::string>{"Number", "Percent"}));
    EXPECT_EQ(table.rows[1].cells, (std::vector<std::string>{"0", "   ---"}));
}

} // namespace
} // namespace tavi
