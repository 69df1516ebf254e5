// Reports rendered straight to PDF (no printer needed): one report, or the
// reports of a PDF batch each starting on a new page.
#pragma once

#include <QPageLayout>
#include <QString>
#include <QStringList>

namespace tavi::app {

// Writes the rich-text pages to `path`; false when the file cannot be written.
bool writePdf(const QStringList& htmlPages, const QString& path, const QPageLayout& layout);

// The default page: A4 portrait with 20 mm margins.
QPageLayout defaultPdfLayout();

} // namespace tavi::app
