// What the desktop program remembers about saving reports during one run:
// the last chosen format, "Display report after saving", and the PDF batch
// (its counter and file). Also the texts of the two "Save report as" dialogs.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

enum class ReportKind { RichText, Grid };

// The choices of the dialogs, by their place in each dialog.
enum class GridSaveChoice { Pdf = 0, Csv = 1, Tsv = 2, Txt = 3, PdfBatch = 4 };
enum class RichTextSaveChoice { Pdf = 0, Rtf = 1, Txt = 2, BeginPdfBatch = 3 };

struct SaveDialogTexts {
    std::string title;                // "Save report as"
    std::vector<std::string> choices; // in dialog order
    std::string displayAfterSaving;   // the check box
    // Shown in place of the PDF choices where PDF output is not available.
    std::string pdfUnavailable;
};

// The texts of `CSaveReportType` (grid reports; the batch choice reads
// "Close PDF &Batch" while a batch is open) or `CSaveReportTypeRTF`.
SaveDialogTexts saveDialogTexts(ReportKind kind, bool batchOpen);

// File-dialog filter and extension of a rich-text report's file choice.
struct FileChoice {
    std::string filter;    // "RTF file (*.RTF)|*.RTF|"
    std::string extension; // ".rtf"
};
FileChoice richTextFileChoice(RichTextSaveChoice choice);

class ReportSaveState {
public:
    // The choice the dialog starts on: the last one, or the first choice the
    // first time in a run (CSV for the grid reports that are count tables).
    int initialChoice(ReportKind kind, bool countTable) const;
    void remember(int choice) { lastFormat_ = choice; }
    int lastFormat() const { return lastFormat_; }

    bool displayAfterSaving() const { return display_; }
    void setDisplayAfterSaving(bool on) { display_ = on; }

    bool batchOpen() const { return batchCount_ > 0; }
    int batchCount() const { return batchCount_; }
    // Counts a report added to the PDF batch; returns
    // "Report %d has been added to the PDF file".
    std::string reportAddedToBatch();
    // "Close PDF &Batch": with reports in the batch, resets the counter and the
    // format to zero and returns true (the caller finishes the file); with
    // none, does nothing and returns false.
    bool closeBatch();

private:
    int lastFormat_ = -1; // not chosen yet
    bool display_ = false;
    int batchCount_ = 0;
};

// The PDF batch file in the reports folder: the first report's transcript
// name without its extension, followed by "_Reports.pdf" ("TAVI_Reports.pdf"
// without a transcript).
std::filesystem::path pdfBatchPath(const std::filesystem::path& reportsFolder,
                                   std::string_view transcriptName);

} // namespace tavi
