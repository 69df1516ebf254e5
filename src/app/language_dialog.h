// "Language Settings": which language slot's labels the reports print, the
// name of the other language, how dates in transcript headers are written
// (order and separator, which the checker follows), how files without a byte
// order mark are read, and the root identification files of each slot.
// "Save as Default" keeps them as the "LANGUAGE" lines of the user's settings.
#pragma once

#include "app/options_dialog.h"
#include "settings/settings.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

namespace tavi::app {

class CLanguageDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CLanguageDialog(CTAVIApp& app, QWidget* parent = nullptr);

    // The settings as the dialog shows them now.
    LanguageSettings current() const;

protected:
    void resetValues() override;
    std::string sectionKeyword() const override { return "LANGUAGE"; }
    QString helpDocument() const override {
        return QStringLiteral("docs/settings.md#language-settings");
    }
    std::vector<std::string> sectionLines() const override;
    void apply() override;

private:
    void showSettings(const LanguageSettings& language);
    void showRifSlot(int slot);
    void keepRifSlot();

    LanguageSettings language_; // the fields the dialog does not show, and the RIF files
    QComboBox* reportSlot_;
    QLineEdit* otherName_;
    QRadioButton* monthFirst_;
    QRadioButton* dayFirst_;
    QComboBox* separator_;
    QRadioButton* utf8_;
    QRadioButton* windows1252_;
    QComboBox* rifSlot_;
    QLineEdit* rif_[4];
    int shownRifSlot_ = 0;
};

} // namespace tavi::app
