// Reports rendered straight to PDF (no printer needed) on the page set up
// in "P&DF Printer Setup..." and in the report printing font: one report, or
// the reports of a PDF batch, each starting on a new page.
#pragma once

#include <QString>
#include <vector>

#include "qt/page_setup.h"
#include "reports/report.h"

class QPrinter;

namespace tavi::app {

// Writes the reports to `path` through a temporary file; false when the file
// cannot be written.
bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const qt::PdfPageSetup& setup);

// Prints the reports on the printer's paper with the margins of `page` (the
// page of PDF files), drawn as in a PDF file: same header, footer and page
// numbers. False when the printer cannot be used.
bool printReports(const std::vector<const Report*>& reports, QPrinter& printer,
                  const QPageLayout& page, const Settings& settings);

} // namespace tavi::app
