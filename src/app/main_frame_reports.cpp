// The page of PDF files: "P&DF Printer Setup..." and the layout report
// windows write with.
#include <QPageSetupDialog>
#include <QPrinter>

#include "app/main_frame.h"
#include "app/report_pdf.h"

namespace tavi::app {

QPageLayout CMainFrame::pdfLayout() const {
    return printer_ ? printer_->pageLayout() : qt::defaultPageLayout();
}

void CMainFrame::pdfPrinterSetup() {
    if (!printer_)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setOutputFormat(QPrinter::PdfFormat);
    QPageSetupDialog dialog(printer_.get(), this);
    dialog.exec();
}

} // namespace tavi::app
