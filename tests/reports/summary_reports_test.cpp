// The Analyze menu's summaries, distribution tables and customised report,
// built from transcripts the tests write: their tables add up to the
// measures they stand beside, the codes found are the codes written, and
// every report of the table is written in every format.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "base/file_io.h"
#include "qt/pdf_writer.h"
#include "reports/custom_report.h"
#include "reports/grid_writer.h"
#include "reports/html_writer.h"
#include "reports/report_grid.h"
#include "reports/report_registry.h"
#include "reports/rtf_writer.h"
#include "reports/text_writer.h"
#include "reports/transcript_report.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

// Two speakers, turns of several lengths, mazes of every kind, codes on
// words and on utterances (two of them error codes), an omission.
constexpr const char* kSample = "$ Child, Examiner\n"
                                "- 0:00\n"
                                "E what did you do?\n"
                                "C I (um) went to the park.\n"
                                "C (the the) dog ran[EW:run] fast.\n"
                                "C (he) she (went) went home [EU].\n"
                                "E did you like it?\n"
                                "C yes.\n"
                                "E tell me more.\n"
                                "C we *a had (pi*) pizza[CS] after.\n"
                                "C it was good [NEW].\n"
                                "C my brother (uh um) ate[EO:eat] a lot.\n"
                                "E wow.\n"
                                "C and then we went to bed.\n"
                                "- 1:30\n";

struct Built {
    TranscriptAnalysis analysis;
    Settings settings;
};

Built analyse(const char* text = kSample, int speaker = 0) {
    Built built;
    AnalysisRequest request;
    request.speaker = speaker;
    built.analysis = analyseText(text, analysisContext(built.settings, nullptr), request);
    return built;
}

Report build(const Built& built, std::string_view kind, ReportChoices choices = {}) {
    TranscriptReportRequest request;
    request.kind = kind;
    request.transcriptName = "sample.tvi";
    request.choices = std::move(choices);
    return buildTranscriptReport(built.analysis, built.settings, request);
}

const ReportTable& table(const Report& report, size_t section, size_t item = 0) {
    const auto* found = std::get_if<ReportTable>(&report.sections.at(section).items.at(item));
    if (!found)
        throw std::logic_error("no table there");
    return *found;
}

int cellNumber(const std::string& cell) {
    return std::stoi(cell);
}

double measure(const Built& built, int speaker, std::string_view id) {
    return *built.analysis.result.speakers[static_cast<size_t>(speaker)].find(id)->number();
}

// The rows above the total row of a count column add up to it.
void expectRowsAddUp(const ReportTable& t, size_t column) {
    int sum = 0;
    for (size_t r = 0; r + 1 < t.rows.size(); ++r)
        sum += cellNumber(t.rows[r].cells.at(column));
    EXPECT_EQ(sum, cellNumber(t.rows.back().cells.at(column))) << t.rows.back().label;
}

TEST(SummaryReports, DistributionTablesAddUpToTheMeasuresOfBothSpeakers) {
    const Built built = analyse();
    ASSERT_FALSE(built.analysis.hasErrors());

    const Report utterances = build(built, "utterance-distribution");
    const ReportTable& lengths = table(utterances, 0);
    ASSERT_EQ(lengths.headings.size(), 4u); // Number and Percent of each speaker
    EXPECT_EQ(lengths.headings[0], "Child Number");
    EXPECT_EQ(lengths.headings[2], "Examiner Number");
    ASSERT_EQ(lengths.rows.size(), 17u); // 0 ... 14, 15+, Total
    EXPECT_EQ(lengths.rows[15].label, "15+");
    for (int speaker : {0, 1}) {
        const size_t column = static_cast<size_t>(speaker) * 2;
        expectRowsAddUp(lengths, column);
        EXPECT_EQ(cellNumber(lengths.rows.back().cells[column]),
                  measure(built, speaker, "TotASetUt"));
        EXPECT_EQ(lengths.rows.back().cells[column + 1], "100%");
    }
    // The child's utterances of 3 words: "dog ran fast", "she went home", "it was good".
    EXPECT_EQ(lengths.rows[3].cells[0], "3");
    EXPECT_EQ(lengths.rows[4].cells[0], "1"); // "we had pizza after"

    const Report turns = build(built, "turn-distribution");
    for (size_t section : {0u, 1u}) {
        const ReportTable& t = table(turns, section);
        for (int speaker : {0, 1}) {
            const size_t column = static_cast<size_t>(speaker) * 2;
            expectRowsAddUp(t, column);
            EXPECT_EQ(cellNumber(t.rows.back().cells[column]),
                      measure(built, speaker, "TurnByTLUtTot"));
        }
    }
    // The child's turns: 3 utterances, 1, 3, then 1.
    const ReportTable& byUtterances = table(turns, 0);
    EXPECT_EQ(byUtterances.rows[0].cells[0], "2");
    EXPECT_EQ(byUtterances.rows[2].cells[0], "2");
    EXPECT_EQ(byUtterances.rows[3].cells[0], "0");
    EXPECT_EQ(byUtterances.rows.back().cells[0], "4");

    // A transcript of one speaker shows one speaker's columns.
    const Built alone = analyse("$ Child\nC I go.\nC we go home.\n");
    EXPECT_EQ(table(build(alone, "utterance-distribution"), 0).headings.size(), 2u);
}

