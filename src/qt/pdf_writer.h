// Reports as PDF pages, drawn with Qt's QPdfWriter (no printer needed, works
// without a display): a bold title, the header lines, shaded sections with
// values in a right-hand column, ruled tables, and "Page %d of %d" in the
// footer of every page. The same pages can be drawn on a printer.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "reports/report.h"

class QPagedPaintDevice;

namespace tavi::qt {

struct PdfPageSetup {
    double widthMm = 215.9; // US Letter
    double heightMm = 279.4;
    double marginMm = 15.0;
    std::string fontFamily = "DejaVu Sans"; // the report printing font ("PRTREPTFONT")
    double bodyPoints = 9.5;                // size of the body text; headings scale with it
};

// The PDF bytes of the reports, each starting on a new page and numbering its
// own pages. Creates the GUI application object when there is none.
std::string reportsToPdf(const std::vector<const Report*>& reports, const PdfPageSetup& setup = {});

// Draws the reports as `reportsToPdf` does on another paged device, such as
// a printer: the device must be set to 300 dots per inch with its origin at
// the paper's corner (a printer's "full page"), the setup giving its paper
// size and the margins. False when the device is not so set or cannot be
// painted on.
bool paintReports(QPagedPaintDevice& device, const std::vector<const Report*>& reports,
                  const PdfPageSetup& setup);

// A customised report as one PDF: a title page (the cover's title and header
// lines), a table of contents giving the page each report starts on, then
// the reports, each starting on a new page; pages are numbered through the
// whole file.
std::string bookToPdf(const Report& cover, const std::vector<const Report*>& reports,
                      const PdfPageSetup& setup = {});
std::string saveBookPdf(const Report& cover, const std::vector<const Report*>& reports,
                        const std::filesystem::path& path, const PdfPageSetup& setup = {});

// Writes one report as a PDF file through a temporary file and a rename.
// Returns an empty string, or "cannot open file" / "cannot write to file".
std::string saveReportPdf(const Report& report, const std::filesystem::path& path,
                          const PdfPageSetup& setup = {});

} // namespace tavi::qt
