// The Edit menu's transcript commands: find and replace, go to entry.
#include <QInputDialog>

#include <algorithm>

#include "app/error_list_dialog.h"
#include "app/find_replace_dialog.h"
#include "app/insert_list_dialog.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "base/format.h"
#include "transcript/check_listing.h"

namespace tavi::app {

void CMainFrame::editFindReplace() {
    auto* dialog = findChild<CFindReplaceDialog*>();
    if (!dialog)
        dialog = new CFindReplaceDialog(this);
    followActiveWindow();
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void CMainFrame::editGoToEntry() {
    CTAVIFrame* frame = activeTranscriptFrame();
    const int lines = frame->doc().document()->blockCount();
    const int current = frame->view().textCursor().blockNumber() + 1;
    bool ok = false;
    const int line =
        QInputDialog::getInt(this, QStringLiteral("Go to Entry Number"),
                             QStringLiteral("Entry number:"), current, 1, lines, 1, &ok);
    if (ok)
        frame->view().goToLine(line);
}

} // namespace tavi::app

namespace tavi::app {

void CMainFrame::editCheck() {
    CTAVIFrame* frame = activeTranscriptFrame();
    frame->doc().checkNow();
    const std::vector<err>& problems = frame->doc().problems();
    if (problems.empty()) {
        app_.prompter().inform(checkSummary(0, 0));
        return;
    }
    auto* dialog = new CErrorListDialog(frame->view(), problems, QString(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

// Checks the transcript before an analysis; with errors the list is shown
// and the person may cancel. True when the analysis goes on.
bool CMainFrame::acceptErrors(CTAVIFrame& frame, const std::vector<err>& problems) {
    frame.doc().setProblems(problems);
    const bool hasErrors =
        std::any_of(problems.begin(), problems.end(), [](const err& e) { return e.isError(); });
    if (!hasErrors)
        return true;
    const QString question = QString::fromStdString(
        tavi::format("%s contains errors. Would you like to continue with the analysis?",
                     frame.doc().title().toStdString().c_str()));
    CErrorListDialog dialog(frame.view(), problems, question, this);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace tavi::app

namespace tavi::app {

// Insert Code, Insert Text and Insert Symbol: the chosen entry of the current
// list is typed at the caret.
void CMainFrame::editInsertFromList(int kind) {
    static const char* const titles[] = {"Insert Code", "Insert Text", "Insert Symbol"};
    std::vector<InsertEntry> entries =
        currentInsertList(app_.settings(), static_cast<InsertKind>(kind));
    if (entries.empty()) {
        app_.prompter().inform("The current list is empty - see Setup menu --> Lists");
        return;
    }
    CInsertListDialog dialog(QString::fromLatin1(titles[kind]), std::move(entries), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (QPlainTextEdit* editor = activeEditor(); editor && !dialog.chosenText().isEmpty())
        editor->insertPlainText(dialog.chosenText());
}

} // namespace tavi::app
