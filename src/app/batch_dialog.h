// Tools > "&Rectangular Data File": the batch selections (variable groups and
// their variables from the catalogue, speaker, missing values), the file
// format and the data file, the transcripts of a folder; selection files
// (".SBT") loaded and saved, the selections saved as the batch defaults, and
// the run with its progress and Cancel.
#pragma once

#include <QDialog>
#include <filesystem>
#include <optional>

#include "batch/batch_run.h"
#include "batch/batch_selections.h"
#include "reports/grid_writer.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace tavi::app {

class CTAVIApp;
class CTranscriptPicker;

class CBatchDialog final : public QDialog {
    Q_OBJECT
public:
    CBatchDialog(CTAVIApp& app, QWidget* parent = nullptr);

    // The selections as the dialog's fields stand.
    BatchSelections selections() const;
    void setSelections(const BatchSelections& selections);
    // Reads or writes a selection file with the core's messages; the buttons
    // ask for the file name first.
    bool loadSelections(const QString& path);
    bool saveSelections(const QString& path);
    // Saves the selections as the program default (the "BATCH" settings).
    void saveDefaults();
    // Shows the variables of group `group` (catalogue order).
    void showGroup(int group);

    CTranscriptPicker& picker() { return *picker_; }
    void setOutput(const QString& path);
    GridFormat format() const;
    // Runs the batch over the checked transcripts and writes the data and key
    // files; the result stays for the grid report. False when nothing ran.
    bool runBatch();
    const std::optional<BatchResult>& result() const { return result_; }

private:
    void variableChanged(QListWidgetItem* item);

    CTAVIApp& app_;
    BatchSelections selections_;
    std::optional<std::filesystem::path> selectionFile_;
    QListWidget* groups_;
    QListWidget* variables_;
    QComboBox* speaker_;
    QLineEdit* missing_[3];
    QComboBox* format_;
    QLineEdit* output_;
    CTranscriptPicker* picker_;
    std::optional<BatchResult> result_;
    bool filling_ = false;
};

} // namespace tavi::app
