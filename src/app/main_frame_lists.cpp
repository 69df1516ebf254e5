// Setup > Lists (the list editors), Setup > Analysis Settings > Timing Lines
// and Default Databases.
#include "app/analysis_settings_dialogs.h"
#include "app/lists_dialogs.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"

namespace tavi::app {

void CMainFrame::registerListCommands() {
    using enum CommandId;
    on(ID_LISTS_SWL, [this] {
        CStandardWordListsDialog dialog(app_, this);
        dialog.exec();
    });
    const std::pair<CommandId, CCurrentListsDialog::Kind> lists[] = {
        {ID_LISTS_CODES, CCurrentListsDialog::Codes},
        {ID_LISTS_TEXT, CCurrentListsDialog::Texts},
        {ID_LISTS_SYMBOLS, CCurrentListsDialog::Symbols}};
    for (const auto& [id, kind] : lists) {
        on(id, [this, kind = kind] {
            CCurrentListsDialog dialog(app_, kind, this);
            dialog.exec();
        });
    }
    on(ID_ANSET_TIMING, [this] {
        CTimingLinesDialog dialog(app_, this);
        dialog.exec();
    });
    on(ID_ANSET_DEFDB, [this] {
        CDefaultDatabaseDialog dialog(app_, this);
        dialog.exec();
    });
}

} // namespace tavi::app
