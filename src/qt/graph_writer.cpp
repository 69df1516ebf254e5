// Drawing a normative graph on any QPaintDevice.
#include "qt/graph_writer.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtGui/QFont>
#include <QtGui/QImage>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPdfWriter>
#include <QtGui/QPolygonF>
#ifdef TAVI_HAVE_QT_SVG
#include <QtSvg/QSvgGenerator>
#endif

#include <cmath>

#include "base/file_io.h"
#include "base/format.h"
#include "base/text.h"
#include "qt/gui_application.h"

namespace tavi::qt {

namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

std::string tickText(double value, double step) {
    return step >= 1.0 ? format("%.0f", value) : format("%.*f", step >= 0.1 ? 1 : 2, value);
}

void drawGraph(QPainter& p, const NormativeGraph& graph, const GraphCanvas& c) {
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(QRectF(0, 0, c.width, c.height), Qt::white);
    QFont font("DejaVu Sans");
    font.setPixelSize(12);
    p.setFont(font);

    // The band and the mean.
    if (!graph.band.empty()) {
        QPolygonF band;
        for (const GraphBandPoint& b : graph.band)
            band << QPointF(c.x(b.ageMonths), c.y(b.high));
        for (auto it = graph.band.rbegin(); it != graph.band.rend(); ++it)
            band << QPointF(c.x(it->ageMonths), c.y(it->low));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(198, 219, 239));
        p.drawPolygon(band);
        QPolygonF mean;
        for (const GraphBandPoint& b : graph.band)
            mean << QPointF(c.x(b.ageMonths), c.y(b.mean));
        p.setPen(QPen(QColor(33, 102, 172), 2));
        p.setBrush(Qt::NoBrush);
        p.drawPolyline(mean);
    }

    // Axes, ticks and grid.
    p.setPen(QPen(QColor(200, 200, 200), 0.5));
    for (double v = c.valueMin; v <= c.valueMax + c.valueStep / 2; v += c.valueStep)
        p.drawLine(QPointF(c.left, c.y(v)), QPointF(c.right, c.y(v)));
    p.setPen(QPen(Qt::black, 1));
    p.drawLine(QPointF(c.left, c.bottom), QPointF(c.right, c.bottom));
    p.drawLine(QPointF(c.left, c.top), QPointF(c.left, c.bottom));
    for (double v = c.valueMin; v <= c.valueMax + c.valueStep / 2; v += c.valueStep) {
        p.drawLine(QPointF(c.left - 4, c.y(v)), QPointF(c.left, c.y(v)));
        p.drawText(QRectF(0, c.y(v) - 8, c.left - 8, 16), Qt::AlignRight | Qt::AlignVCenter,
                   qs(tickText(v, c.valueStep)));
    }
    for (double a = c.ageMin; a <= c.ageMax + c.ageStep / 2; a += c.ageStep) {
        p.drawLine(QPointF(c.x(a), c.bottom), QPointF(c.x(a), c.bottom + 4));
        p.drawText(QRectF(c.x(a) - 30, c.bottom + 6, 60, 16), Qt::AlignHCenter | Qt::AlignTop,
                   qs(tickText(a, c.ageStep)));
    }
    p.drawText(QRectF(c.left, c.bottom + 24, c.right - c.left, 16), Qt::AlignHCenter,
               "Age (months)");
    p.save();
    p.translate(16, (c.top + c.bottom) / 2);
    p.rotate(-90);
    p.drawText(QRectF(-150, -8, 300, 16), Qt::AlignHCenter, qs(graph.measureLabel));
    p.restore();

    // The samples, then the target over them.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(kGraphSampleColour));
    for (const GraphPoint& s : graph.samples)
        p.drawEllipse(QPointF(c.x(s.ageMonths), c.y(s.value)), 4.0, 4.0);
    if (graph.target) {
        const QPointF at(c.x(graph.target->ageMonths), c.y(graph.target->value));
        p.setBrush(QColor(kGraphTargetColour));
        p.drawEllipse(at, kGraphTargetRadius, kGraphTargetRadius);
        p.setPen(QColor(kGraphTargetColour));
        p.drawText(QRectF(at.x() + 10, at.y() - 8, 240, 16), Qt::AlignLeft | Qt::AlignVCenter,
                   qs(graph.targetLabel));
    }

    // Title and caption.
    p.setPen(Qt::black);
    QFont bold = font;
    bold.setPixelSize(16);
    bold.setBold(true);
    p.setFont(bold);
    p.drawText(QRectF(0, 12, c.width, 24), Qt::AlignHCenter, qs(graph.title));
    p.setFont(font);
    double y = c.bottom + 48;
    for (const std::string& line : graph.caption) {
        p.drawText(QRectF(c.left, y, c.width - c.left, 16), Qt::AlignLeft, qs(line));
        y += 16;
    }
}

std::string writeBytes(const std::filesystem::path& path, const QByteArray& bytes) {
    if (writeFileAtomic(path, std::string(bytes.constData(), static_cast<size_t>(bytes.size()))) !=
        WriteStatus::Ok)
        return "cannot write to file";
    return "";
}

} // namespace

QImage normativeGraphImage(const NormativeGraph& graph, double scale) {
    ensureGuiApplication();
    const GraphCanvas canvas = graphCanvas(graph);
    QImage image(static_cast<int>(canvas.width * scale), static_cast<int>(canvas.height * scale),
                 QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    drawGraph(painter, graph, canvas);
    return image;
}

std::string saveNormativeGraph(const NormativeGraph& graph, const std::filesystem::path& path) {
    ensureGuiApplication();
    const GraphCanvas canvas = graphCanvas(graph);
    const std::string ext = toLowerAscii(path.extension().string());
    QByteArray bytes;
    if (ext == ".png") {
        const QImage image = normativeGraphImage(graph, 2.0);
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return writeBytes(path, bytes);
    }
    if (ext == ".pdf") {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter pdf(&buffer);
            pdf.setResolution(72);
            pdf.setPageSize(QPageSize(QSizeF(canvas.width, canvas.height), QPageSize::Point));
            pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
            pdf.setTitle(qs(graph.title));
            QPainter painter(&pdf);
            drawGraph(painter, graph, canvas);
        }
        return writeBytes(path, bytes);
    }
#ifdef TAVI_HAVE_QT_SVG
    if (ext == ".svg") {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        {
            QSvgGenerator svg;
            svg.setOutputDevice(&buffer);
            svg.setSize(QSize(static_cast<int>(canvas.width), static_cast<int>(canvas.height)));
            svg.setViewBox(QRectF(0, 0, canvas.width, canvas.height));
            svg.setResolution(72);
            svg.setTitle(qs(graph.title));
            QPainter painter(&svg);
            drawGraph(painter, graph, canvas);
        }
        return writeBytes(path, bytes);
    }
#endif
    return "unknown graph format " + ext + " (use .svg, .png or .pdf)";
}

} // namespace tavi::qt
