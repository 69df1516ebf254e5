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
namespace {

constexpr const char* kNoSecondSpeaker =
    "Current transcript does not have a 2nd speaker. Speaker setting has been reset.";

} // namespace

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

void CMainFrame::analyzeStandardMeasures() {
    CTAVIDoc* doc = analysisTarget();
    if (!doc || !acceptErrors(*qobject_cast<CTAVIFrame*>(doc->parent())))
        return;
    const TranLines lines = doc->lines();
    const auto speakers = mainSpeakerLabels(lines);
    if (app_.reportSpeaker == 1 && speakers.second.empty()) {
        app_.prompter().inform(kNoSecondSpeaker);
        app_.reportSpeaker = 0;
    }
    CSmrVariablesDialog dialog(app_.smrVariables, app_.reportSpeaker, speakers, app_.labelSource(),
                               this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    app_.smrVariables = dialog.variables();
    app_.reportSpeaker = dialog.speaker();
    showReport(makeReport(app_, ReportKind::StandardMeasures, lines, doc->title().toStdString(),
                          app_.reportSpeaker),
               doc);
}

void CMainFrame::analyzeUtteranceTypes() {
    CTAVIDoc* doc = analysisTarget();
    if (!doc || !acceptErrors(*qobject_cast<CTAVIFrame*>(doc->parent())))
        return;
    const TranLines lines = doc->lines();
    const auto speakers = mainSpeakerLabels(lines);
    if (app_.reportSpeaker == 1 && speakers.second.empty()) {
        app_.prompter().inform(kNoSecondSpeaker);
        app_.reportSpeaker = 0;
    }
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
    showReport(makeReport(app_, ReportKind::UtteranceTypes, lines, doc->title().toStdString(),
                          app_.reportSpeaker),
               doc);
}

} // namespace tavi::app
