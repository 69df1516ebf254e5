// The main frame titled "TAVI": the multiple-document area with transcript
// and report windows, the main menu built from the command table, the
// context menus, and the handlers that route each command to its subsystem.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QPageLayout>
#include <QPointer>
#include <functional>
#include <map>
#include <optional>
#include <span>

#include "app/command_registry.h"
#include "app/command_table.h"
#include "app/report_runner.h"
#include "app/rept_doc.h"
#include "batch/list_generation.h"
#include "database/peer_selection.h"
#include "explore/explore_edit.h"
#include "qt/page_setup.h"
#include "session/analysis_session.h"

class QPrinter;
class QPlainTextEdit;

namespace tavi::app {

class CTAVIApp;
class CChildFrame;
class CTAVIDoc;
class CTAVIFrame;
class CReptFrame;
class CErrorListDialog;

class CMainFrame final : public QMainWindow {
    Q_OBJECT
public:
    explicit CMainFrame(CTAVIApp& app);
    ~CMainFrame() override;

    CTAVIApp& app() { return app_; }
    QMdiArea& mdiArea() { return *mdi_; }
    // The action of a command of the main menu by its identifier.
    QAction* action(const QString& id) const;
    QAction* action(CommandId id) const;
    // Every command's handler.
    const CommandRegistry& commands() const { return commands_; }
    // The texts of the status-bar prompt for commands not built yet.
    static QString notAvailablePrompt(const QString& prompt);

    // The window commands act on: the active one, or the last active one
    // while a dialog or another program has the focus.
    QMdiSubWindow* currentWindow() const;
    // The current window when it is a transcript or a report.
    CChildFrame* activeChild() const;
    CTAVIFrame* activeTranscriptFrame() const;
    CReptFrame* activeReportFrame() const;
    QList<CTAVIFrame*> transcriptFrames() const;
    QList<CReptFrame*> reportFrames() const;

    CTAVIFrame* newTranscript(const QString& text);
    CTAVIFrame* openTranscript(const QString& path);
    CReptFrame* showReport(ReportContent content, CTAVIDoc* source);
    // A file of the recent-files list; one that no longer exists is said to
    // be missing and leaves the list.
    CTAVIFrame* openRecentFile(const QString& path);

    // The window layout of the last run (main_frame_shell.cpp), kept in
    // "tavi-gui.layout" in the user's setup folder: the frame's size,
    // position and state, and the transcripts that were open.
    // `restoreLayout` sets the frame (call it before showing the frame) and
    // returns the transcripts to open again, those that still exist.
    QStringList restoreLayout();
    bool saveLayout() const;
    QString layoutPath() const;
    // Re-evaluates which commands can be chosen now.
    void updateCommands();
    QMenu* makeContextMenu(std::span<const MenuEntry> table);

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void buildMenus();
    bool eventFilter(QObject* watched, QEvent* event) override;
    QAction* makeAction(const MenuEntry& entry);
    void registerCommands();
    void on(CommandId id, std::function<void()> run, std::function<bool()> enabled = {});
    void refreshRecentFiles();
    void refreshWindowList();
    void addFrame(CChildFrame* frame);
    // Sizes a new window to most of the visible area and cascades it from
    // the windows already open, never past the area's edges.
    void placeNewWindow(QMdiSubWindow* window);
    // The active window marked, the others not; the Find dialog searches
    // the active transcript (main_frame_shell.cpp).
    void followActiveWindow();

