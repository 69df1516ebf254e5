// The dialog of File > New: the two speakers, the header values and the
// starting time; the transcript core composes the first lines from them.
// Field names, the gender and context choices and the header keywords come
// from the label table; the date fields show the date format in force and
// the age is worked out from the two dates.
#pragma once

#include <QDialog>
#include <QString>
#include <utility>
#include <vector>

#include "reports/labels.h"
#include "transcript/date_format.h"
#include "transcript/new_transcript.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace tavi::app {

class CNewTranscriptDialog final : public QDialog {
    Q_OBJECT
public:
    CNewTranscriptDialog(const LabelSource& labels, const DateFormat& dates,
                         QWidget* parent = nullptr);
    NewTranscriptValues values() const;
    // The words written into the transcript, from the label table.
    const NewTranscriptLabels& labels() const { return written_; }
    // Fills a field by its header keyword (or "TSPEAKER", "OSPEAKER", "INITTIME").
    void setField(const QString& key, const QString& value);

private:
    void updateAge();

    DateFormat dates_;
    NewTranscriptLabels written_;
    QComboBox* target_;
    QComboBox* other_;
    QLineEdit* start_;
    QLineEdit* dob_ = nullptr;
    QLineEdit* doe_ = nullptr;
    QLineEdit* ca_ = nullptr;
    QLabel* ageNote_;
    QString workedOutAge_; // the age last filled in, replaced while the dates change
    std::vector<std::pair<std::string NewTranscriptValues::*, QWidget*>> fields_;
};

} // namespace tavi::app
