// The Edit menu's transcript commands: find and replace, go to entry.
#include <QInputDialog>

#include "app/find_replace_dialog.h"
#include "app/main_frame.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"

namespace tavi::app {

void CMainFrame::editFindReplace() {
    auto* dialog = findChild<CFindReplaceDialog*>();
    if (!dialog)
        dialog = new CFindReplaceDialog(this);
    dialog->setEditor(activeEditor());
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
