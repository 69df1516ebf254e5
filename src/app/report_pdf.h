// Reports rendered straight to PDF (no printer needed) with the page set up
// in "P&DF Printer Setup...": one report, or the reports of a PDF batch, each
// starting on a new page.
#pragma once

#include <QPageLayout>
#include <QString>
#include <vector>

#include "reports/report.h"

namespace tavi::app {

// Writes the reports to `path` through a temporary file; false when the file
// cannot be written.
bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const QPageLayout& layout);

// The default page: US Letter, portrait, 15 mm margins.
QPageLayout defaultPdfLayout();

} // namespace tavi::app
