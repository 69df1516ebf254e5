// The Analyze menu's single-transcript reports.
#include <QInputDialog>
#include <algorithm>

#include "app/help_window.h"
#include "app/main_frame.h"
#include "app/report_options_dialog.h"
#include "app/report_runner.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/smr_variables_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/transcript_peers.h"
#include "reports/smr_settings.h"
#include "settings/section_save.h"

namespace tavi::app {

// The transcript an analysis reads: the active one, or the one the active
// report was made from. Null (after telling why) when there is none.
CTAVIDoc* CMainFrame::analysisTarget() {
    if (CTAVIFrame* f = activeTranscriptFrame())
        return &f->doc();
    CReptFrame* r = activeReportFrame();
    if (!r)
        return nullptr;
    if (CTAVIDoc* source = r->doc().source())
        return source;
    app_.prompter().inform("Transcript is no longer available");
    return nullptr;
}

// The analysis of the target transcript for a report, once: null when there
// is no target or the person declines to go on past its errors. Tells of a
// speaker reset.
std::optional<TranscriptAnalysis> CMainFrame::reportAnalysis(CTAVIDoc*& doc) {
    doc = analysisTarget();
    if (!doc)
        return std::nullopt;
    TranscriptAnalysis analysis = analyseForReport(app_, doc->lines(), app_.reportSpeaker);
    if (!acceptErrors(*qobject_cast<CTAVIFrame*>(doc->parent()), analysis.check.problems))
        return std::nullopt;
    if (analysis.speakerReset) {
        app_.prompter().inform(speakerResetMessage());
        app_.reportSpeaker = 0;
    }
    return analysis;
}

ReportSource CMainFrame::reportSource(CTAVIDoc& doc) const {
    ReportSource source;
    source.name = doc.title().toStdString();
    source.lines = doc.lines();
    source.choices.smrVariables = app_.smrVariables;
    return source;
}

void CMainFrame::analyzeStandardMeasures() {
    CTAVIDoc* doc = nullptr;
    std::optional<TranscriptAnalysis> analysis = reportAnalysis(doc);
    if (!analysis)
        return;
    CSmrVariablesDialog dialog(app_.smrVariables, app_.reportSpeaker, mainSpeakerLabels(*analysis),
                               app_.labelSource(), this);
    connect(&dialog, &CSmrVariablesDialog::helpRequested, this, [this, &dialog] {
        openHelpWindow(app_, QStringLiteral("docs/reading-the-smr.md"), &dialog);
    });
    connect(&dialog, &CSmrVariablesDialog::saveDefaultRequested, this, [this, &dialog] {
        Settings& settings = app_.settings();
        const std::vector<std::string> lines = smrVariablesLines(dialog.variables());
        if (saveSection({settings.userSettingsFile(),
                         "SMR",
                         lines,
                         kSaveReportSettingsQuestion,
                         kSettingsSavedIn,
                         settings.canSaveDefaults(),
                         {}},
                        app_.prompter()) == SaveOutcome::Saved) {
            app_.smrVariables = dialog.variables();
            settings.replaceSectionLines("SMR", lines);
        }
    });
    if (dialog.exec() != QDialog::Accepted)
        return;
    app_.smrVariables = dialog.variables();
    app_.reportSpeaker = dialog.speaker();
    analysis->speaker = app_.reportSpeaker;
    showReport(makeReport(app_, "smr", *analysis, reportSource(*doc)), doc);
}

// Any other report of the table: the speaker chosen (or the last one chosen,
// for a report that does not ask), then the report's own choices (its
// dialog, when it has one), then the report.
void CMainFrame::analyzeReport(std::string_view kind, bool askSpeaker) {
    const ReportDefinition* definition = findReport(kind);
    CTAVIDoc* doc = nullptr;
    std::optional<TranscriptAnalysis> analysis = reportAnalysis(doc);
    if (!definition || !analysis)
        return;
    if (askSpeaker && !chooseReportSpeaker(*definition, *analysis))
        return;
    ReportSource source = reportSource(*doc);
    if (!chooseReportOptions(*definition, *analysis, source.choices, this))
        return;
    showReport(makeReport(app_, kind, *analysis, source), doc);
}

bool CMainFrame::chooseReportSpeaker(const ReportDefinition& report, TranscriptAnalysis& analysis) {
    const auto speakers = mainSpeakerLabels(analysis);
    QStringList choices = {QString::fromStdString("1st speaker (" + speakers.first + ")")};
    if (!speakers.second.empty())
        choices << QString::fromStdString("2nd speaker (" + speakers.second + ")");
    const QString title =
        QString::fromUtf8(report.title.data(), static_cast<qsizetype>(report.title.size()));
    QInputDialog dialog(this);
    dialog.setWindowTitle(title);
    dialog.setLabelText(QStringLiteral("Speaker:"));
    dialog.setComboBoxItems(choices);
    dialog.setTextValue(choices.value(app_.reportSpeaker, choices.front()));
    // Wide enough for the whole title: window managers cut a long title short.
    dialog.setMinimumWidth(dialog.fontMetrics().horizontalAdvance(title) + 160);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    app_.reportSpeaker =
        static_cast<int>(std::max<qsizetype>(0, choices.indexOf(dialog.textValue())));
    analysis.speaker = app_.reportSpeaker;
    return true;
}

// Every report of the table whose menu command is working and has no
// handler of its own: the Analyze menu's open for the target transcript, the
// Database menu's against its comparison.
void CMainFrame::registerReportCommands() {
    for (const ReportDefinition& report : reportDefinitions()) {
        const std::optional<CommandId> id = commandByName(report.commandId);
        if (!id || commandStatus(*id) != CommandStatus::Working || commands_.has(*id))
            continue;
        const std::string_view kind = report.name;
        if (report.commandId.starts_with("ID_DB_"))
            on(
                *id, [this, kind] { databaseReport(kind); },
                [this] {
                    const CTAVIDoc* doc = databaseTarget();
                    return doc && doc->peers().ready();
                });
        else
            on(
                *id, [this, kind] { analyzeReport(kind); },
                [this] { return activeTranscriptFrame() || activeReportFrame(); });
    }
}

} // namespace tavi::app
