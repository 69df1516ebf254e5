// Caption, loading, saving and closing of a transcript window.
#include "app/tavi_frame.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPrinter>

#include "app/doc_template.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_view.h"
#include "base/format.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

CTAVIFrame::CTAVIFrame(CTAVIDoc* doc, QWidget* parent)
    : CChildFrame(parent), doc_(doc), view_(new CTAVIView(*doc)) {
    doc_->setParent(this);
    setWidget(view_);
    setObjectName(QStringLiteral("CTAVIFrame"));
    connect(doc_, &CTAVIDoc::titleChanged, this, &CTAVIFrame::updateCaption);
    connect(doc_->document(), &QTextDocument::modificationChanged, this,
            &CTAVIFrame::updateCaption);
    connect(doc_->document(), &QTextDocument::undoAvailable, this, &CChildFrame::commandsChanged);
    connect(doc_->document(), &QTextDocument::redoAvailable, this, &CChildFrame::commandsChanged);
    connect(doc_, &CTAVIDoc::backupFailed, this, [this](const QString& path) {
        doc_->app().prompter().inform(backupFailedMessage(path.toStdString()));
    });
    connect(view_, &CTAVIView::contextMenuWanted, this, &CChildFrame::contextMenuWanted);
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

bool CTAVIFrame::load(const QString& path, QString& error) {
    if (!doc_->load(path, error))
        return false;
    doc_->app().addRecentFile(doc_->path());
    view_->moveCursor(QTextCursor::Start);
    doc_->checkNow();
    return true;
}

bool CTAVIFrame::save(bool askName) {
    CTAVIApp& app = doc_->app();
    QString path = doc_->path();
    if (askName || path.isEmpty()) {
        const QString filter =
            QString::fromLatin1(kTranscriptFilter) + QStringLiteral(";;All Files (*)");
        const QString ext = templateField(kTranscriptTemplate, TemplateField::FilterExt);
        QString name = doc_->title();
        if (!name.endsWith(ext, Qt::CaseInsensitive))
            name += ext;
        const QString suggested =
            path.isEmpty() ? app.transcriptDir() + QLatin1Char('/') + name : path;
        path = QFileDialog::getSaveFileName(window(), QStringLiteral("Save As"), suggested, filter);
        if (path.isEmpty())
            return false;
        if (QFileInfo(path).suffix().isEmpty())
            path += templateField(kTranscriptTemplate, TemplateField::FilterExt);
    }
    QString error;
    if (!doc_->save(path, error)) {
        app.prompter().inform(error.toStdString());
        return false;
    }
    app.addRecentFile(path);
    return true;
}

void CTAVIFrame::print(QPrinter* printer) {
    view_->print(printer);
}

void CTAVIFrame::copy() {
    view_->copy();
}

void CTAVIFrame::selectAll() {
    view_->selectAll();
}

std::span<const MenuEntry> CTAVIFrame::contextTable() const {
    return transcriptContextTable();
}

bool CTAVIFrame::maybeSave() {
    if (!doc_->isModified())
        return true;
    const std::string question =
        tavi::format("Save changes to %s?", doc_->title().toStdString().c_str());
    switch (doc_->app().prompter().ask(question)) {
    case Answer::Yes:
        return save(false);
    case Answer::No:
        return true;
    case Answer::Cancel:
        break;
    }
    return false;
}

void CTAVIFrame::closing() {
    if (CTAVIDoc* other = doc_->linkedWith())
        other->setLinkedWith(nullptr);
}

} // namespace tavi::app
