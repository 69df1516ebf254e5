// PDF output through Qt's PDF writer.
#include "app/report_pdf.h"

#include <QFile>
#include <QPdfWriter>
#include <QTextDocument>

namespace tavi::app {

QPageLayout defaultPdfLayout() {
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(20, 20, 20, 20),
                       QPageLayout::Millimeter);
}

bool writePdf(const QStringList& htmlPages, const QString& path, const QPageLayout& layout) {
    QString html;
    for (qsizetype i = 0; i < htmlPages.size(); ++i) {
        if (i > 0)
            html += QStringLiteral("<div style=\"page-break-before: always\"></div>");
        html += htmlPages[i];
    }
    {
        QFile probe(path);
        if (!probe.open(QIODevice::WriteOnly))
            return false;
    }
    QPdfWriter writer(path);
    writer.setPageLayout(layout);
    writer.setCreator(QStringLiteral("TAVI"));
    writer.setResolution(300);
    QTextDocument doc;
    doc.setHtml(html);
    doc.print(&writer);
    return true;
}

} // namespace tavi::app
