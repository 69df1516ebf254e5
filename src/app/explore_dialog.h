// The explore criteria dialog: the speaker, the utterances searched, the
// utterance types, the length, the words and codes (typed, or loaded from and
// saved to a word list file), where words are looked for and how the criteria
// join. The Explore menu keeps its criteria in the "YOL" settings, the
// Explore Multiple Transcripts commands in "EMULT".
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <array>
#include <functional>

#include "explore/explore_criteria.h"

namespace tavi::app {

class CExploreDialog final : public QDialog {
    Q_OBJECT
public:
    // `listFolder` is where word list files are looked for first.
    CExploreDialog(const ExploreCriteria& criteria, const QString& title, const QString& listFolder,
                   QWidget* parent = nullptr);

    ExploreCriteria criteria() const;
    // Shows a "Save as Default" button that hands the criteria to `save`.
    void offerSavingDefaults(std::function<void(const ExploreCriteria&)> save);
    // Sets the fields from criteria (also used by the tests).
    void setCriteria(const ExploreCriteria& criteria);

private:
    void loadList();
    void saveList();

    QString listFolder_;
    QComboBox* speaker_;
    QComboBox* utterances_;
    std::array<QCheckBox*, kExploreTypes> types_{};
    QCheckBox* mazeFilled_;
    QCheckBox* mazeRepetition_;
    QCheckBox* mazeRevision_;
    QSpinBox* lengthFrom_;
    QSpinBox* lengthTo_;
    QComboBox* lengthUnit_;
    QPlainTextEdit* items_;
    QComboBox* area_;
    QComboBox* roots_;
    QComboBox* codes_;
    QRadioButton* any_;
    QRadioButton* all_;
    QCheckBox* negate_;
    QPushButton* saveDefault_;
    std::function<void(const ExploreCriteria&)> save_;
};

} // namespace tavi::app
