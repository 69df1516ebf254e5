// Page setup from the settings.
#include "qt/page_setup.h"

#include <QPageSize>
#include <QRectF>

namespace tavi::qt {

PdfPageSetup pdfPageSetup(const Settings& settings) {
    PdfPageSetup setup;
    if (!settings.printFont.faceName.empty())
        setup.fontFamily = settings.printFont.faceName;
    if (settings.printFont.height > 0)
        setup.bodyPoints = settings.printFont.height;
    return setup;
}

PdfPageSetup pdfPageSetup(const Settings& settings, const QPageLayout& layout) {
    PdfPageSetup setup = pdfPageSetup(settings);
    const QRectF page = layout.fullRectPoints();
    constexpr double kMmPerPoint = 25.4 / 72.0;
    setup.widthMm = page.width() * kMmPerPoint;
    setup.heightMm = page.height() * kMmPerPoint;
    setup.marginMm = layout.margins(QPageLayout::Millimeter).left();
    return setup;
}

QPageLayout defaultPageLayout() {
    return QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                       QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
}

} // namespace tavi::qt
