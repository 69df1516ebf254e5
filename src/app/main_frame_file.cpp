// The File menu: new, open, import, save, close and printing.
#include <QFileDialog>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>

#include "app/child_frame.h"
#include "app/doc_template.h"
#include "app/main_frame.h"
#include "app/new_transcript_dialog.h"
#include "app/page_setup_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "base/file_io.h"
#include "import/chat_import.h"

namespace tavi::app {
namespace {

QString transcriptFilter() {
    return QString::fromLatin1(kTranscriptFilter) + QStringLiteral(";;All Files (*)");
}

} // namespace

void CMainFrame::fileNew() {
    const LanguageSettings& language = app_.settings().language;
    const DateFormat dates{language.monthFirst ? DateOrder::MonthDayYear : DateOrder::DayMonthYear,
                           language.dateSeparator};
    CNewTranscriptDialog dialog(app_.labelSource(), dates, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    newTranscript(QString::fromStdString(composeNewTranscript(dialog.values(), dialog.labels())));
}

void CMainFrame::fileOpen() {
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, QStringLiteral("Open"), app_.transcriptDir(), transcriptFilter());
    for (const QString& path : paths)
        openTranscript(path);
}

// Each CHAT file chosen becomes a new, unsaved transcript named after it;
// one message then says, file by file, what the notation could not hold or
// why a file was not imported.
void CMainFrame::fileImportChat() {
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, QStringLiteral("Import CHAT file"), app_.transcriptDir(),
        QStringLiteral("CHAT Files (*.cha);;All Files (*)"));
    if (paths.isEmpty())
        return;
    const AnalysisContext context = app_.analysisContext();
    ChatImportOptions options;
    options.dateFormat = context.check.dateFormat;
    options.dictionary = context.measures.dictionary;
    QStringList report;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        std::string chat;
        if (!readFile(file.absoluteFilePath().toStdString(), chat)) {
            report << file.fileName() + QStringLiteral(": cannot be read");
            continue;
        }
        const ChatImport import = importChat(chat, options);
        if (!import.ok) {
            report << file.fileName() + QStringLiteral(": not imported: ") +
                          QString::fromStdString(import.problem);
            continue;
        }
        CTAVIFrame* imported = newTranscript(QString::fromStdString(import.text));
        --untitledCount_;
        imported->doc().setSuggestedName(file.completeBaseName() + QStringLiteral(".tvi"));
        imported->view().moveCursor(QTextCursor::Start);
        QString line =
            file.fileName() + QStringLiteral(": ") + QString::fromStdString(droppedSummary(import));
        if (import.morFallbacks > 0)
            line += QStringLiteral("; %1 utterances took their endings from the spelling")
                        .arg(import.morFallbacks);
        report << line;
    }
    app_.prompter().inform(report.join(QLatin1Char('\n')).toStdString());
}

void CMainFrame::fileSave(bool askName) {
    if (CChildFrame* child = activeChild())
        child->save(askName);
}

void CMainFrame::fileClose() {
    if (QMdiSubWindow* w = currentWindow())
        w->close();
}

// The printer of Print and Print Setup, on the report page's paper until
// the person chooses another.
QPrinter& CMainFrame::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setPageLayout(pdfPage_);
    }
    return *printer_;
}

// The system's page setup works only on a system printer; without one (no
// printing service, or printing to a file) the program's own dialog sets
// the paper.
void CMainFrame::filePrintSetup() {
    QPrinter& p = printer();
    if (p.outputFormat() == QPrinter::NativeFormat && p.isValid()) {
        QPageSetupDialog dialog(&p, this);
        dialog.exec();
        return;
    }
    CPageSetupDialog dialog(p.pageLayout(), false, this);
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    if (dialog.exec() == QDialog::Accepted)
        p.setPageLayout(dialog.layout());
}

void CMainFrame::filePrint() {
    QPrinter& p = printer();
    QPrintDialog dialog(&p, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (CChildFrame* child = activeChild())
        child->print(&p);
}

} // namespace tavi::app
