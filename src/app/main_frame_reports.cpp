// The page of PDF files: "P&DF Printer Setup..." and the layout report
// windows write with. It is the frame's own, apart from the printer, so
// printing or setting up a printer never changes the page of a saved PDF.
#include "app/main_frame.h"
#include "app/page_setup_dialog.h"
#include "app/report_pdf.h"

namespace tavi::app {

QPageLayout CMainFrame::pdfLayout() const {
    return pdfPage_;
}

void CMainFrame::pdfPrinterSetup() {
    CPageSetupDialog dialog(pdfPage_, true, this);
    dialog.setWindowTitle(QStringLiteral("PDF Page Setup"));
    if (dialog.exec() == QDialog::Accepted)
        pdfPage_ = dialog.layout();
}

} // namespace tavi::app