TEST(SummaryReports, MazeTablesCountEveryMazeOnce) {
    const Built built = analyse();
    const Report mazes = build(built, "maze-distribution");
    const double all = measure(built, 0, "Tot#Mz");
    EXPECT_EQ(all, 6);
    const ReportTable& kinds = table(mazes, 0);
    ASSERT_EQ(kinds.rows.size(), 9u);
    expectRowsAddUp(kinds, 0);
    EXPECT_EQ(cellNumber(kinds.rows.back().cells[0]), all);
    const ReportTable& byLength = table(mazes, 2);
    expectRowsAddUp(byLength, 0);
    EXPECT_EQ(cellNumber(byLength.rows.back().cells[0]), all);
    EXPECT_EQ(byLength.rows[0].cells[0], "4"); // (um) (he) (went) (pi*)
    EXPECT_EQ(byLength.rows[1].cells[0], "2"); // (the the) (uh um)
    EXPECT_EQ(cellNumber(table(mazes, 1).rows.back().cells[1]), all);
}

TEST(SummaryReports, CodeTablesCountTheCodesWritten) {
    const Built built = analyse();
    const Report codes = build(built, "code-summary");
    // Word codes [EW:run] [CS] [EO:eat]; utterance codes [EU] [NEW].
    const ReportTable& onWords = table(codes, 2);
    ASSERT_EQ(onWords.rows.size(), 4u);
    EXPECT_EQ(onWords.rows[0].label, "[CS]");
    EXPECT_EQ(onWords.rows[1].label, "[EO:eat]");
    EXPECT_EQ(onWords.rows[2].label, "[EW:run]");
    EXPECT_EQ(onWords.rows.back().cells[0], "3");
    const ReportTable& onUtterances = table(codes, 3);
    ASSERT_EQ(onUtterances.rows.size(), 3u);
    EXPECT_EQ(onUtterances.rows[0].label, "[EU]");
    EXPECT_EQ(onUtterances.rows[1].label, "[NEW]");
    // The code lists' row of error codes is the measures'.
    const ReportTable& lists = table(codes, 1);
    EXPECT_EQ(lists.rows[0].cells, (std::vector<std::string>{"2", "1", "3"}));
    EXPECT_EQ(lists.rows[3].cells[0], "1"); // [CS]

    const Report errors = build(built, "errors-summary");
    const ReportSection& errorCodes = errors.sections.back();
    const auto* found = std::get_if<ReportTable>(&errorCodes.items.back());
    ASSERT_NE(found, nullptr);
    ASSERT_EQ(found->rows.size(), 4u); // [EO:eat] [EU] [EW:run], Total
    EXPECT_EQ(found->rows.back().cells,
              (std::vector<std::string>{std::to_string(int(measure(built, 0, "ErrCodesWd"))),
                                        std::to_string(int(measure(built, 0, "ErrCodesUt"))),
                                        std::to_string(int(measure(built, 0, "ErrCodes")))}));
    EXPECT_EQ(found->rows.back().cells[2], "3");

    // Without codes the sections say so.
    const Built plain = analyse("$ Child\nC I go.\n");
    const Report none = build(plain, "code-summary");
    EXPECT_EQ(std::get<TextLine>(none.sections[2].items[0]).text, "No word codes were found.");
    EXPECT_EQ(std::get<TextLine>(build(plain, "errors-summary").sections.back().items.back()).text,
              "No Error Codes");
}

