// PDF pages read back with pdftotext: the report's texts are there (so fonts
// were embedded, not boxes), tables keep their values, and every page says
// "Page %d of %d" counted per report.
#include <QPageSize>
#include <QPdfWriter>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <regex>
#include <unistd.h>

#include "base/file_io.h"
#include "fake_inputs.h"
#include "qt/pdf_writer.h"
#include "reports/standard_measures_report.h"
#include "reports/utterance_types_report.h"

namespace tavi {
namespace {

class PdfWriter : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = std::filesystem::temp_directory_path() /
               ("tavi_pdf_test_" + std::to_string(::getpid()));
        std::filesystem::create_directories(dir_);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

    // The text of a PDF file as pdftotext lays it out.
    std::string pdfText(const std::filesystem::path& pdf) {
        const auto txt = dir_ / "out.txt";
        const std::string command =
            "pdftotext -layout '" + pdf.string() + "' '" + txt.string() + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        std::string text;
        EXPECT_TRUE(readFile(txt, text));
        return text;
    }

    std::filesystem::path dir_;
};

TranscriptReportContext context() {
    TranscriptReportContext c;
    c.transcriptName = "Story1.tvi";
    c.speakerLabel = "Child";
    c.analysisSetName = "C&I Verbal Utts";
    c.wordBase = "Main Body";
    c.cutDescription = "Entire Transcript";
    c.elapsedSeconds = 185;
    return c;
}

Report smr(SmrVariables variables = SmrVariables::defaults()) {
    return buildStandardMeasuresReport(
        context(),
        testing::measureSource({{"TotNumUt", 52}, {"MLUw", 4.4375}, {"%IntelUt", 100.0}}),
        variables, testing::labelSource(testing::primaryLabels()));
}

TEST_F(PdfWriter, StandardMeasuresReportReadsBackWithValuesAndPageNumber) {
    const auto path = dir_ / "smr.pdf";
    ASSERT_EQ(qt::saveReportPdf(smr(), path), "");
    const std::string text = pdfText(path);
    EXPECT_NE(text.find("Standard Measures Report"), std::string::npos);
    EXPECT_NE(text.find("Story1.tvi"), std::string::npos);
    EXPECT_NE(text.find("Child (1st Speaker)"), std::string::npos);
    EXPECT_NE(text.find("TRANSCRIPT LENGTH"), std::string::npos);
    EXPECT_NE(text.find("# MLU in Words"), std::string::npos);
    EXPECT_NE(text.find("4.44"), std::string::npos);
    EXPECT_NE(text.find("100%"), std::string::npos);
    EXPECT_NE(text.find("# Calculations based on current analysis set"), std::string::npos);
    EXPECT_NE(text.find("Page 1 of 1"), std::string::npos);
    EXPECT_EQ(text.find("Page 2"), std::string::npos);
}

TEST_F(PdfWriter, LongReportsBreakIntoNumberedPagesAndBatchesNumberEachReport) {
    SmrVariables all;
    all.selectAll();
    Report longReport = smr(all);
    for (int i = 0; i < 8; ++i)
        longReport.sections.push_back(longReport.sections[i]);
    Report types = buildUtteranceTypesReport(context(), testing::measureSource({{"TotNumUt", 4}}),
                                             testing::labelSource(testing::primaryLabels()));
    const auto path = dir_ / "batch.pdf";
    ASSERT_EQ(writeFileAtomic(path, qt::reportsToPdf({&longReport, &types})), WriteStatus::Ok);
    const std::string text = pdfText(path);
    // Every page's footer, in page order: 1..n of n for the long report, then 1 of 1.
    std::vector<std::pair<int, int>> footers;
    const std::regex footer("Page ([0-9]+) of ([0-9]+)");
    for (auto it = std::sregex_iterator(text.begin(), text.end(), footer);
         it != std::sregex_iterator(); ++it)
        footers.emplace_back(std::stoi((*it)[1]), std::stoi((*it)[2]));
    ASSERT_GE(footers.size(), 3u);
    const int longPages = static_cast<int>(footers.size()) - 1;
    for (int page = 1; page <= longPages; ++page)
        EXPECT_EQ(footers[page - 1], std::make_pair(page, longPages));
    EXPECT_EQ(footers.back(), std::make_pair(1, 1));
    // pdftotext ends every page with a form feed.
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), longPages + 1);
    EXPECT_NE(text.find("Standard Measures Report - Story1.tvi"), std::string::npos);
    EXPECT_NE(text.find("Summary of Utterance Types"), std::string::npos);
    EXPECT_NE(text.find("Yes/No Responses to Questions (Y)"), std::string::npos);
}

// Another paged device (a printer's stand-in: a PDF writer of its own) gets
// the very pages of a saved PDF, when it is set to the writer's resolution.
TEST_F(PdfWriter, PagesDrawnOnAnotherDeviceMatchTheSavedPdf) {
    const Report report = smr();
    ASSERT_EQ(qt::saveReportPdf(report, dir_ / "saved.pdf"), "");
    const std::string saved = pdfText(dir_ / "saved.pdf");
    {
        QPdfWriter device(QString::fromStdString((dir_ / "drawn.pdf").string()));
        device.setResolution(300);
        device.setPageSize(QPageSize(QPageSize::Letter));
        device.setPageMargins(QMarginsF(0, 0, 0, 0));
        EXPECT_TRUE(qt::paintReports(device, {&report}, qt::PdfPageSetup{}));
    }
    EXPECT_EQ(pdfText(dir_ / "drawn.pdf"), saved);

    QPdfWriter coarse(QString::fromStdString((dir_ / "coarse.pdf").string()));
    coarse.setResolution(72);
    EXPECT_FALSE(qt::paintReports(coarse, {&report}, qt::PdfPageSetup{}));
}

TEST_F(PdfWriter, UnwritablePathIsReported) {
    ASSERT_EQ(writeFileAtomic(dir_ / "plain", "x"), WriteStatus::Ok);
    EXPECT_EQ(qt::saveReportPdf(smr(), dir_ / "plain" / "r.pdf"), "cannot open file");
}

} // namespace
} // namespace tavi
