// The transcript document: the text of one ".tvi" file, its name, its
// automatic backups and its link to a second transcript.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextDocument>

#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;

class CTAVIDoc final : public QObject {
    Q_OBJECT
public:
    // A new, untitled document named from the template ("Tran1", "Tran2", ...).
    CTAVIDoc(CTAVIApp& app, int untitledNumber, QObject* parent = nullptr);

    CTAVIApp& app() const { return app_; }
    QTextDocument* document() { return &text_; }
    QString path() const { return path_; }
    // The file name, or the new-file name while the document has no file.
    QString title() const;
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

    CTAVIDoc* linkedWith() const { return linked_; }
    void setLinkedWith(CTAVIDoc* other);

Q_SIGNALS:
    void titleChanged();
    void backupFailed(const QString& backupPath);

private:
    void countEdit(int position, int removed, int added);
    bool writeTo(const QString& path, QString& error) const;

    CTAVIApp& app_;
    QTextDocument text_;
    QString path_;
    int untitledNumber_;
    int edits_ = 0;
    bool loading_ = false;
    QPointer<CTAVIDoc> linked_;
};

} // namespace tavi::app
