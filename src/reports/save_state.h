// What the desktop program remembers about saving reports during one run:
// the last chosen format, "Display report after saving", and the PDF batch
// (its file and the reports in it). Also the texts of the two "Save report
// as" dialogs.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "reports/report.h"

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

// File-dialog filter and extension of a rich-text report's file choice
// (PDF, RTF or TXT).
struct FileChoice {
    std::string filter;    // "RTF file (*.RTF)|*.RTF|"
    std::string extension; // ".rtf"
    // The filter's first part, as a file dialog shows it: "RTF file (*.RTF)".
    std::string shownFilter() const { return filter.substr(0, filter.find('|')); }
};
FileChoice richTextFileChoice(RichTextSaveChoice choice);
// The same for a grid report's file choice (PDF, CSV, TSV or tab-delimited TXT).
FileChoice gridFileChoice(GridSaveChoice choice);

class ReportSaveState {
public:
    // The choice the dialog starts on: the last one, or the first choice the
    // first time in a run (CSV for the grid reports that are count tables).
    int initialChoice(ReportKind kind, bool countTable) const;
    void remember(int choice) { lastFormat_ = choice; }
    int lastFormat() const { return lastFormat_; }

    bool displayAfterSaving() const { return display_; }
    void setDisplayAfterSaving(bool on) { display_ = on; }

    bool batchOpen() const { return !batch_.empty(); }
    int batchCount() const { return static_cast<int>(batch_.size()); }
    // The batch file, chosen when the first report is added.
    const std::filesystem::path& batchPath() const { return batchPath_; }
    void setBatchPath(std::filesystem::path path) { batchPath_ = std::move(path); }
    // The reports of the open batch, in the order they were added.
    const std::vector<Report>& batchReports() const { return batch_; }
    // Adds a report to the PDF batch; returns
    // "Report %d has been added to the PDF file".
    std::string reportAddedToBatch(Report report);
    // Takes back the report added last (its file could not be written).
    void dropLastFromBatch();
    // "Close PDF &Batch": with reports in the batch, empties it, resets the
    // format to zero and returns true (the caller finishes the file); with
    // none, does nothing and returns false.
    bool closeBatch();

private:
    int lastFormat_ = -1; // not chosen yet
    bool display_ = false;
    std::filesystem::path batchPath_;
    std::vector<Report> batch_;
};

// The PDF batch file in the reports folder: the first report's transcript
// name without its extension, followed by "_Reports.pdf" ("TAVI_Reports.pdf"
// without a transcript).
std::filesystem::path pdfBatchPath(const std::filesystem::path& reportsFolder,
                                   std::string_view transcriptName);

} // namespace tavi
