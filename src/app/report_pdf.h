// Reports rendered straight to PDF (no printer needed) on the page set up
// in "P&DF Printer Setup..." and in the report printing font: one report, or
// the reports of a PDF batch, each starting on a new page.
#pragma once

#include <QString>
#include <vector>

#include "qt/page_setup.h"
#include "reports/report.h"

namespace tavi::app {

// Writes the reports to `path` through a temporary file; false when the file
// cannot be written.
bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const qt::PdfPageSetup& setup);

} // namespace tavi::app
