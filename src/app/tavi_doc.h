// The transcript document: the text of one ".tvi" file, its name, its
// automatic backups, its link to a second transcript, and the checker's
// problems, found again a moment after typing stops.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextDocument>
#include <QTimer>
#include <memory>
#include <vector>

#include "transcript/err.h"

#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;
class TranscriptPeers;

class CTAVIDoc final : public QObject {
    Q_OBJECT
public:
    // How long after the last change the checker runs again.
    static constexpr int kCheckDelayMs = 800;

    // A new, untitled document named from the template ("Tran1", "Tran2", ...).
    CTAVIDoc(CTAVIApp& app, int untitledNumber, QObject* parent = nullptr);
    ~CTAVIDoc() override;

    CTAVIApp& app() const { return app_; }
    QTextDocument* document() { return &text_; }
    QString path() const { return path_; }
    // The file name; while the document has no file, the name it was given
    // (an imported transcript's "name.tvi"), else the new-file name.
    QString title() const;
    // Names a document that has no file yet, e.g. after an import.
    void setSuggestedName(const QString& name);
    bool isModified() const { return text_.isModified(); }

    // Reads a transcript file (UTF-8 with or without the byte order mark,
    // else Windows-1252); false with `error` set when it cannot be read.
    bool load(const QString& path, QString& error);
    // Writes the byte order mark and the text as UTF-8 and takes the name.
    bool save(const QString& path, QString& error);
    // Places a composed text in the document and marks it as modified.
    void setComposedText(const QString& text);

    std::string utf8Text() const;
    TranLines lines() const;

    // The automatic backup copy's path: the file name up to its first ".",
    // in the backup folder, with ".$VI".
    QString backupPath() const;
    int editsSinceBackup() const { return edits_; }

    // The transcript's database selection and its last comparison.
    TranscriptPeers& peers() { return *peers_; }
    const TranscriptPeers& peers() const { return *peers_; }

    CTAVIDoc* linkedWith() const { return linked_; }
    void setLinkedWith(CTAVIDoc* other);

    // The checker's problems from its last run, in line order.
    const std::vector<err>& problems() const { return problems_; }
    // The messages of the problems on a 1-based line, one per row.
    QString problemText(int line) const;
    // Runs the checker now instead of waiting for the pause in typing.
    void checkNow();
    // Takes problems found by an analysis of the current text, so the lines
    // are marked without checking again.
    void setProblems(std::vector<err> problems);

Q_SIGNALS:
    void titleChanged();
    void problemsChanged();
    void backupFailed(const QString& backupPath);

private:
    void countEdit(int position, int removed, int added);
    bool writeTo(const QString& path, QString& error) const;

    CTAVIApp& app_;
    QTextDocument text_;
    QString path_;
    QString suggestedName_;
    int untitledNumber_;
    int edits_ = 0;
    bool loading_ = false;
    QPointer<CTAVIDoc> linked_;
    QTimer checkTimer_;
    std::vector<err> problems_;
    std::unique_ptr<TranscriptPeers> peers_;
};

} // namespace tavi::app
