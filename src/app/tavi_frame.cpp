// Caption and closing of a transcript window.
#include "app/tavi_frame.h"

#include <QCloseEvent>

#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_view.h"
#include "base/format.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

CTAVIFrame::CTAVIFrame(CTAVIDoc* doc, std::function<bool(CTAVIFrame&)> save, QWidget* parent)
    : QMdiSubWindow(parent), doc_(doc), view_(new CTAVIView(*doc)), save_(std::move(save)) {
    doc_->setParent(this);
    setWidget(view_);
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("CTAVIFrame"));
    connect(doc_, &CTAVIDoc::titleChanged, this, &CTAVIFrame::updateCaption);
    connect(doc_->document(), &QTextDocument::modificationChanged, this,
            &CTAVIFrame::updateCaption);
    updateCaption();
}

void CTAVIFrame::updateCaption() {
    QString caption = doc_->title();
    if (CTAVIDoc* other = doc_->linkedWith())
        caption = QString::fromStdString(
            linkedCaption(caption.toStdString(), other->title().toStdString()));
    setWindowTitle(caption + QStringLiteral("[*]"));
    setWindowModified(doc_->isModified());
}

bool CTAVIFrame::queryClose() {
    if (!doc_->isModified())
        return true;
    const std::string question =
        tavi::format("Save changes to %s?", doc_->title().toStdString().c_str());
    switch (doc_->app().prompter().ask(question)) {
    case Answer::Yes:
        return save_(*this);
    case Answer::No:
        return true;
    case Answer::Cancel:
        break;
    }
    return false;
}

void CTAVIFrame::closeEvent(QCloseEvent* e) {
    if (!queryClose()) {
        e->ignore();
        return;
    }
    if (CTAVIDoc* other = doc_->linkedWith())
        other->setLinkedWith(nullptr);
    e->accept();
}

} // namespace tavi::app
