// Page layout of reports: blocks measured once, placed on pages, then drawn.
#include "qt/pdf_writer.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <functional>
#include <optional>

#include "base/format.h"
#include "qt/gui_application.h"
#include "reports/report_file.h"

namespace tavi::qt {
namespace {

constexpr int kDpi = 300;
const QColor kInk(0x20, 0x20, 0x20);
const QColor kAccent(0x1F, 0x3A, 0x5F);
const QColor kShade(0xEE, 0xF2, 0xF7);
const QColor kRule(0x9A, 0xA5, 0xB1);

qreal mm(double millimetres) {
    return millimetres / 25.4 * kDpi;
}
QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// Fonts of one rendering: the setup's family, sizes scaled from the layout's
// 9.5-point body text to the setup's body size.
struct FontMaker {
    QString family;
    qreal scale = 1;
    QFont operator()(qreal points, bool bold = false, bool italic = false) const;
};

QFont FontMaker::operator()(qreal points, bool bold, bool italic) const {
    QFont f(family);
    f.setPointSizeF(points * scale);
    f.setBold(bold);
    f.setItalic(italic);
    return f;
}

// A piece of a page: its height, and how to draw it at a given top edge.
struct Block {
    qreal height = 0;
    qreal spaceBefore = 0;
    bool keepWithNext = false;
    std::function<void(QPainter&, qreal top)> draw;
};

struct Page {
    std::vector<std::pair<const Block*, qreal>> placed;
};

class ReportLayout {
public:
    ReportLayout(QPaintDevice& writer, const PdfPageSetup& setup, FontMaker font)
        : writer_(writer), font(std::move(font)), left_(mm(setup.marginMm)),
          width_(writer.width() - 2 * mm(setup.marginMm)) {}

    std::vector<Block> blocks(const Report& report) const;

private:
    qreal lineHeight(const QFont& f) const { return QFontMetricsF(f, &writer_).height() * 1.12; }
    qreal textWidth(const QString& text, const QFont& f) const {
        return QFontMetricsF(f, &writer_).horizontalAdvance(text);
    }
    QString fit(const QString& text, const QFont& f, qreal width) const {
        return QFontMetricsF(f, &writer_).elidedText(text, Qt::ElideRight, width);
    }
    void addHeader(const Report& report, std::vector<Block>& out) const;
    void addLine(const LabelledLine& line, bool shaded, std::vector<Block>& out) const;
    void addTable(const ReportTable& table, std::vector<Block>& out) const;
    void addText(const std::string& text, const QFont& f, QColor color, qreal before,
                 std::vector<Block>& out) const;

