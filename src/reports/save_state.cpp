// Save-dialog texts and the program-wide save state of reports.
#include "reports/save_state.h"

#include "base/format.h"

namespace tavi {

SaveDialogTexts saveDialogTexts(ReportKind kind, bool batchOpen) {
    SaveDialogTexts texts;
    texts.title = "Save report as";
    texts.displayAfterSaving = "Display report after saving";
    texts.pdfUnavailable = "To save your report as a PDF file, select \"Print\" from the File "
                           "menu and use the PDF option located there.";
    if (kind == ReportKind::Grid) {
        texts.choices = {"PDF - Portable Document Format", "CSV - Comma Separated Values (Excel)",
                         "TSV - Tab Separated Values", "TXT - Tab Delimited Text",
                         batchOpen ? "Close PDF &Batch" : "Begin PDF Batch"};
    } else {
        texts.choices = {"PDF - Portable Document Format", "RTF - Rich Text Format (Word)",
                         "TXT - Text File", "Begin PDF Batch"};
    }
    return texts;
}

FileChoice richTextFileChoice(RichTextSaveChoice choice) {
    if (choice == RichTextSaveChoice::Pdf)
        return {"PDF file (*.PDF)|*.PDF|", ".pdf"};
    if (choice == RichTextSaveChoice::Rtf)
        return {"RTF file (*.RTF)|*.RTF|", ".rtf"};
    return {"Text file (*.TXT)|*.TXT|", ".txt"};
}

FileChoice gridFileChoice(GridSaveChoice choice) {
    switch (choice) {
    case GridSaveChoice::Csv:
        return {"CSV file (*.CSV)|*.CSV|", ".csv"};
    case GridSaveChoice::Tsv:
        return {"TSV file (*.TSV)|*.TSV|", ".tsv"};
    case GridSaveChoice::Txt:
        return {"Text file (*.TXT)|*.TXT|", ".txt"};
    case GridSaveChoice::Pdf:
    case GridSaveChoice::PdfBatch:
        break;
    }
    return {"PDF file (*.PDF)|*.PDF|", ".pdf"};
}

int ReportSaveState::initialChoice(ReportKind kind, bool countTable) const {
    if (lastFormat_ >= 0)
        return lastFormat_;
    if (kind == ReportKind::Grid && countTable)
        return static_cast<int>(GridSaveChoice::Csv);
    return 0;
}

std::string ReportSaveState::reportAddedToBatch(Report report) {
    batch_.push_back(std::move(report));
    return format("Report %d has been added to the PDF file", batchCount());
}

void ReportSaveState::dropLastFromBatch() {
    if (!batch_.empty())
        batch_.pop_back();
}

bool ReportSaveState::closeBatch() {
    if (batch_.empty())
        return false;
    batch_.clear();
    batchPath_.clear();
    lastFormat_ = 0;
    return true;
}

std::filesystem::path pdfBatchPath(const std::filesystem::path& reportsFolder,
                                   std::string_view transcriptName) {
    std::string stem = std::filesystem::path(transcriptName).stem().string();
    if (stem.empty())
        stem = "TAVI";
    return reportsFolder / (stem + "_Reports.pdf");
}

} // namespace tavi