TEST(SummaryReports, SummaryLinesShowTheSpeakersMeasuresWithTheAnalysisSetMark) {
    const Built built = analyse();
    const std::string syntax = reportToText(build(built, "syntax-summary"));
    EXPECT_NE(syntax.find("\n# MLU in Words:  " +
                          built.analysis.measures().formatted(MeasureId::MLUw) + "\n"),
              std::string::npos)
        << syntax;
    EXPECT_NE(syntax.find("\n  Omitted Words:  1\n"), std::string::npos);
    EXPECT_NE(syntax.find("# Calculations based on current analysis set"), std::string::npos);

    const std::string discourse = reportToText(build(built, "discourse-summary"));
    EXPECT_NE(discourse.find("\n  Other Speaker's Questions:  2\n"), std::string::npos)
        << discourse;
    EXPECT_NE(discourse.find("\n  Responses to Questions:  2\n"), std::string::npos);

    const std::string facility = reportToText(build(built, "verbal-facility"));
    EXPECT_NE(facility.find("\n  Elapsed Time (minutes):  1 Minutes  30 Seconds\n"),
              std::string::npos)
        << facility;
    EXPECT_NE(facility.find("\n  Total Number of Mazes:  6\n"), std::string::npos);

    const std::string semantics = reportToText(build(built, "semantics-summary"));
    EXPECT_NE(semantics.find("\n# Number Total Words (NTW):  " +
                             built.analysis.measures().formatted(MeasureId::NTW) + "\n"),
              std::string::npos);

    // The 2nd speaker's summary reads the 2nd speaker's record.
    const Built examiner = analyse(kSample, 1);
    const std::string second = reportToText(build(examiner, "discourse-summary"));
    EXPECT_NE(second.find("Examiner (2nd Speaker)"), std::string::npos) << second;
    EXPECT_NE(second.find("\n  Other Speaker's Questions:  0\n"), std::string::npos);
}

TEST(SummaryReports, CustomReportListsAndHoldsTheChosenReports) {
    const Built built = analyse();
    TranscriptReportRequest request;
    request.kind = kCustomReportName;
    request.transcriptName = "sample.tvi";
    request.choices.kinds = {"syntax-summary", "turn-distribution"};
    const std::vector<Report> reports = buildCustomReports(built.analysis, built.settings, request);
    ASSERT_EQ(reports.size(), 3u);
    EXPECT_EQ(reports[1].title, "Syntax/Morphology Summary");
    const std::string contents = reportToText(reports[0]);
    EXPECT_NE(contents.find("Syntax/Morphology Summary\nTurn Length Distribution Tables"),
              std::string::npos)
        << contents;

    const std::string joined = reportToText(joinReports(reports[0], {reports[1], reports[2]}));
    EXPECT_NE(joined.find("SYNTAX/MORPHOLOGY SUMMARY"), std::string::npos);
    EXPECT_NE(joined.find("Turn Length (words)"), std::string::npos);

    EXPECT_EQ(customReportKinds({"nonsense"}, false).problem, "unknown report nonsense");
    EXPECT_FALSE(customReportKinds({"custom-pdf"}, false).problem.empty());
    const CustomReportKinds defaults = customReportKinds({}, false);
    ASSERT_FALSE(defaults.reports.empty());
    EXPECT_EQ(defaults.reports.front()->name, "smr");
    for (const ReportDefinition* report : defaults.reports)
        EXPECT_NE(report->name, kCustomReportName);
}