    QPaintDevice& writer_;
    FontMaker font;
    qreal left_;
    qreal width_;
};

void ReportLayout::addText(const std::string& text, const QFont& f, QColor color, qreal before,
                           std::vector<Block>& out) const {
    const qreal h = lineHeight(f);
    QString shown = fit(qs(text), f, width_);
    out.push_back({h, before, false, [=, this](QPainter& p, qreal top) {
                       p.setFont(f);
                       p.setPen(color);
                       p.drawText(QRectF(left_, top, width_, h), Qt::AlignLeft | Qt::AlignVCenter,
                                  shown);
                   }});
}

void ReportLayout::addHeader(const Report& report, std::vector<Block>& out) const {
    const QFont titleFont = font(17, true);
    const qreal titleHeight = lineHeight(titleFont) * 1.2;
    const QString title = fit(qs(report.title), titleFont, width_);
    out.push_back({titleHeight, 0, false, [=, this](QPainter& p, qreal top) {
                       p.setFont(titleFont);
                       p.setPen(kAccent);
                       p.drawText(QRectF(left_, top, width_, titleHeight), Qt::AlignCenter, title);
                       p.setPen(QPen(kAccent, mm(0.5)));
                       p.drawLine(QPointF(left_, top + titleHeight),
                                  QPointF(left_ + width_, top + titleHeight));
                   }});
    const QFont labelFont = font(9.5, true);
    const QFont valueFont = font(9.5);
    const qreal labelWidth = width_ * 0.3;
    for (size_t i = 0; i < report.header.size(); ++i) {
        const LabelledLine& line = report.header[i];
        const qreal before = i == 0 ? mm(2) : 0;
        if (line.label.empty()) {
            addText(line.value, font(11, true), kInk, before, out);
            continue;
        }
        const qreal h = lineHeight(valueFont);
        const QString label = fit(qs(line.prefix + line.label), labelFont, labelWidth);
        const QString value = fit(qs(line.value), valueFont, width_ - labelWidth);
        out.push_back({h, before, false, [=, this](QPainter& p, qreal top) {
                           p.setPen(kInk);
                           p.setFont(labelFont);
                           p.drawText(QRectF(left_, top, labelWidth, h),
                                      Qt::AlignLeft | Qt::AlignVCenter, label);
                           p.setFont(valueFont);
                           p.drawText(QRectF(left_ + labelWidth, top, width_ - labelWidth, h),
                                      Qt::AlignLeft | Qt::AlignVCenter, value);
                       }});
    }
}

void ReportLayout::addLine(const LabelledLine& line, bool shaded, std::vector<Block>& out) const {
    if (line.label.empty()) {
        addText(line.text(), font(10), kInk, 0, out);
        return;
    }
    const QFont f = font(9.5);
    const qreal h = lineHeight(f);
    const qreal pad = mm(2);
    const qreal gutter = mm(6); // the "# " mark stands in its own column
    const qreal valueWidth =
        std::min(width_ * 0.6, std::max(width_ * 0.3, textWidth(qs(line.value), f) + 2 * pad));
    const QString mark = qs(line.prefix).trimmed();
    const QString label = fit(qs(line.label), f, width_ - valueWidth - gutter - pad);
    const QString value = fit(qs(line.value), f, valueWidth - pad);
    out.push_back({h, 0, false, [=, this](QPainter& p, qreal top) {
                       if (shaded)
                           p.fillRect(QRectF(left_, top, width_, h), kShade);
                       p.setFont(f);
                       p.setPen(kInk);
                       p.drawText(QRectF(left_ + pad, top, gutter, h),
                                  Qt::AlignLeft | Qt::AlignVCenter, mark);
                       p.drawText(QRectF(left_ + gutter, top, width_ - valueWidth - gutter, h),
                                  Qt::AlignLeft | Qt::AlignVCenter, label);
                       p.drawText(QRectF(left_ + width_ - valueWidth, top, valueWidth - pad, h),
                                  Qt::AlignRight | Qt::AlignVCenter, value);
                   }});
}

void ReportLayout::addTable(const ReportTable& table, std::vector<Block>& out) const {
    const size_t columns = table.headings.size();
    const qreal columnWidth = std::min(width_ * 0.18, columns ? width_ * 0.5 / columns : 0.0);
    const qreal labelWidth = width_ - columnWidth * static_cast<qreal>(columns);
    const qreal pad = mm(2);
    auto row = [&](const std::string& label, const std::vector<std::string>& cells, bool heading,
                   bool shaded) {
        const QFont f = font(9.5, heading);
        const qreal h = lineHeight(f);
        const QString labelText = fit(qs(label), f, labelWidth - 2 * pad);
        std::vector<QString> cellTexts;
        for (size_t c = 0; c < columns; ++c)
            cellTexts.push_back(fit(qs(c < cells.size() ? cells[c] : ""), f, columnWidth - pad));
        out.push_back({h, heading ? mm(1) : 0, heading, [=, this](QPainter& p, qreal top) {
                           if (shaded)
                               p.fillRect(QRectF(left_, top, width_, h), kShade);
                           p.setFont(f);
                           p.setPen(kInk);
                           p.drawText(QRectF(left_ + pad, top, labelWidth - pad, h),
                                      Qt::AlignLeft | Qt::AlignVCenter, labelText);
                           for (size_t c = 0; c < cellTexts.size(); ++c)
                               p.drawText(QRectF(left_ + labelWidth + columnWidth * c, top,
                                                 columnWidth - pad, h),
                                          Qt::AlignRight | Qt::AlignVCenter, cellTexts[c]);
                           if (heading) {
                               p.setPen(QPen(kRule, mm(0.3)));
                               p.drawLine(QPointF(left_, top + h),
                                          QPointF(left_ + width_, top + h));
                           }
                       }});
    };
    row(table.labelHeading, table.headings, true, false);
    for (size_t r = 0; r < table.rows.size(); ++r)
        row(table.rows[r].label, table.rows[r].cells, false, r % 2 == 1);
}

std::vector<Block> ReportLayout::blocks(const Report& report) const {
    std::vector<Block> out;
    addHeader(report, out);
    const QFont sectionFont = font(11, true);
    for (const auto& section : report.sections) {
        if (!section.title.empty()) {
            const qreal h = lineHeight(sectionFont);
            const QString title = fit(qs(section.title), sectionFont, width_);
            out.push_back({h * 1.1, mm(2.5), true, [=, this](QPainter& p, qreal top) {
                               p.setFont(sectionFont);
                               p.setPen(kAccent);
                               p.drawText(QRectF(left_, top, width_, h),
                                          Qt::AlignLeft | Qt::AlignVCenter, title);
                               p.setPen(QPen(kRule, mm(0.3)));
                               p.drawLine(QPointF(left_, top + h),
                                          QPointF(left_ + width_, top + h));
                           }});
        } else {
            out.push_back({0, mm(4), false, [](QPainter&, qreal) {}});
        }
        bool shaded = false;
        for (const auto& item : section.items) {
            if (const auto* line = std::get_if<LabelledLine>(&item)) {
                addLine(*line, shaded, out);
                shaded = !shaded;
            } else if (const auto* table = std::get_if<ReportTable>(&item)) {
                addTable(*table, out);
            } else {
                addText(std::get<TextLine>(item).text, font(10), kInk, 0, out);
            }
        }
    }
    for (size_t i = 0; i < report.footnotes.size(); ++i)
        addText(report.footnotes[i], font(9, false, true), kInk, i == 0 ? mm(3) : 0, out);
    return out;
}

// Places blocks on pages: a block that does not fit starts a new page, and a
// heading moves along with the block after it.
std::vector<Page> paginate(const std::vector<Block>& blocks, qreal top, qreal bottom) {
    std::vector<Page> pages(1);
    qreal y = top;
    for (size_t i = 0; i < blocks.size(); ++i) {
        const Block& block = blocks[i];
        qreal needed = block.spaceBefore + block.height;
        if (block.keepWithNext && i + 1 < blocks.size())
            needed += blocks[i + 1].spaceBefore + blocks[i + 1].height;
        if (y + needed > bottom && !pages.back().placed.empty()) {
            pages.emplace_back();
            y = top;
        }
        if (!pages.back().placed.empty())
            y += block.spaceBefore;
        pages.back().placed.emplace_back(&block, y);
        y += block.height;
    }
    return pages;
}

void drawFooter(QPainter& p, const FontMaker& font, const std::string& title, int page, int pages,
                qreal left, qreal width, qreal top) {
    const QFont f = font(8);
    const qreal h = QFontMetricsF(f, p.device()).height() * 1.4;
    p.setPen(QPen(kRule, mm(0.3)));
    p.drawLine(QPointF(left, top), QPointF(left + width, top));
    p.setFont(f);
    p.setPen(kInk);
    p.drawText(QRectF(left, top, width * 0.7, h), Qt::AlignLeft | Qt::AlignVCenter, qs(title));
    p.drawText(QRectF(left, top, width, h), Qt::AlignRight | Qt::AlignVCenter,
               qs(format("Page %d of %d", page, pages)));
}

// The report's title and, when it has one, the transcript's name.
std::string footerTitle(const Report& report) {
    if (!report.header.empty() && report.header.front().label.empty())
        return report.title + " - " + report.header.front().value;
    return report.title;
}

} // namespace

namespace {

// The pages being drawn on a device at 300 dots per inch, the origin at the
// paper's corner: the painter and the page geometry.
class PdfDocument {
public:
    PdfDocument(QPagedPaintDevice& device, const PdfPageSetup& setup)
        : device_(device), fonts_{qs(setup.fontFamily), setup.bodyPoints / 9.5} {
        painter_.begin(&device_);
        margin_ = mm(setup.marginMm);
        footerTop_ = device_.height() - margin_;
        layout_.emplace(device_, setup, fonts_);
    }
    ~PdfDocument() { painter_.end(); }
    PdfDocument(const PdfDocument&) = delete;
    PdfDocument& operator=(const PdfDocument&) = delete;

