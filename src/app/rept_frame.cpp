// Caption and saving of a report window, and the PDF batch.
#include "app/rept_frame.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrinter>
#include <QUrl>

#include "app/report_pdf.h"
#include "app/rept_doc.h"
#include "app/rept_view.h"
#include "app/save_report_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "base/file_io.h"
#include "reports/grid_writer.h"
#include "reports/report_grid.h"
#include "reports/save_state.h"
#include "reports/text_writer.h"

namespace tavi::app {
namespace {

// The name reports are saved under: the transcript's without its extension,
// else the report's title.
QString baseName(const CReptDoc& doc) {
    QString name =
        doc.source() ? QFileInfo(doc.source()->title()).completeBaseName() : doc.content().title;
    return name.isEmpty() ? QStringLiteral("Report") : name;
}

void showSaved(const CTAVIApp& app, const QString& path) {
    if (app.reportSave.displayAfterSaving())
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace

CReptFrame::CReptFrame(CReptDoc* doc, CTAVIApp& app, std::function<QPageLayout()> pdfLayout,
                       QWidget* parent)
    : CChildFrame(parent), doc_(doc), view_(new CReptView(*doc)), app_(app),
      pdfLayout_(std::move(pdfLayout)) {
    doc_->setParent(this);
    setWidget(view_);
    setObjectName(QStringLiteral("CReptFrame"));
    connect(view_, &CReptView::contextMenuWanted, this, &CChildFrame::contextMenuWanted);
    updateCaption();
}

void CReptFrame::updateCaption() {
    setWindowTitle(doc_->title());
}

bool CReptFrame::save(bool) {
    ReportSaveState& state = app_.reportSave;
    const bool batchOpen = state.batchOpen();
    // A grid report (a table of counts) offers CSV first, a rich-text one PDF.
    const bool grid = doc_->content().form == ReportKind::Grid;
    int chosen = 0;
    bool display = false;
    if (grid) {
        CSaveReportType dialog(state.initialChoice(ReportKind::Grid, true),
                               state.displayAfterSaving(), batchOpen, window());
        if (dialog.exec() != QDialog::Accepted)
            return false;
        chosen = dialog.choice();
        display = dialog.displayAfterSaving();
    } else {
        CSaveReportTypeRTF dialog(state.initialChoice(ReportKind::RichText, false),
                                  state.displayAfterSaving(), batchOpen, window());
        if (dialog.exec() != QDialog::Accepted)
            return false;
        chosen = dialog.choice();
        display = dialog.displayAfterSaving();
    }
    state.remember(chosen);
    state.setDisplayAfterSaving(display);
    const bool batch = grid ? chosen == static_cast<int>(GridSaveChoice::PdfBatch)
                            : chosen == static_cast<int>(RichTextSaveChoice::BeginPdfBatch);
    if (batch) {
        if (batchOpen)
            closePdfBatch(app_);
        else
            addToPdfBatch();
        Q_EMIT commandsChanged();
        return false;
    }
    const bool pdf = chosen == 0; // PDF is the first choice of both dialogs
    const FileChoice file = grid ? gridFileChoice(static_cast<GridSaveChoice>(chosen))
                                 : richTextFileChoice(static_cast<RichTextSaveChoice>(chosen));
    const QString extension = QString::fromStdString(file.extension);
    QString path =
        QFileDialog::getSaveFileName(window(), QStringLiteral("Save As"),
                                     QDir(app_.reportDir()).filePath(baseName(*doc_) + extension),
                                     QString::fromStdString(file.shownFilter()));
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += extension;
    bool written = false;
    if (pdf) {
        written = writePdf({&doc_->content().report}, path,
                           qt::pdfPageSetup(app_.settings(), pdfLayout_()));
    } else if (grid) {
        const auto choice = static_cast<GridSaveChoice>(chosen);
        const GridFormat format = choice == GridSaveChoice::Csv   ? GridFormat::Csv
                                  : choice == GridSaveChoice::Tsv ? GridFormat::Tsv
                                                                  : GridFormat::Txt;
        written = saveGrid(reportGrid(doc_->content().report), format, path.toStdString()).empty();
    } else {
        const auto choice = static_cast<RichTextSaveChoice>(chosen);
        const std::string bytes = choice == RichTextSaveChoice::Rtf
                                      ? doc_->content().rtf
                                      : reportTextFileBytes(doc_->content().report);
        written = writeFileAtomic(path.toStdString(), bytes) == WriteStatus::Ok;
    }
    if (!written) {
        app_.prompter().inform("Cannot write to " + path.toStdString());
        return false;
    }
    doc_->setSavedPath(path);
    updateCaption();
    showSaved(app_, path);
    return true;
}

void CReptFrame::addToPdfBatch() {
    ReportSaveState& state = app_.reportSave;
    if (!state.batchOpen()) {
        const QString named = doc_->source() ? doc_->source()->title() : baseName(*doc_);
        const QString suggested = QString::fromStdString(
            pdfBatchPath(app_.reportDir().toStdString(), named.toStdString()).string());
        QString path = QFileDialog::getSaveFileName(window(), QStringLiteral("Begin PDF Batch"),
                                                    suggested, QStringLiteral("PDF file (*.PDF)"));
        if (path.isEmpty())
            return;
        if (QFileInfo(path).suffix().isEmpty())
            path += QStringLiteral(".pdf");
        state.setBatchPath(path.toStdString());
    }
    const std::string added = state.reportAddedToBatch(doc_->content().report);
    std::vector<const Report*> pages;
    for (const Report& r : state.batchReports())
        pages.push_back(&r);
    const QString path = QString::fromStdString(state.batchPath().string());
    if (!writePdf(pages, path, qt::pdfPageSetup(app_.settings(), pdfLayout_()))) {
        state.dropLastFromBatch();
        app_.prompter().inform("Cannot write to " + path.toStdString());
        return;
    }
    app_.prompter().inform(added);
    Q_EMIT commandsChanged();
}

void CReptFrame::print(QPrinter* printer) {
    if (!printReports({&doc_->content().report}, *printer, pdfLayout_(), app_.settings()))
        app_.prompter().inform("The report cannot be printed on this printer.");
}

void CReptFrame::copy() {
    view_->copy();
}

void CReptFrame::selectAll() {
    view_->selectAll();
}

std::span<const MenuEntry> CReptFrame::contextTable() const {
    return reportContextTable();
}

void closePdfBatch(CTAVIApp& app) {
    ReportSaveState& state = app.reportSave;
    const QString path = QString::fromStdString(state.batchPath().string());
    if (!state.closeBatch())
        return;
    showSaved(app, path);
}

} // namespace tavi::app
