// Setup > Analysis Settings: "Timing Lines" (how elapsed time is read from
// the timing lines) and "Default Databases" (the reference database a new
// database selection starts with). Both apply to the session on OK and save
// their sections of TAVI.ini with "Save as Default".
#pragma once

#include "app/options_dialog.h"
#include "settings/settings.h"

class QCheckBox;
class QLineEdit;

namespace tavi::app {

class CTimingLinesDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CTimingLinesDialog(CTAVIApp& app, QWidget* parent = nullptr);

    TimingLineFlags flags() const;
    void setFlags(const TimingLineFlags& flags);

protected:
    void resetValues() override { setFlags(TimingLineFlags{}); }
    std::string sectionKeyword() const override { return "TIMINGLINES"; }
    std::vector<std::string> sectionLines() const override;
    QString helpDocument() const override {
        return QStringLiteral("docs/settings.md#timing-lines");
    }
    void apply() override;

private:
    QCheckBox* subtract_;
    QCheckBox* ignorePlus_;
    QCheckBox* ignoreEqual_;
};

class CDefaultDatabaseDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CDefaultDatabaseDialog(CTAVIApp& app, QWidget* parent = nullptr);

protected:
    void resetValues() override;
    std::string sectionKeyword() const override { return "DEFDBNAME"; }
    std::vector<std::string> otherSectionKeywords() const override { return {"DEFDBPATH", "PCSD"}; }
    std::vector<std::string> sectionLines() const override;
    QString helpDocument() const override {
        return QStringLiteral("docs/settings.md#default-databases");
    }
    void apply() override;

private:
    void browse();

    QLineEdit* name_;
    QLineEdit* path_;
    QCheckBox* include_;
};

} // namespace tavi::app