    bool active() const { return painter_.isActive(); }
    const ReportLayout& layout() const { return *layout_; }
    std::vector<Page> paginate(const std::vector<Block>& blocks) const {
        return tavi::qt::paginate(blocks, margin_, footerTop_ - mm(2));
    }
    // Draws one page; its footer reads "Page number of count".
    void drawPage(const Page& page, const std::string& footer, int number, int count) {
        startPage();
        for (const auto& [block, y] : page.placed)
            block->draw(painter_, y);
        drawFooter(painter_, fonts_, footer, number, count, margin_, width(), footerTop_);
    }
    void startPage() {
        if (!firstPage_)
            device_.newPage();
        firstPage_ = false;
    }
    QPainter& painter() { return painter_; }
    const FontMaker& fonts() const { return fonts_; }
    qreal margin() const { return margin_; }
    qreal width() const { return device_.width() - 2 * margin_; }
    qreal height() const { return device_.height(); }

private:
    QPagedPaintDevice& device_;
    QPainter painter_;
    FontMaker fonts_;
    qreal margin_ = 0;
    qreal footerTop_ = 0;
    std::optional<ReportLayout> layout_;
    bool firstPage_ = true;
};

// The PDF writer set to the setup's page, without margins of its own.
void setUpWriter(QPdfWriter& writer, const PdfPageSetup& setup, const std::string& title) {
    writer.setResolution(kDpi);
    writer.setCreator(QStringLiteral("TAVI"));
    writer.setPageSize(QPageSize(QSizeF(setup.widthMm, setup.heightMm), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
    writer.setTitle(qs(title));
}

// Each report from a new page, numbering its own pages.
void drawReports(PdfDocument& pdf, const std::vector<const Report*>& reports) {
    for (const Report* report : reports) {
        const std::vector<Block> blocks = pdf.layout().blocks(*report);
        const std::vector<Page> pages = pdf.paginate(blocks);
        for (size_t n = 0; n < pages.size(); ++n)
            pdf.drawPage(pages[n], footerTitle(*report), static_cast<int>(n + 1),
                         static_cast<int>(pages.size()));
    }
}

// The title page: the cover's title large, its header lines below.
void drawTitlePage(PdfDocument& pdf, const Report& cover, int pages) {
    QPainter& p = pdf.painter();
    const QFont titleFont = pdf.fonts()(24, true);
    const QFont lineFont = pdf.fonts()(11);
    qreal y = pdf.height() * 0.3;
    const qreal titleHeight = QFontMetricsF(titleFont, p.device()).height() * 1.5;
    p.setFont(titleFont);
    p.setPen(kAccent);
    p.drawText(QRectF(pdf.margin(), y, pdf.width(), titleHeight), Qt::AlignCenter, qs(cover.title));
    y += titleHeight * 1.5;
    const qreal lineHeight = QFontMetricsF(lineFont, p.device()).height() * 1.4;
    p.setFont(lineFont);
    p.setPen(kInk);
    for (const LabelledLine& line : cover.header) {
        p.drawText(QRectF(pdf.margin(), y, pdf.width(), lineHeight), Qt::AlignCenter,
                   qs(line.text()));
        y += lineHeight;
    }
    drawFooter(p, pdf.fonts(), cover.title, 1, pages, pdf.margin(), pdf.width(),
               pdf.height() - pdf.margin());
}

} // namespace

std::string reportsToPdf(const std::vector<const Report*>& reports, const PdfPageSetup& setup) {
    ensureGuiApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        setUpWriter(writer, setup, reports.empty() ? std::string() : reports.front()->title);
        PdfDocument pdf(writer, setup);
        drawReports(pdf, reports);
    }
    return buffer.data().toStdString();
}

bool paintReports(QPagedPaintDevice& device, const std::vector<const Report*>& reports,
                  const PdfPageSetup& setup) {
    if (device.logicalDpiX() != kDpi || device.logicalDpiY() != kDpi)
        return false;
    PdfDocument pages(device, setup);
    if (!pages.active())
        return false;
    drawReports(pages, reports);
    return true;
}

std::string bookToPdf(const Report& cover, const std::vector<const Report*>& reports,
                      const PdfPageSetup& setup) {
    ensureGuiApplication();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        setUpWriter(writer, setup, cover.title);
        PdfDocument pdf(writer, setup);
        // Lay every report out first: the contents need their first pages.
        std::vector<std::vector<Block>> blocks;
        std::vector<std::vector<Page>> pages;
        for (const Report* report : reports) {
            blocks.push_back(pdf.layout().blocks(*report));
            pages.push_back(pdf.paginate(blocks.back()));
        }
        Report contents;
        contents.title = "Contents";
        ReportTable table;
        table.labelHeading = "Report";
        table.headings = {"Page"};
        for (const Report* report : reports)
            table.rows.push_back({report->title, {""}});
        contents.sections.push_back({"", {table}});
        // The contents' own length does not depend on the numbers it shows.
        const size_t contentsPages = pdf.paginate(pdf.layout().blocks(contents)).size();
        int first = 2 + static_cast<int>(contentsPages);
        for (size_t i = 0; i < reports.size(); ++i) {
            std::get<ReportTable>(contents.sections[0].items[0]).rows[i].cells[0] =
                std::to_string(first);
            first += static_cast<int>(pages[i].size());
        }
        const int total = first - 1;
        const std::vector<Block> contentsBlocks = pdf.layout().blocks(contents);
        const std::vector<Page> contentsLaid = pdf.paginate(contentsBlocks);

        pdf.startPage();
        drawTitlePage(pdf, cover, total);
        int number = 2;
        for (const Page& page : contentsLaid)
            pdf.drawPage(page, cover.title, number++, total);
        for (size_t i = 0; i < reports.size(); ++i)
            for (const Page& page : pages[i])
                pdf.drawPage(page, footerTitle(*reports[i]), number++, total);
    }
    return buffer.data().toStdString();
}

std::string saveBookPdf(const Report& cover, const std::vector<const Report*>& reports,
                        const std::filesystem::path& path, const PdfPageSetup& setup) {
    return saveReportBytes(path, bookToPdf(cover, reports, setup));
}

std::string saveReportPdf(const Report& report, const std::filesystem::path& path,
                          const PdfPageSetup& setup) {
    return saveReportBytes(path, reportsToPdf({&report}, setup));
}

} // namespace tavi::qt
