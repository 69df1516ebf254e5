// The transcript-cut dialog "Current Transcript Cut": a START POINT and
// either an END POINT or a CONTENT TARGET.
#pragma once

#include "analysis/transcript_cut.h"
#include "app/options_dialog.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace tavi::app {

class CTranCutDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CTranCutDialog(CTAVIApp& app, QWidget* parent = nullptr);

    TranscriptCut values() const;
    void setValues(const TranscriptCut& cut);
    // For tests and scripts: choose start and end types by their numbers.
    void chooseStart(int type);
    void chooseEnd(int type);

protected:
    void resetValues() override { setValues(TranscriptCut{}); }
    std::string sectionKeyword() const override { return "TCUT"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/measures.md#the-transcript-cut");
    }
    std::vector<std::string> sectionLines() const override;
    bool validateForSave() override { return validateTimes(); }
    bool validateForOk() override { return validateTimes(); }
    void apply() override;

private:
    bool validateTimes();

    QButtonGroup* start_;
    QButtonGroup* end_;
    QSpinBox* startUtterance_;
    QComboBox* startSpeaker_;
    QComboBox* startBase_;
    QLineEdit* startTime_;
    QLineEdit* startCode_;
    QSpinBox* endUtterance_;
    QLineEdit* endTime_;
    QLineEdit* endCode_;
    QSpinBox* targetCount_;
    QLineEdit* targetTime_;
    QComboBox* targetSpeaker_;
    QComboBox* targetBase_;
    QComboBox* wordArea_;
};

} // namespace tavi::app
