// "Database Stats (%SD)": the SD interval, the number of standard deviations
// from the database mean at or beyond which a value is reported as differing.
// New database selections start with it; "Save as Default" keeps it as
// "SDINT" in the user's settings.
#pragma once

#include "app/options_dialog.h"

class QLineEdit;

namespace tavi::app {

inline constexpr float kMaxSdInterval = 100.0f;
inline constexpr const char* kBadSdInterval =
    "Enter an SD interval greater than 0 and at most 100.";

// The SD interval typed, or 0 when it is not a number above 0 and at most 100.
float sdIntervalValue(const QString& text);

class CSdIntervalDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CSdIntervalDialog(CTAVIApp& app, QWidget* parent = nullptr);

protected:
    void resetValues() override;
    std::string sectionKeyword() const override { return "SDINT"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/reports.md#the-comparison-rule");
    }
    std::vector<std::string> sectionLines() const override;
    std::string_view saveQuestion() const override;
    bool validateForSave() override { return validate(); }
    bool validateForOk() override { return validate(); }
    void apply() override;

private:
    bool validate();

    QLineEdit* interval_;
};

} // namespace tavi::app
