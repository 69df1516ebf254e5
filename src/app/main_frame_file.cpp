// The File menu: new, open, save, close and printing.
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

#include "app/doc_template.h"
#include "app/main_frame.h"
#include "app/new_transcript_dialog.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

namespace tavi::app {
namespace {

QString transcriptFilter() {
    return QString::fromLatin1(kTranscriptFilter) + QStringLiteral(";;All Files (*)");
}

} // namespace

void CMainFrame::fileNew() {
    CNewTranscriptDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    newTranscript(QString::fromStdString(composeNewTranscript(dialog.values())));
}

void CMainFrame::fileOpen() {
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, QStringLiteral("Open"), app_.transcriptDir(), transcriptFilter());
    for (const QString& path : paths)
        openTranscript(path);
}

bool CMainFrame::saveTranscript(CTAVIFrame& frame, bool askName) {
    CTAVIDoc& doc = frame.doc();
    QString path = doc.path();
    if (askName || path.isEmpty()) {
        const QString suggested =
            path.isEmpty() ? app_.transcriptDir() + QLatin1Char('/') + doc.title() + ".tvi" : path;
        path = QFileDialog::getSaveFileName(this, QStringLiteral("Save As"), suggested,
                                            transcriptFilter());
        if (path.isEmpty())
            return false;
        if (QFileInfo(path).suffix().isEmpty())
            path += templateField(kTranscriptTemplate, TemplateField::FilterExt);
    }
    QString error;
    if (!doc.save(path, error)) {
        app_.prompter().inform(error.toStdString());
        return false;
    }
    app_.addRecentFile(path);
    return true;
}

void CMainFrame::fileSave(bool askName) {
    if (CTAVIFrame* f = activeTranscriptFrame())
        saveTranscript(*f, askName);
    else if (activeReportFrame())
        reportSave(true);
}

void CMainFrame::fileClose() {
    if (QMdiSubWindow* w = currentWindow())
        w->close();
}

void CMainFrame::filePrintSetup() {
    if (!printer_)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPageSetupDialog dialog(printer_.get(), this);
    dialog.exec();
}

void CMainFrame::filePrint() {
    if (!printer_)
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer_.get(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (CTAVIFrame* f = activeTranscriptFrame())
        f->view().print(printer_.get());
    else if (CReptFrame* r = activeReportFrame())
        r->view().print(printer_.get());
}

} // namespace tavi::app
