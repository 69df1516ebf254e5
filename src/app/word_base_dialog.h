// The word-base dialog "Current Word Base": which words every analysis counts.
#pragma once

#include "analysis/word_base.h"
#include "app/options_dialog.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace tavi::app {

class CWordBaseDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CWordBaseDialog(CTAVIApp& app, QWidget* parent = nullptr);

    WordBase values() const;
    void setValues(const WordBase& base);

protected:
    void resetValues() override { setValues(WordBase{}); }
    std::string sectionKeyword() const override { return "WBASE"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/measures.md#the-word-base");
    }
    std::vector<std::string> sectionLines() const override;
    std::string_view saveQuestion() const override;
    bool validateForSave() override { return validateCodes(" (save cancelled)"); }
    bool validateForOk() override { return validateCodes(""); }
    void apply() override;

private:
    bool validateCodes(const char* suffix);
    void switchMode();

    QCheckBox* parenthetical_;
    QRadioButton* exclude_;
    QRadioButton* include_;
    QLineEdit* codes_;
    WordBase shown_; // keeps the list of the mode not shown
};

} // namespace tavi::app
