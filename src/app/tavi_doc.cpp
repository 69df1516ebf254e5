// Reading, writing and backing up transcript files.
#include "app/tavi_doc.h"

#include <QDir>
#include <QFileInfo>
#include <QPlainTextDocumentLayout>

#include "app/core_bridge.h"
#include "app/doc_template.h"
#include "app/tavi_app.h"
#include "app/transcript_peers.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

CTAVIDoc::CTAVIDoc(CTAVIApp& app, int untitledNumber, QObject* parent)
    : QObject(parent), app_(app), untitledNumber_(untitledNumber),
      peers_(std::make_unique<TranscriptPeers>()) {
    text_.setDocumentLayout(new QPlainTextDocumentLayout(&text_));
    connect(&text_, &QTextDocument::contentsChange, this, &CTAVIDoc::countEdit);
    checkTimer_.setSingleShot(true);
    checkTimer_.setInterval(kCheckDelayMs);
    connect(&text_, &QTextDocument::contentsChanged, &checkTimer_, qOverload<>(&QTimer::start));
    connect(&checkTimer_, &QTimer::timeout, this, &CTAVIDoc::checkNow);
}

CTAVIDoc::~CTAVIDoc() = default;

QString CTAVIDoc::title() const {
    if (!path_.isEmpty())
        return QFileInfo(path_).fileName();
    if (!suggestedName_.isEmpty())
        return suggestedName_;
    return templateField(kTranscriptTemplate, TemplateField::DocName) +
           QString::number(untitledNumber_);
}

void CTAVIDoc::setSuggestedName(const QString& name) {
    suggestedName_ = name;
    Q_EMIT titleChanged();
}

bool CTAVIDoc::load(const QString& path, QString& error) {
    const LoadedTranscript loaded =
        loadTranscript(path.toStdString(), app_.settings().language.textEncoding);
    if (!loaded.ok) {
        error = QStringLiteral("Cannot open ") + path;
        return false;
    }
    // A PDF, a word-processor file or any other binary file would show as
    // garbage and be checked line by line: say what it is instead.
    const std::string_view head = std::string_view(loaded.text).substr(0, 8192);
    if (head.starts_with("%PDF-") || head.find('\0') != std::string_view::npos) {
        error =
            QStringLiteral("Cannot open %1: it is not a transcript but a %2 file.")
                .arg(QFileInfo(path).fileName(),
                     head.starts_with("%PDF-") ? QStringLiteral("PDF") : QStringLiteral("binary"));
        return false;
    }
    std::string joined;
    for (const tranLine& line : loaded.lines) {
        joined += line.text;
        joined += '\n';
    }
    const std::string& raw = loaded.text;
    if (!joined.empty() && !raw.empty() && raw.back() != '\n' && raw.back() != '\r')
        joined.pop_back(); // keep a missing final line end missing
    loading_ = true;
    text_.setPlainText(QString::fromStdString(joined));
    loading_ = false;
    text_.setModified(false);
    path_ = QFileInfo(path).absoluteFilePath();
    edits_ = 0;
    Q_EMIT titleChanged();
    return true;
}

bool CTAVIDoc::writeTo(const QString& path, QString& error) const {
    if (saveTranscript(path.toStdString(), utf8Text()) != WriteStatus::Ok) {
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
    Q_EMIT titleChanged();
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
    return splitTranscriptLines(utf8Text());
}

QString CTAVIDoc::backupPath() const {
    const std::string document = (path_.isEmpty() ? title() : path_).toStdString();
    return QString::fromStdString(
        tavi::backupPath(document, app_.backupDir().toStdString()).string());
}

void CTAVIDoc::setLinkedWith(CTAVIDoc* other) {
    linked_ = other;
    Q_EMIT titleChanged();
}

// Every change of the text (a key press, a paste, one change of a program
// edit) counts one edit; past the backup interval a copy is written.
void CTAVIDoc::countEdit(int, int removed, int added) {
    if (loading_ || (removed == 0 && added == 0))
        return;
    if (app_.settings().backupInterval <= 0)
        return;
    if (++edits_ <= app_.settings().backupInterval)
        return;
    edits_ = 0;
    QDir().mkpath(app_.backupDir());
    QString error;
    if (!writeTo(backupPath(), error))
        Q_EMIT backupFailed(backupPath());
}

void CTAVIDoc::checkNow() {
    checkTimer_.stop();
    if (!checkerAvailable())
        return;
    problems_ = checkTranscript(app_, lines());
    Q_EMIT problemsChanged();
}

void CTAVIDoc::setProblems(std::vector<err> problems) {
    checkTimer_.stop();
    problems_ = std::move(problems);
    Q_EMIT problemsChanged();
}

QString CTAVIDoc::problemText(int line) const {
    QStringList rows;
    for (const err& e : problems_)
        if (e.line == line)
            rows << QString::fromStdString(e.message);
    return rows.join(QLatin1Char('\n'));
}

} // namespace tavi::app
