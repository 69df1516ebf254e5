// PDF output through the reports' own PDF page writer.
#include "app/report_pdf.h"

#include <QRectF>

#include "base/file_io.h"
#include "reports/qt/pdf_writer.h"

namespace tavi::app {

QPageLayout defaultPdfLayout() {
    return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                       QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
}

bool writePdf(const std::vector<const Report*>& reports, const QString& path,
              const QPageLayout& layout) {
    const QRectF page = layout.fullRectPoints();
    constexpr double kMmPerPoint = 25.4 / 72.0;
    qt::PdfPageSetup setup;
    setup.widthMm = page.width() * kMmPerPoint;
    setup.heightMm = page.height() * kMmPerPoint;
    setup.marginMm = layout.margins(QPageLayout::Millimeter).left();
    return writeFileAtomic(path.toStdString(), qt::reportsToPdf(reports, setup)) == WriteStatus::Ok;
}

} // namespace tavi::app
