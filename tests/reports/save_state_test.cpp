// The save state of reports across one run: first choice, CSV for count
// tables, the PDF batch counter and its closing, and the dialogs' texts.
#include <gtest/gtest.h>

#include "reports/save_state.h"

namespace tavi {
namespace {

TEST(ReportSaveState, FirstSaveOffersTheFirstChoiceOrCsvForCountTablesThenTheLastOne) {
    ReportSaveState state;
    EXPECT_EQ(state.lastFormat(), -1);
    EXPECT_EQ(state.initialChoice(ReportKind::RichText, false), 0);
    EXPECT_EQ(state.initialChoice(ReportKind::Grid, false), 0);
    EXPECT_EQ(state.initialChoice(ReportKind::Grid, true), static_cast<int>(GridSaveChoice::Csv));
    state.remember(static_cast<int>(GridSaveChoice::Tsv));
    EXPECT_EQ(state.initialChoice(ReportKind::Grid, true), 2);
    EXPECT_FALSE(state.displayAfterSaving());
    state.setDisplayAfterSaving(true);
    EXPECT_TRUE(state.displayAfterSaving());
}

Report titled(const char* title) {
    Report r;
    r.title = title;
    return r;
}

TEST(ReportSaveState, PdfBatchKeepsItsReportsAndClosingAnEmptyBatchDoesNothing) {
    ReportSaveState state;
    state.remember(3);
    EXPECT_FALSE(state.closeBatch());
    EXPECT_EQ(state.lastFormat(), 3) << "closing an empty batch changes nothing";
    state.setBatchPath("/r/Story1_Reports.pdf");
    EXPECT_EQ(state.reportAddedToBatch(titled("First")), "Report 1 has been added to the PDF file");
    EXPECT_EQ(state.reportAddedToBatch(titled("Lost")), "Report 2 has been added to the PDF file");
    state.dropLastFromBatch(); // its file could not be written
    EXPECT_EQ(state.reportAddedToBatch(titled("Second")),
              "Report 2 has been added to the PDF file");
    EXPECT_TRUE(state.batchOpen());
    ASSERT_EQ(state.batchReports().size(), 2u);
    EXPECT_EQ(state.batchReports()[0].title, "First");
    EXPECT_EQ(state.batchReports()[1].title, "Second");
    EXPECT_EQ(saveDialogTexts(ReportKind::Grid, state.batchOpen()).choices[4], "Close PDF &Batch");
    EXPECT_TRUE(state.closeBatch());
    EXPECT_EQ(state.batchCount(), 0);
    EXPECT_TRUE(state.batchReports().empty());
    EXPECT_TRUE(state.batchPath().empty());
    EXPECT_EQ(state.lastFormat(), 0);
    EXPECT_EQ(saveDialogTexts(ReportKind::Grid, state.batchOpen()).choices[4], "Begin PDF Batch");
}

TEST(ReportSaveState, DialogTextsFileChoicesAndBatchFileName) {
    const SaveDialogTexts rich = saveDialogTexts(ReportKind::RichText, false);
    EXPECT_EQ(rich.title, "Save report as");
    EXPECT_EQ(rich.choices, (std::vector<std::string>{"PDF - Portable Document Format",
                                                      "RTF - Rich Text Format (Word)",
                                                      "TXT - Text File", "Begin PDF Batch"}));
    EXPECT_EQ(rich.displayAfterSaving, "Display report after saving");
    EXPECT_EQ(rich.pdfUnavailable, "To save your report as a PDF file, select \"Print\" from the "
                                   "File menu and use the PDF option located there.");
    const SaveDialogTexts grid = saveDialogTexts(ReportKind::Grid, false);
    EXPECT_EQ(grid.choices[1], "CSV - Comma Separated Values (Excel)");
    EXPECT_EQ(grid.choices[3], "TXT - Tab Delimited Text");
    EXPECT_EQ(richTextFileChoice(RichTextSaveChoice::Rtf).filter, "RTF file (*.RTF)|*.RTF|");
    EXPECT_EQ(richTextFileChoice(RichTextSaveChoice::Txt).extension, ".txt");
    EXPECT_EQ(richTextFileChoice(RichTextSaveChoice::Pdf).shownFilter(), "PDF file (*.PDF)");
    EXPECT_EQ(richTextFileChoice(RichTextSaveChoice::Rtf).shownFilter(), "RTF file (*.RTF)");
    EXPECT_EQ(pdfBatchPath("/r", "Story1.tvi"), std::filesystem::path("/r/Story1_Reports.pdf"));
    EXPECT_EQ(pdfBatchPath("/r", ""), std::filesystem::path("/r/TAVI_Reports.pdf"));
}

} // namespace
} // namespace tavi
