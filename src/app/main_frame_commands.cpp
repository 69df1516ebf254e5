// Which function serves each command of the menus, and when it can be chosen.
// Every command marked working in the command list has its handler here;
// the others stay in their menus, disabled, marked as not available yet.
#include <QApplication>

#include "app/child_frame.h"
#include "app/main_frame.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app/transcript_peers.h"

namespace tavi::app {

void CMainFrame::registerCommands() {
    using enum CommandId;
    auto transcript = [this] { return activeTranscriptFrame() != nullptr; };
    auto report = [this] { return activeReportFrame() != nullptr; };
    auto window = [this] { return currentWindow() != nullptr; };
    auto document = [this] { return activeChild() != nullptr; };
    auto analysable = [this] { return activeTranscriptFrame() || activeReportFrame(); };
    auto editor = [this](auto test) {
        return [this, test] {
            QPlainTextEdit* e = activeEditor();
            return e && test(*e);
        };
    };

    // File
    on(ID_FILE_NEW, [this] { fileNew(); });
    on(ID_FILE_OPEN, [this] { fileOpen(); });
    on(ID_FILE_IMPORT_CHAT, [this] { fileImportChat(); });
    on(
        ID_FILE_CLOSE, [this] { fileClose(); }, window);
    on(
        ID_FILE_SAVE, [this] { fileSave(false); }, document);
    on(
        ID_FILE_SAVE_AS, [this] { fileSave(true); }, document);
    on(
        ID_FILE_PRINT, [this] { filePrint(); }, document);
    on(ID_FILE_PRINT_SETUP, [this] { filePrintSetup(); });
    on(
        ID_FILE_ADD_PDF_BATCH, [this] { activeReportFrame()->addToPdfBatch(); }, report);
    on(
        ID_FILE_CLOSE_PDF_BATCH,
        [this] {
            closePdfBatch(app_);
            updateCommands();
        },
        [this] { return app_.reportSave.batchOpen(); });
    on(ID_FILE_PDF_SETUP, [this] { pdfPrinterSetup(); });
    on(ID_APP_EXIT, [this] { close(); });

    // Analyze
    on(
        ID_ANAL_SMR, [this] { analyzeStandardMeasures(); }, analysable);
    // The Performance Report is of the speaker chosen last (the database
    // selection's target): it asks nothing.
    on(
        ID_ANAL_PERF, [this] { analyzeReport("performance", false); }, analysable);
    on(
        ID_ANAL_CUSTOM_PDF, [this] { analyzeCustomPdf(); }, analysable);

    // Database: the reports wait for a selection that matched samples.
    auto compared = [this] {
        const CTAVIDoc* doc = databaseTarget();
        return doc && doc->peers().ready();
    };
    on(
        ID_DB_SELECT, [this] { databaseSelect(); }, analysable);
    on(
        ID_DB_SMR, [this] { databaseReport("smr"); }, compared);
    on(
        ID_DB_PERF, [this] { databaseReport("performance"); }, compared);
    on(
        ID_DB_GOALS, [this] { databaseReport("goals"); }, compared);
    registerMacroCommands();
    registerReportCommands();
    registerRifCommands();

    // Edit
    on(
        ID_EDIT_FIND_REPLACE, [this] { editFindReplace(); }, transcript);
    on(
        ID_EDIT_CHECK, [this] { editCheck(); }, transcript);
    on(
        ID_EDIT_INSERT_CODE, [this] { editInsertFromList(0); }, transcript);
    on(
        ID_EDIT_INSERT_TEXT, [this] { editInsertFromList(1); }, transcript);
    on(
        ID_EDIT_INSERT_SYMBOL, [this] { editInsertFromList(2); }, transcript);
    on(
        ID_EDIT_GOTO_ENTRY, [this] { editGoToEntry(); }, transcript);
    on(
        ID_EDIT_UNDO, [this] { activeEditor()->undo(); },
        editor([](QPlainTextEdit& e) { return e.document()->isUndoAvailable(); }));
    on(
        ID_EDIT_REDO, [this] { activeEditor()->redo(); },
        editor([](QPlainTextEdit& e) { return e.document()->isRedoAvailable(); }));
    on(
        ID_EDIT_CUT, [this] { activeEditor()->cut(); }, transcript);
    on(
        ID_EDIT_COPY, [this] { activeChild()->copy(); }, document);
    on(
        ID_EDIT_PASTE, [this] { activeEditor()->paste(); },
        editor([](QPlainTextEdit& e) { return e.canPaste(); }));
    on(
        ID_EDIT_SELECT_ALL, [this] { activeChild()->selectAll(); }, document);

    // Explore and Tools > Explore Multiple Transcripts
    on(
        ID_EXPLORE_LIST, [this] { exploreList(false); }, transcript);
    on(
        ID_EXPLORE_FIND, [this] { exploreFind(false); }, transcript);
    on(
        ID_EXPLORE_INSERT, [this] { exploreInsertCode(false); }, transcript);
    on(
        ID_EXPLORE_DELETE, [this] { exploreDeleteCode(false, true); }, transcript);
    on(
        ID_EDIT_DELETE_CODE, [this] { exploreDeleteCode(false, false); }, transcript);
    on(
        ID_EXPLORE_SAVE, [this] { exploreSave(false); }, transcript);
    on(ID_EMULT_LIST, [this] { exploreList(true); });
    on(ID_EMULT_FIND, [this] { exploreFind(true); });
    on(ID_EMULT_INSERT, [this] { exploreInsertCode(true); });
    on(ID_EMULT_DELETE, [this] { exploreDeleteCode(true, true); });
    on(ID_EMULT_SAVE, [this] { exploreSave(true); });

    // Link
    on(
        ID_LINK_LINK, [this] { linkTranscripts(); },
        [this] { return activeTranscriptFrame() && transcriptFrames().size() >= 2; });
    on(
        ID_LINK_UNLINK, [this] { unlinkTranscripts(); },
        [this] {
            CTAVIFrame* f = activeTranscriptFrame();
            return f && f->doc().linkedWith();
        });

    // Setup
    on(ID_SETUP_ASET, [this] { setupAnalysisSet(); });
    on(ID_SETUP_WBASE, [this] { setupWordBase(); });
    on(ID_SETUP_TCUT, [this] { setupTranscriptCut(); });
    on(ID_ANSET_MATTR, [this] { setupMovingAverage(); });
    on(ID_ANSET_PCSD, [this] { setupSdInterval(); });
    on(ID_EDSET_BACKUP, [this] { setupBackups(); });
    const std::pair<CommandId, const char*> folders[] = {
        {ID_LOC_TRAN, "TRANDIR"},      {ID_LOC_REPT, "REPORTDIR"},  {ID_LOC_DB, "DBASEDIR"},
        {ID_LOC_ALTDB, "ALTDBASEDIR"}, {ID_LOC_LIST, "LISTDIR"},    {ID_LOC_RIF, "HASHFILEDIR"},
        {ID_LOC_BATCH, "BATCHDIR"},    {ID_LOC_BACKUP, "BACKUPDIR"}};
    for (const auto& [id, keyword] : folders) {
        const QString key = QString::fromLatin1(keyword);
        on(id, [this, key] { setupFolder(key); });
    }
    on(ID_FONT_DISPTRAN, [this] { setupFont(0); });
    on(ID_FONT_DISPREPT, [this] { setupFont(1); });
    on(ID_FONT_PRT, [this] { setupFont(2); });
    registerNetSetupCommands();
    registerListCommands();

    // Tools
    registerToolCommands();

    // Window
    on(
        ID_WINDOW_CLOSE_ALL, [this] { closeAll(false); }, window);
    on(
        ID_WINDOW_CLOSE_REPORTS, [this] { closeAll(true); },
        [this] { return !reportFrames().isEmpty(); });

    // Help
    on(ID_HELP_FINDER, [this] { showHelpDocument(QStringLiteral("docs/index.md")); });
    on(ID_CONTEXT_HELP, [this] { showHelpDocument(QStringLiteral("docs/index.md")); });
    on(ID_HELP_README, [this] { showHelpDocument(QStringLiteral("README.md")); });
    on(ID_HELP_GRAPHS, [this] { showNormativeGraph(); });
    // The documentation index stands in for online resources: no network.
    on(ID_HELP_ONLINE, [this] { showHelpDocument(QStringLiteral("docs/index.md")); });
    on(ID_HELP_ACROBAT, [this] { showPdfViewer(); });
    on(ID_APP_ABOUT, [this] { showAbout(); });
}

QPlainTextEdit* CMainFrame::activeEditor() const {
    CTAVIFrame* f = activeTranscriptFrame();
    return f ? &f->view() : nullptr;
}

} // namespace tavi::app
