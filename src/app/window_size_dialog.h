// "Moving-Average Window Size": the number of words in each window of the
// moving-average measures, 10 to 999.
#pragma once

#include "app/options_dialog.h"

class QLineEdit;

namespace tavi::app {

class CWindowSizeDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CWindowSizeDialog(CTAVIApp& app, QWidget* parent = nullptr);
    void setText(const QString& text);

protected:
    void resetValues() override;
    std::string sectionKeyword() const override { return "MATTRSET"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/measures.md#length-and-vocabulary");
    }
    std::vector<std::string> sectionLines() const override;
    bool validateForSave() override { return validate(); }
    bool validateForOk() override { return validate(); }
    void apply() override;

private:
    bool validate();
    int value() const;

    QLineEdit* size_;
};

} // namespace tavi::app
