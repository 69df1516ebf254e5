// Reading, writing and backing up transcript files.
#include "app/tavi_doc.h"

#include <QDir>
#include <QFileInfo>
#include <QPlainTextDocumentLayout>

#include "app/doc_template.h"
#include "app/tavi_app.h"
#include "base/file_io.h"
#include "base/text.h"

namespace tavi::app {

CTAVIDoc::CTAVIDoc(CTAVIApp& app, int untitledNumber, QObject* parent)
    : QObject(parent), app_(app), untitledNumber_(untitledNumber) {
    text_.setDocumentLayout(new QPlainTextDocumentLayout(&text_));
    connect(&text_, &QTextDocument::contentsChange, this, &CTAVIDoc::countEdit);
}

QString CTAVIDoc::title() const {
    if (!path_.isEmpty())
        return QFileInfo(path_).fileName();
    return templateField(kTranscriptTemplate, TemplateField::NewFileName) +
           QString::number(untitledNumber_);
}

bool CTAVIDoc::load(const QString& path, QString& error) {
    std::string bytes;
    if (!readFile(path.toStdString(), bytes)) {
        error = QStringLiteral("Cannot open ") + path;
        return false;
    }
    const std::string utf8 = decodeText(bytes).utf8;
    std::string joined;
    for (std::string_view line : splitLines(utf8)) {
        joined += line;
        joined += '\n';
    }
    if (!utf8.empty() && utf8.back() != '\n' && utf8.back() != '\r')
        joined.pop_back(); // keep a missing final line end missing
    loading_ = true;
    text_.setPlainText(QString::fromStdString(joined));
    loading_ = false;
    text_.setModified(false);
    path_ = QFileInfo(path).absoluteFilePath();
    edits_ = 0;
    emit titleChanged();
    return true;
}

bool CTAVIDoc::writeTo(const QString& path, QString& error) const {
    std::string bytes(kUtf8Bom);
    bytes += utf8Text();
    if (writeFileAtomic(path.toStdString(), bytes) != WriteStatus::Ok) {
        error = QStringLiteral("Cannot write to ") + path;
        return false;
    }
    return true;
}

bool CTAVIDoc::save(const QString& path, QString& error) {
    if (!writeTo(path, error))
        return false;
    path_ = QFileInfo(path).absoluteFilePath();
    text_.setModified(false);
    edits_ = 0;
    emit titleChanged();
    return true;
}

void CTAVIDoc::setComposedText(const QString& text) {
    text_.setPlainText(text);
    text_.setModified(true);
}

std::string CTAVIDoc::utf8Text() const {
    return text_.toPlainText().toStdString();
}

TranLines CTAVIDoc::lines() const {
    TranLines result;
    const std::string text = utf8Text();
    int number = 0;
    for (std::string_view line : splitLines(text))
        result.push_back({std::string(line), ++number});
    return result;
}

QString CTAVIDoc::backupPath() const {
    QString name = QFileInfo(path_.isEmpty() ? title() : path_).fileName();
    const qsizetype dot = name.indexOf(QLatin1Char('.'));
    if (dot >= 0)
        name.truncate(dot);
    return QDir(app_.backupDir()).filePath(name + QStringLiteral(".$VI"));
}

void CTAVIDoc::setLinkedWith(CTAVIDoc* other) {
    linked_ = other;
    emit titleChanged();
}

// Every change of the text (a key press, a paste, one change of a program
// edit) counts one edit; past the backup interval a copy is written.
void CTAVIDoc::countEdit(int, int removed, int added) {
    if (loading_ || (removed == 0 && added == 0))
        return;
    if (app_.backupInterval <= 0 || !text_.isModified())
        return;
    if (++edits_ <= app_.backupInterval)
        return;
    edits_ = 0;
    QDir().mkpath(app_.backupDir());
    QString error;
    if (!writeTo(backupPath(), error))
        emit backupFailed(backupPath());
}

} // namespace tavi::app
