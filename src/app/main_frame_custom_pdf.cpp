// "Create Customized PDF Report": the reports chosen in its dialog, written
// as one PDF with a title page and a table of contents.
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "app/custom_pdf_dialog.h"
#include "app/main_frame.h"
#include "app/report_runner.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "base/file_io.h"
#include "qt/page_setup.h"
#include "qt/pdf_writer.h"
#include "reports/custom_report.h"

namespace tavi::app {

void CMainFrame::analyzeCustomPdf() {
    const ReportDefinition* definition = findReport(kCustomReportName);
    CTAVIDoc* doc = nullptr;
    std::optional<TranscriptAnalysis> analysis = reportAnalysis(doc);
    if (!definition || !analysis || !chooseReportSpeaker(*definition, *analysis))
        return;
    std::vector<std::string> checked;
    for (const ReportDefinition* report : customReportKinds({}, false).reports)
        checked.emplace_back(report->name);
    CCustomPdfDialog dialog(customReportChoices(false), checked, this);
    if (dialog.exec() != QDialog::Accepted || dialog.kinds().empty())
        return;
    ReportSource source = reportSource(*doc);
    source.choices.kinds = dialog.kinds();
    QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save As"),
        QDir(app_.reportDir())
            .filePath(QFileInfo(doc->title()).completeBaseName() + QStringLiteral("_Custom.pdf")),
        QStringLiteral("PDF file (*.PDF)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".pdf");
    const std::vector<Report> reports = makeCustomReports(app_, *analysis, source);
    std::vector<const Report*> held;
    for (size_t i = 1; i < reports.size(); ++i)
        held.push_back(&reports[i]);
    const std::string bytes =
        qt::bookToPdf(reports.front(), held, qt::pdfPageSetup(app_.settings(), pdfLayout()));
    if (writeFileAtomic(path.toStdString(), bytes) != WriteStatus::Ok)
        app_.prompter().inform("Cannot write to " + path.toStdString());
}

} // namespace tavi::app
