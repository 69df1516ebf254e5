// PDF output through the core's PDF page writer.
#include "app/report_pdf.h"

#include <QPrinter>
#include <algorithm>

#include "base/file_io.h"

namespace tavi::app {
namespace {

double millimetresPer(QPageLayout::Unit unit) {
    switch (unit) {
    case QPageLayout::Millimeter:
        return 1;
    case QPageLayout::Point:
        return 25.4 / 72;
    case QPageLayout::Inch:
        return 25.4;
    case QPageLayout::Pica:
        return 25.4 / 6;
    case QPageLayout::Didot:
        return 0.376;
    case QPageLayout::Cicero:
        return 4.512;
    }
    return 1;
}

} // namespace

bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const qt::PdfPageSetup& setup) {
    return writeFileAtomic(path.toStdString(), qt::reportsToPdf(reports, setup)) == WriteStatus::Ok;
}

bool printReports(const std::vector<const Report*>& reports, QPrinter& printer,
                  const QPageLayout& page, const Settings& settings) {
    const bool fullPage = printer.fullPage();
    printer.setResolution(300);
    printer.setFullPage(true);
    const QPageLayout paper = printer.pageLayout();
    qt::PdfPageSetup setup = qt::pdfPageSetup(settings, paper);
    const QMarginsF least = paper.minimumMargins();
    const double leastMm = std::max({least.left(), least.top(), least.right(), least.bottom()}) *
                           millimetresPer(paper.units());
    setup.marginMm = std::max(page.margins(QPageLayout::Millimeter).left(), leastMm);
    const bool done = qt::paintReports(printer, reports, setup);
    printer.setFullPage(fullPage);
    return done;
}

} // namespace tavi::app
