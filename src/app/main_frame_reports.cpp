// Report windows: saving as PDF, RTF or text, and the PDF batch.
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrinter>
#include <QUrl>

#include "app/main_frame.h"
#include "app/report_pdf.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/save_report_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "base/file_io.h"
#include "base/format.h"

namespace tavi::app {
namespace {

struct FileChoice {
    const char* filter;
    const char* extension;
};

FileChoice fileChoice(int choice) {
    switch (choice) {
    case SaveRtf:
        return {"RTF file (*.RTF)", ".rtf"};
    case SaveTxt:
        return {"Text file (*.TXT)", ".txt"};
    default:
        return {"PDF file (*.PDF)", ".pdf"};
    }
}

QString baseName(const CReptDoc& doc) {
    QString name =
        doc.source() ? QFileInfo(doc.source()->title()).completeBaseName() : doc.content().title;
    return name.isEmpty() ? QStringLiteral("Report") : name;
}

} // namespace

QPageLayout CMainFrame::pdfLayout() const {
    return printer_ ? printer_->pageLayout() : qt::defaultPageLayout();
}

bool CMainFrame::writeReportPdf(const CReptDoc& doc, const QString& path) {
    return writePdf({&doc.content().report}, path, qt::pdfPageSetup(app_.settings(), pdfLayout()));
}

void CMainFrame::reportSave(bool) {
    CReptFrame* frame = activeReportFrame();
    if (!frame)
        return;
    CReptDoc& doc = frame->doc();
    ReportSaveState& state = app_.reportSave;
    const bool batchOpen = state.pdfBatchCount > 0;
    CSaveReportTypeRTF dialog(state.lastFormat < 0 ? SavePdf : state.lastFormat,
                              state.displayAfterSaving, batchOpen, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    state.lastFormat = dialog.choice();
    state.displayAfterSaving = dialog.displayAfterSaving();
    if (dialog.choice() == SavePdfBatch) {
        if (batchOpen)
            reportClosePdfBatch();
        else
            reportAddToPdfBatch();
        return;
    }
    const FileChoice file = fileChoice(dialog.choice());
    QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save As"),
        QDir(app_.reportDir()).filePath(baseName(doc) + QString::fromLatin1(file.extension)),
        QString::fromLatin1(file.filter));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QString::fromLatin1(file.extension);
    bool written = false;
    if (dialog.choice() == SavePdf) {
        written = writeReportPdf(doc, path);
    } else {
        const std::string& bytes =
            dialog.choice() == SaveRtf ? doc.content().rtf : doc.content().text;
        written = writeFileAtomic(path.toStdString(), bytes) == WriteStatus::Ok;
    }
    if (!written) {
        app_.prompter().inform("Cannot write to " + path.toStdString());
        return;
    }
    doc.setSavedPath(path);
    frame->updateCaption();
    if (state.displayAfterSaving)
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void CMainFrame::reportAddToPdfBatch() {
    CReptFrame* frame = activeReportFrame();
    if (!frame)
        return;
    ReportSaveState& state = app_.reportSave;
    if (state.pdfBatchCount == 0) {
        const QString suggested =
            QDir(app_.reportDir())
                .filePath(baseName(frame->doc()) + QStringLiteral("_Reports.pdf"));
        QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Begin PDF Batch"),
                                                    suggested, QStringLiteral("PDF file (*.PDF)"));
        if (path.isEmpty())
            return;
        if (QFileInfo(path).suffix().isEmpty())
            path += QStringLiteral(".pdf");
        state.pdfBatchPath = path;
        state.pdfBatchReports.clear();
    }
    state.pdfBatchReports.push_back(frame->doc().content().report);
    std::vector<const Report*> pages;
    for (const Report& r : state.pdfBatchReports)
        pages.push_back(&r);
    if (!writePdf(pages, state.pdfBatchPath, qt::pdfPageSetup(app_.settings(), pdfLayout()))) {
        state.pdfBatchReports.pop_back();
        app_.prompter().inform("Cannot write to " + state.pdfBatchPath.toStdString());
        return;
    }
    state.pdfBatchCount = static_cast<int>(state.pdfBatchReports.size());
    app_.prompter().inform(
        tavi::format("Report %d has been added to the PDF file", state.pdfBatchCount));
    updateCommands();
}

void CMainFrame::reportClosePdfBatch() {
    ReportSaveState& state = app_.reportSave;
    if (state.pdfBatchCount < 1)
        return;
    const QString path = state.pdfBatchPath;
    state.pdfBatchCount = 0;
    state.lastFormat = 0;
    state.pdfBatchReports.clear();
    state.pdfBatchPath.clear();
    updateCommands();
    if (state.displayAfterSaving)
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void CMainFrame::pdfPrinterSetup() {
    if (!printer_)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setOutputFormat(QPrinter::PdfFormat);
    QPageSetupDialog dialog(printer_.get(), this);
    dialog.exec();
}

} // namespace tavi::app
