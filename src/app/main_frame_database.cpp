// The Database menu: choosing a transcript's database samples and the
// reports that compare the transcript with them, and the Performance Report
// of the transcript alone.
#include "app/dbp_set_dialog.h"
#include "app/main_frame.h"
#include "app/qt_prompter.h"
#include "app/report_options_dialog.h"
#include "app/report_runner.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/transcript_peers.h"
#include "base/format.h"

namespace tavi::app {
namespace {

constexpr const char* kSelectText = "Select &Database Samples and Settings";
constexpr const char* kChangeText =
    "Change &Database Samples and Settings (%d/%d samples selected)";
constexpr const char* kChangePairText =
    "Change &Database Samples and Settings (%d/%d && %d/%d samples selected)";

// The selection a transcript starts with: the default database of the
// settings ("DEFDBPATH" and "DEFDBNAME") when there is one, its age span,
// and the SD interval of the settings.
db::PeerSelection firstSelection(CTAVIApp& app, TranscriptPeers& peers) {
    const auto& defaults = app.settings().databaseDefaults;
    std::filesystem::path path;
    const auto folder = defaults.find("DEFDBPATH"), name = defaults.find("DEFDBNAME");
    if (name != defaults.end() && !name->second.empty()) {
        path = name->second;
        if (folder != defaults.end() && !folder->second.empty() && path.is_relative())
            path = std::filesystem::path(folder->second) / path;
    }
    db::PeerDatabase* database = path.empty() ? nullptr : peers.database(path, app.prompter());
    return db::newPeerSelection(path, database ? database->info() : db::DescriptiveHeader{},
                                app.settings());
}

} // namespace

// The transcript the Database menu acts on, without asking anything: the
// active transcript, or the one the active report was made from.
CTAVIDoc* CMainFrame::databaseTarget() const {
    if (CTAVIFrame* f = activeTranscriptFrame())
        return &f->doc();
    if (CReptFrame* r = activeReportFrame())
        return r->doc().source();
    return nullptr;
}

void CMainFrame::refreshDatabaseMenu() {
    QAction* select = action(CommandId::ID_DB_SELECT);
    if (!select)
        return;
    const CTAVIDoc* doc = databaseTarget();
    std::string text = kSelectText;
    if (doc && doc->peers().ready()) {
        const TranscriptPeers& peers = doc->peers();
        const CTAVIDoc* other = doc->linkedWith();
        if (other && other->peers().ready())
            text = format(kChangePairText, peers.selected(), peers.records(),
                          other->peers().selected(), other->peers().records());
        else
            text = format(kChangeText, peers.selected(), peers.records());
    }
    select->setText(QString::fromStdString(text));
}

// The transcript's analysis, once the person has agreed to go on past its
// errors; both main speakers are measured.
std::optional<TranscriptAnalysis> CMainFrame::checkedAnalysis(CTAVIDoc& doc, int speaker) {
    TranscriptAnalysis analysis = analyseForReport(app_, doc.lines(), speaker);
    if (!acceptErrors(*qobject_cast<CTAVIFrame*>(doc.parent()), analysis.check.problems))
        return std::nullopt;
    return analysis;
}

void CMainFrame::databaseSelect() {
    CTAVIDoc* doc = analysisTarget();
    if (!doc)
        return;
    std::optional<TranscriptAnalysis> analysis = checkedAnalysis(*doc, 0);
    if (!analysis)
        return;
    TranscriptPeers& peers = doc->peers();
    const AnalysisContext context = app_.analysisContext();
    const TranLines lines = doc->lines();
    const std::string name = doc->title().toStdString();
    std::array<db::PeerTarget, 2> targets;
    for (int speaker = 0; speaker < 2; ++speaker) {
        analysis->speaker = speaker;
        targets[speaker] = db::peerTarget(name, lines, *analysis, context);
    }
    const db::PeerSelection initial =
        peers.selection ? *peers.selection : firstSelection(app_, peers);
    CDBPSetDialog dialog(app_, peers, initial, targets, mainSpeakerLabels(*analysis), doc->title(),
                         this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    peers.selection = dialog.selection();
    compareWithDatabase(*doc, *analysis);
}

// Compares the analysed transcript with the samples its selection matches,
// keeping the outcome for the menu; the database stays open, so values of
// samples already calculated under the same settings are reused.
const db::PeerSnapshot* CMainFrame::compareWithDatabase(CTAVIDoc& doc,
                                                        TranscriptAnalysis& analysis) {
    TranscriptPeers& peers = doc.peers();
    peers.snapshot.reset();
    if (peers.selection) {
        db::PeerSelection& selection = *peers.selection;
        if (selection.speaker == 1 && !analysis.check.speakers.hasSecondSpeaker()) {
            app_.prompter().inform(speakerResetMessage());
            selection.speaker = 0;
        }
        analysis.speaker = selection.speaker;
        const AnalysisContext context = app_.analysisContext();
        const db::PeerTarget target =
            db::peerTarget(doc.title().toStdString(), doc.lines(), analysis, context);
        if (db::PeerDatabase* database = peers.database(selection.database, app_.prompter())) {
            QtProgress progress(this);
            peers.snapshot = db::comparePeers(*database, selection, target, context, {},
                                              app_.prompter(), progress);
        }
    }
    updateCommands();
    return peers.snapshot ? &*peers.snapshot : nullptr;
}

// A report against the database, compared again with the transcript as it
// stands now.
void CMainFrame::databaseReport(std::string_view kind) {
    CTAVIDoc* doc = analysisTarget();
    if (!doc || !doc->peers().selection)
        return;
    std::optional<TranscriptAnalysis> analysis =
        checkedAnalysis(*doc, doc->peers().selection->speaker);
    if (!analysis)
        return;
    const db::PeerSnapshot* peers = compareWithDatabase(*doc, *analysis);
    if (!peers)
        return;
    ReportSource source = reportSource(*doc);
    source.peers = peers;
    source.peerDatabase = doc->peers().database(doc->peers().selection->database, app_.prompter());
    if (const ReportDefinition* definition = findReport(kind);
        definition && !chooseReportOptions(*definition, *analysis, source.choices, this))
        return;
    showReport(makeReport(app_, kind, *analysis, source), doc);
}

} // namespace tavi::app
