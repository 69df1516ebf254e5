// The dialog of File > New: the two speakers, the header values and the
// starting time; the transcript core composes the first lines from them.
#pragma once

#include <QDialog>
#include <QString>
#include <utility>
#include <vector>

#include "transcript/new_transcript.h"

class QComboBox;
class QLineEdit;

namespace tavi::app {

class CNewTranscriptDialog final : public QDialog {
    Q_OBJECT
public:
    explicit CNewTranscriptDialog(QWidget* parent = nullptr);
    NewTranscriptValues values() const;
    // Fills a field by its header keyword (or "TSPEAKER", "OSPEAKER", "INITTIME").
    void setField(const QString& key, const QString& value);

private:
    QComboBox* target_;
    QComboBox* other_;
    QLineEdit* start_;
    std::vector<std::pair<std::string NewTranscriptValues::*, QWidget*>> fields_;
};

} // namespace tavi::app
