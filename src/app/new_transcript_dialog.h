// The dialog of File > New: the two speakers, the header values and the
// starting time from which the new transcript's first lines are composed.
#pragma once

#include <QDialog>
#include <QString>
#include <utility>
#include <vector>

class QComboBox;
class QLineEdit;

namespace tavi::app {

// What the person entered; empty values are left out of the text.
struct NewTranscriptValues {
    QString targetSpeaker;
    QString otherSpeaker;
    std::vector<std::pair<QString, QString>> header; // keyword, value, in header order
    QString startTime;
};

// The initial text: "$ " target ", " other, then "+ keyword: value" per
// header value, then "- " and the starting time, each line ending in "\n".
QString composeNewTranscript(const NewTranscriptValues& values);

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
    std::vector<std::pair<QString, QWidget*>> fields_;
};

} // namespace tavi::app
