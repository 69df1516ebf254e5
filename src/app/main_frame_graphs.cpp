// Help > Normative Graphs: the active transcript's value of a measure among
// its database samples by age, drawn from the database chosen for it.
#include <QInputDialog>

#include "app/main_frame.h"
#include "app/normative_graph_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/transcript_peers.h"
#include "batch/normative_graph_data.h"
#include "reports/standard_measures_report.h"
#include "reports/transcript_report.h"

namespace tavi::app {

void CMainFrame::showNormativeGraph() {
    CTAVIDoc* doc = databaseTarget();
    if (!doc || !doc->peers().selection) {
        app_.prompter().inform("Normative graphs compare a transcript with its database "
                               "samples: open a transcript and choose them with Database > "
                               "Select Database Samples and Settings first.");
        return;
    }
    // The measures of the Standard Measures Report that carry numbers.
    const LabelSource labels = labelSource(app_.settings().labels, LanguageSlot::Primary);
    QStringList names;
    std::vector<std::pair<MeasureId, std::string>> measures;
    for (const SmrLineDef& line : smrLines()) {
        std::optional<MeasureId> id = measureIdByName(line.measureId);
        if (!id || measureFormat(*id) == MeasureFormat::Text)
            continue;
        std::string label = labels(line.labelKey);
        if (!line.suffixKey.empty())
            label += " " + labels(line.suffixKey);
        measures.emplace_back(*id, label);
        names << QString::fromStdString(label + " (" + std::string(line.measureId) + ")");
    }
    bool ok = false;
    const QString chosen = QInputDialog::getItem(this, "Normative Graphs", "Measure:", names,
                                                 names.indexOf("MLU in Words (MLUw)"), false, &ok);
    if (!ok)
        return;
    const auto& [id, label] = measures[static_cast<std::size_t>(names.indexOf(chosen))];
    std::optional<TranscriptAnalysis> analysis =
        checkedAnalysis(*doc, doc->peers().selection->speaker);
    if (!analysis)
        return;
    const db::PeerSnapshot* peers = compareWithDatabase(*doc, *analysis);
    db::PeerDatabase* database =
        doc->peers().database(doc->peers().selection->database, app_.prompter());
    if (!peers || !database)
        return;
    const std::string name = doc->title().toStdString();
    const db::PeerTarget target =
        db::peerTarget(name, doc->lines(), *analysis, app_.analysisContext());
    NormativeGraphDialog dialog(normativeGraph(*database, *peers, id, label, name, target.ageMonths,
                                               analysis->measures()[id].number()),
                                this);
    dialog.exec();
}

} // namespace tavi::app
