// The Analyze menu's single-transcript reports.
#include <QInputDialog>

#include "app/main_frame.h"
#include "app/report_runner.h"
#include "app/rept_doc.h"
#include "app/rept_frame.h"
#include "app/smr_variables_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"

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

void CMainFrame::analyzeStandardMeasures() {
    CTAVIDoc* doc = nullptr;
    std::optional<TranscriptAnalysis> analysis = reportAnalysis(doc);
    if (!analysis)
        return;
    CSmrVariablesDialog dialog(app_.smrVariables, app_.reportSpeaker, mainSpeakerLabels(*analysis),
                               app_.labelSource(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    app_.smrVariables = dialog.variables();
    app_.reportSpeaker = dialog.speaker();
    analysis->speaker = app_.reportSpeaker;
    showReport(
        makeReport(app_, ReportKind::StandardMeasures, *analysis, doc->title().toStdString()), doc);
}

void CMainFrame::analyzeUtteranceTypes() {
    CTAVIDoc* doc = nullptr;
    std::optional<TranscriptAnalysis> analysis = reportAnalysis(doc);
    if (!analysis)
        return;
    const auto speakers = mainSpeakerLabels(*analysis);
    QStringList choices = {QString::fromStdString("1st speaker (" + speakers.first + ")")};
    if (!speakers.second.empty())
        choices << QString::fromStdString("2nd speaker (" + speakers.second + ")");
    bool ok = false;
    const QString chosen =
        QInputDialog::getItem(this, QStringLiteral("Summary of Utterance Types"),
                              QStringLiteral("Speaker:"), choices, app_.reportSpeaker, false, &ok);
    if (!ok)
        return;
    app_.reportSpeaker = static_cast<int>(choices.indexOf(chosen));
    analysis->speaker = app_.reportSpeaker;
    showReport(makeReport(app_, ReportKind::UtteranceTypes, *analysis, doc->title().toStdString()),
               doc);
}

} // namespace tavi::app
