// The page a report is drawn on, from the settings: the report printing font
// ("PRTREPTFONT") and, in the desktop program, the page set up in
// "P&DF Printer Setup...". The command line and the desktop program both take
// their PDF page from here, so a report looks the same from either.
#pragma once

#include <QPageLayout>

#include "qt/pdf_writer.h"
#include "settings/settings.h"

namespace tavi::qt {

// The default page (US Letter, portrait, 15 mm margins) in the printing font.
PdfPageSetup pdfPageSetup(const Settings& settings);

// The same on the given page.
PdfPageSetup pdfPageSetup(const Settings& settings, const QPageLayout& layout);

// The default page as a Qt page layout.
QPageLayout defaultPageLayout();

} // namespace tavi::qt
