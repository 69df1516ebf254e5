// "Select Database Samples for <transcript>": the selection record of a
// transcript's database comparison (database file, target speaker, age span
// or explicit range, grade, gender, subgroup, ethnicity, location, "+Select",
// sample-length equating, transcript cut, SD interval). The lists are filled
// from the database, the equating options say why one cannot be used, and
// the criteria line and the number of matching samples follow every change.
// OK checks the selection with the core's checks and keeps the dialog open on
// the first failure.
#pragma once

#include <QDialog>
#include <array>
#include <string>
#include <utility>

#include "database/peer_selection.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace tavi::app {

class CTAVIApp;
class TranscriptPeers;

class CDBPSetDialog final : public QDialog {
    Q_OBJECT
public:
    // `targets` holds the transcript's 1st and 2nd speaker as matching sees
    // them; `speakerLabels` their labels. The database is opened through
    // `peers`, which keeps it for the comparison that follows.
    CDBPSetDialog(CTAVIApp& app, TranscriptPeers& peers, const db::PeerSelection& initial,
                  const std::array<db::PeerTarget, 2>& targets,
                  const std::pair<std::string, std::string>& speakerLabels,
                  const QString& transcriptTitle, QWidget* parent = nullptr);

    // The selection as the fields hold it now.
    db::PeerSelection selection() const;
    // Takes a database file as if it had been browsed to: fills the lists.
    void setDatabase(const QString& path);

    // OK: the selection's checks; the dialog stays open on a failure.
    void accept() override;

private:
    void showSelection(const db::PeerSelection& selection);
    void fillLists(const db::PeerSelection& wanted, bool tellProblems);
    void browse();
    void refresh();
    const db::PeerTarget& target() const;

    CTAVIApp& app_;
    TranscriptPeers& peers_;
    std::array<db::PeerTarget, 2> targets_;
    std::string setName_;
    db::PeerDatabase* database_ = nullptr;
    bool updating_ = false;

    QLineEdit* databasePath_;
    QLabel* databaseLine_;
    QButtonGroup* speaker_;
    QButtonGroup* age_;
    QLineEdit* ageSpan_;
    QLineEdit* ageFrom_;
    QLineEdit* ageTo_;
    QCheckBox* useGrade_;
    QLineEdit* grade_;
    QCheckBox* useGender_;
    QLineEdit* gender_;
    QLabel* genderWarning_;
    QComboBox* subgroup_;
    QComboBox* ethnicity_;
    QComboBox* location_;
    QComboBox* select_;
    QButtonGroup* equating_;
    QCheckBox* applyCut_;
    QLineEdit* sdInterval_;
    QLabel* criteria_;
    QLabel* matchCount_;
};

} // namespace tavi::app
