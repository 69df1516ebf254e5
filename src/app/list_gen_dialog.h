// Tools > "Generate &Word List", "Generate Bound &Morpheme List" and
// "Generate &Code List": the transcripts, what is read (speaker, utterances,
// where words stand, codes chosen), the columns and the order, and where
// the list goes (a word list file, a table, the current code list).
#pragma once

#include <QDialog>

#include "batch/list_generation.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tavi::app {

class CTranscriptPicker;

class CListGenDialog final : public QDialog {
    Q_OBJECT
public:
    enum Output { WordListFile = 0, Table = 1, CurrentCodeList = 2 };

    CListGenDialog(ListKind kind, const ListOptions& options, const QString& folder,
                   QWidget* parent = nullptr);

    ListKind kind() const { return kind_; }
    ListOptions options() const;
    int speaker() const; // 0 the 1st main speaker, 1 the 2nd
    Output output() const;
    CTranscriptPicker& picker() { return *picker_; }

Q_SIGNALS:
    // "Save as &Default" was pressed with these options.
    void saveDefaultsWanted(const ListOptions& options);

private:
    ListKind kind_;
    CTranscriptPicker* picker_;
    QComboBox* speaker_;
    QComboBox* utterances_;
    QComboBox* area_;
    QLineEdit* include_;
    QLineEdit* exclude_;
    QCheckBox* total_;
    QCheckBox* transcripts_;
    QCheckBox* percent_;
    QCheckBox* byCount_;
    QComboBox* output_;
};

// The dialog's title for a kind: "Generate Word List", ...
QString listGenTitle(ListKind kind);

} // namespace tavi::app
