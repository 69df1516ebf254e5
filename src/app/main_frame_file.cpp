// The File menu: new, open, save, close and printing.
#include <QFileDialog>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

#include "app/child_frame.h"
#include "app/doc_template.h"
#include "app/main_frame.h"
#include "app/new_transcript_dialog.h"
#include "app/tavi_app.h"

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

void CMainFrame::fileSave(bool askName) {
    if (CChildFrame* child = activeChild())
        child->save(askName);
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
    if (CChildFrame* child = activeChild())
        child->print(printer_.get());
}

} // namespace tavi::app