// The text of PDF bytes as pdftotext reads them; empty when it is not there.
std::string pdfToText(const std::string& bytes) {
    const auto dir = std::filesystem::temp_directory_path();
    const auto pdf = dir / ("tavi_summary_" + std::to_string(::getpid()) + ".pdf");
    const auto txt = dir / ("tavi_summary_" + std::to_string(::getpid()) + ".txt");
    if (writeFileAtomic(pdf, bytes) != WriteStatus::Ok)
        return {};
    const std::string command =
        "pdftotext -layout '" + pdf.string() + "' '" + txt.string() + "' 2>/dev/null";
    std::string text;
    if (std::system(command.c_str()) == 0)
        readFile(txt, text);
    std::filesystem::remove(pdf);
    std::filesystem::remove(txt);
    return text;
}

TEST(SummaryReports, CustomPdfHasATitlePageAndContentsWithPageNumbers) {
    const Built built = analyse();
    TranscriptReportRequest request;
    request.kind = kCustomReportName;
    request.transcriptName = "sample.tvi";
    request.choices.kinds = {"smr", "code-summary", "maze-distribution"};
    const std::vector<Report> reports = buildCustomReports(built.analysis, built.settings, request);
    std::vector<const Report*> held;
    for (size_t i = 1; i < reports.size(); ++i)
        held.push_back(&reports[i]);
    const std::string bytes = qt::bookToPdf(reports[0], held);
    ASSERT_EQ(bytes.rfind("%PDF", 0), 0u);
    const std::string text = pdfToText(bytes);
    if (text.empty())
        GTEST_SKIP() << "pdftotext is not available";
    // Title page, contents, then each report from page 3 on.
    const size_t title = text.find("Customized Report");
    const size_t contents = text.find("Contents");
    const size_t smr = text.find("TRANSCRIPT LENGTH");
    ASSERT_NE(title, std::string::npos);
    ASSERT_NE(contents, std::string::npos);
    ASSERT_NE(smr, std::string::npos);
    EXPECT_LT(title, contents);
    EXPECT_LT(contents, smr);
    EXPECT_NE(text.find("Standard Measures Report"), std::string::npos);
    const std::string pages = text.substr(contents, smr - contents);
    EXPECT_NE(pages.find("Standard Measures Report"), std::string::npos) << pages;
    EXPECT_NE(pages.find(" 3\n"), std::string::npos) << pages;
    EXPECT_NE(text.find("Page 1 of "), std::string::npos);
    EXPECT_NE(text.find("WORD CODES"), std::string::npos);
    EXPECT_NE(text.find("Number of Mazes by Maze Length"), std::string::npos);
}

// Every report of the table, built from the sample, in every format.
class EveryReport : public ::testing::TestWithParam<std::string_view> {};

TEST_P(EveryReport, IsWrittenInEveryFormat) {
    const ReportDefinition* definition = findReport(GetParam());
    ASSERT_NE(definition, nullptr);
    if (definition->database == DatabaseUse::Required)
        GTEST_SKIP() << "needs a database";
    const Built built = analyse();
    const TranLines lines = splitTranscriptLines(kSample);
    TranscriptReportRequest request;
    request.kind = definition->name;
    request.transcriptName = "sample.tvi";
    request.lines = &lines;
    const Report report = buildTranscriptReport(built.analysis, built.settings, request);
    EXPECT_FALSE(report.title.empty());
    EXPECT_FALSE(report.sections.empty());
    const std::string text = reportToText(report);
    EXPECT_NE(text.find(report.title), std::string::npos);
    EXPECT_EQ(reportToRtf(report).rfind("{\\rtf1", 0), 0u);
    EXPECT_NE(reportToHtml(report).find("<"), std::string::npos);
    const Grid grid = reportGrid(report);
    EXPECT_FALSE(gridFileBytes(grid, ',').empty());
    EXPECT_FALSE(gridFileBytes(grid, '\t').empty());
    EXPECT_EQ(qt::reportsToPdf({&report}).rfind("%PDF", 0), 0u);
}

std::vector<std::string_view> reportNamesOfTable() {
    std::vector<std::string_view> names;
    for (const ReportDefinition& report : reportDefinitions())
        names.push_back(report.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Table, EveryReport, ::testing::ValuesIn(reportNamesOfTable()),
                         [](const auto& info) {
                             std::string name(info.param);
                             for (char& c : name)
                                 if (c == '-')
                                     c = '_';
                             return name;
                         });

} // namespace
} // namespace tavi