    // File
    void fileNew();
    void fileOpen();
    void fileImportChat();
    void fileSave(bool askName);
    void fileClose();
    void filePrint();
    void filePrintSetup();
    void pdfPrinterSetup();
    QPrinter& printer();
    // Edit
    void editFindReplace();
    void editGoToEntry();
    void editCheck();
    void editInsertFromList(int kind);
    QPlainTextEdit* activeEditor() const;
    // Analyze
    CTAVIDoc* analysisTarget();
    std::optional<TranscriptAnalysis> reportAnalysis(CTAVIDoc*& doc);
    bool acceptErrors(CTAVIFrame& frame, const std::vector<err>& problems);
    ReportSource reportSource(CTAVIDoc& doc) const;
    void analyzeStandardMeasures();
    void analyzeReport(std::string_view kind, bool askSpeaker = true);
    bool chooseReportSpeaker(const ReportDefinition& report, TranscriptAnalysis& analysis);
    void registerReportCommands();
    void analyzeCustomPdf();
    // Macro analysis (main_frame_macro.cpp)
    void registerMacroCommands();
    void insertTemplate(std::string_view key);
    void insertSiCodes();
    void siCodeSettings();
    // Root identification and grammatical-category codes (main_frame_rif.cpp)
    void registerRifCommands();
    void identifyRoots();
    void editRifContents();
    void rifSettingsDialog();
    void insertGcCodes();
    // Database
    CTAVIDoc* databaseTarget() const;
    void refreshDatabaseMenu();
    std::optional<TranscriptAnalysis> checkedAnalysis(CTAVIDoc& doc, int speaker);
    void databaseSelect();
    const db::PeerSnapshot* compareWithDatabase(CTAVIDoc& doc, TranscriptAnalysis& analysis);
    void databaseReport(std::string_view kind);
    void showNormativeGraph();
    // Reports
    QPageLayout pdfLayout() const;
    // Explore, on the active transcript or (multiple) on chosen files
    std::optional<ExploreCriteria> exploreCriteria(bool multiple);
    std::optional<ExploreResult> exploreActive(const ExploreCriteria& criteria, bool editing);
    QStringList exploreFiles(const QString& title);
    void exploreList(bool multiple);
    void exploreFind(bool multiple);
    void exploreInsertCode(bool multiple);
    void exploreDeleteCode(bool multiple, bool fromExplore);
    void exploreSave(bool multiple);
    std::optional<std::pair<std::string, CodePlace>> askCodeToInsert(bool multiple);
    QString rememberedCode(const char* keyword, bool* onWords = nullptr) const;
    bool separateOptions(bool multiple, SeparateOptions& options);
    void replaceTranscriptText(CTAVIFrame& frame, const std::string& text);
    std::string writeExploreEdit(const QString& path, const CodeEdit& edit);
    QStringList forEachExploredFile(
        const QStringList& files, const ExploreCriteria& criteria,
        const std::function<std::string(const std::string&)>& question,
        const std::function<std::string(const QString&, const std::string&, const ExploreResult&)>&
            visit);
    void editFiles(const ExploreCriteria& criteria,
                   const std::function<std::string(const std::string&)>& question,
                   const std::function<CodeEdit(const std::string&, const ExploreResult&)>& edit);
    // Link
    void linkTranscripts();
    void unlinkTranscripts();
    // Setup
    void setupAnalysisSet();
    void setupWordBase();
    void setupTranscriptCut();
    void setupMovingAverage();
    void setupSdInterval();
    void setupBackups();
    void setupFolder(const QString& which);
    void setupFont(int which);
    void applyFonts();
    // Language settings and the network or lab setup (main_frame_netsetup.cpp)
    void registerNetSetupCommands();
    void setupLanguage();
    void netClientOptions();
    void netPdfPrinter();
    void netFolder(const char* keyword);
    void netFont(int which);
    bool saveProgramDefaults(const std::vector<std::string>& keywords,
                             const std::vector<std::string>& lines);
    // Setup > Lists, Timing Lines, Default Databases (main_frame_lists.cpp)
    void registerListCommands();
    // Tools
    void registerToolCommands();
    void toolsGenerateList(ListKind kind);
    void toolsCheck();
    void toolsBuildDatabase();
    void toolsRectangularData();
    // Window and Help
    void closeAll(bool reportsOnly);
    void showHelpDocument(const QString& relativePath);
    void showReferenceBook();
    void showAbout();
    void showPdfViewer();

    CTAVIApp& app_;
    QMdiArea* mdi_;
    CommandRegistry commands_;
    std::map<QString, QAction*> actions_;
    std::map<CommandId, QAction*> commandActions_;
    QAction* recentAnchor_ = nullptr;
    QList<QAction*> recentActions_;
    QMenu* windowMenu_ = nullptr;
    QList<QAction*> windowActions_;
    std::unique_ptr<QPrinter> printer_;
    QPageLayout pdfPage_ = qt::defaultPageLayout(); // the page of saved PDF files
    int untitledCount_ = 0;
    QPointer<QMdiSubWindow> current_; // kept while the frame itself is not active
    // Explore > Find: the transcript searched, its text then and the found entries.
    QPointer<CTAVIDoc> findDoc_;
    std::string findText_;
    std::vector<int> findLines_;
};

} // namespace tavi::app
