// The analysis-set dialog "Current Analysis Set": which utterance kinds and
// which coded utterances are left out of the analysis-set counts.
#pragma once

#include <array>

#include "analysis/analysis_set.h"
#include "app/options_dialog.h"

class QCheckBox;
class QLineEdit;

namespace tavi::app {

class CAnalSetDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CAnalSetDialog(CTAVIApp& app, QWidget* parent = nullptr);

    AnalysisSet values() const;
    void setValues(const AnalysisSet& set);

protected:
    void resetValues() override { setValues(AnalysisSet{}); }
    std::string sectionKeyword() const override { return "ASET"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/measures.md#which-utterances-are-counted");
    }
    std::vector<std::string> sectionLines() const override;
    std::string_view saveQuestion() const override;
    bool validateForSave() override { return validateCodes(" (save cancelled)"); }
    bool validateForOk() override { return validateCodes(""); }
    void apply() override;

private:
    bool validateCodes(const char* suffix);

    // In the order of the dialog: abandoned and interrupted, unintelligible,
    // nonverbal, Q, Y, P, I, O.
    std::array<QCheckBox*, 8> exclusions_{};
    QLineEdit* excludeCodes_;
    QCheckBox* includeOnly_;
    QLineEdit* includeCodes_;
};

} // namespace tavi::app
