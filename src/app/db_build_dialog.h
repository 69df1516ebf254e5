// Tools > "&Build Reference Database": the database builder as a dialog. The
// database file (new or existing), its sampling context, description,
// password and code lists, the target speaker, the match-enforcement
// switches, the transcripts of a folder and de-identification; "Add" runs the
// same builder as `tavi db add`, with the progress bar and its messages, and
// the list shows the database's records.
#pragma once

#include <QDialog>
#include <array>

#include "database/db_builder.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace tavi::app {

class CTAVIApp;
class CTranscriptPicker;

class CDBBuildDialog final : public QDialog {
    Q_OBJECT
public:
    CDBBuildDialog(CTAVIApp& app, QWidget* parent = nullptr);

    // Chooses the database file: an existing one fills the fields from its
    // header and lists its records; a new one is created by the first "Add".
    void setDatabase(const QString& path);
    CTranscriptPicker& picker() { return *picker_; }
    // Adds the checked transcripts (the "Add Transcripts" button); false when
    // nothing could be added.
    bool addTranscripts();
    // Removes the chosen record after asking (the "Remove" button).
    bool removeChosenRecord();
    // The summary of the last build.
    const db::BuildResult& lastResult() const { return last_; }

    // Closing (Close, Escape) writes a changed header first; an empty
    // sampling context keeps the dialog open ("Missing sampling context").
    void accept() override;
    void reject() override { accept(); }

private:
    db::DescriptiveHeader headerFromFields(db::DescriptiveHeader info) const;
    db::BuildOptions optionsFromFields() const;
    void fillFields(const db::DescriptiveHeader& info);
    void listRecords(db::Database& database);

    CTAVIApp& app_;
    QLineEdit* database_;
    QLineEdit* context_;
    QPlainTextEdit* description_;
    QLineEdit* password_;
    std::array<QLineEdit*, 4> codeLists_;
    QComboBox* speaker_;
    std::array<QCheckBox*, db::kEnforcedFields> enforce_;
    std::array<QLineEdit*, db::kEnforcedFields> values_; // [EnforceContext] is null
    CTranscriptPicker* picker_;
    QCheckBox* deidentify_;
    QListWidget* records_;
    db::DescriptiveHeader loaded_; // the header as read, or the defaults of a new file
    bool exists_ = false;
    db::BuildResult last_;
};

} // namespace tavi::app
