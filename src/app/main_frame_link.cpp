// The Link menu: pairing two open transcripts and parting them again.
#include <QInputDialog>

#include "app/main_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

void CMainFrame::linkTranscripts() {
    CTAVIFrame* active = activeTranscriptFrame();
    QStringList names;
    QList<CTAVIDoc*> others;
    for (CTAVIFrame* f : transcriptFrames())
        if (f != active) {
            names << f->doc().title();
            others << &f->doc();
        }
    bool ok = false;
    const QString chosen = QInputDialog::getItem(this, QStringLiteral("Link Transcripts"),
                                                 QStringLiteral("Link ") + active->doc().title() +
                                                     QStringLiteral(" with:"),
                                                 names, 0, false, &ok);
    if (!ok)
        return;
    CTAVIDoc* other = others[names.indexOf(chosen)];
    for (CTAVIDoc* d : {&active->doc(), other})
        if (CTAVIDoc* old = d->linkedWith())
            old->setLinkedWith(nullptr);
    active->doc().setLinkedWith(other);
    other->setLinkedWith(&active->doc());
    updateCommands();
}

void CMainFrame::unlinkTranscripts() {
    CTAVIDoc& doc = activeTranscriptFrame()->doc();
    CTAVIDoc* other = doc.linkedWith();
    const std::string a = doc.title().toStdString();
    const std::string b = other->title().toStdString();
    if (app_.prompter().ask(unlinkQuestion(a, b)) != Answer::Yes)
        return;
    doc.setLinkedWith(nullptr);
    other->setLinkedWith(nullptr);
    app_.prompter().inform(unlinkedMessage(a, b));
    updateCommands();
}

} // namespace tavi::app
