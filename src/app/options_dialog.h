// What every options dialog shares: the "&Reset", "Save as &Default" and
// "&Help" buttons and saving its section of TAVI.ini through the settings' one save
// procedure ("Default settings cannot be saved on this computer." when the
// settings cannot be saved here).
#pragma once

#include <QDialog>
#include <string>
#include <string_view>
#include <vector>

#include "settings/save_outcome.h"

class QDialogButtonBox;
class QPushButton;

namespace tavi::app {

class CTAVIApp;

class COptionsDialog : public QDialog {
    Q_OBJECT
public:
    COptionsDialog(CTAVIApp& app, const QString& title, QWidget* parent = nullptr);

    QPushButton* resetButton() const { return reset_; }
    QPushButton* saveDefaultButton() const { return saveDefault_; }
    // Saves the dialog's current values as the program default.
    SaveOutcome saveAsDefault();

protected:
    // The button row to put at the bottom: OK, "&Cancel", "&Reset",
    // "Save as &Default", "&Help".
    QDialogButtonBox* buttons() const { return buttons_; }
    CTAVIApp& app() const { return app_; }

    virtual void resetValues() = 0;
    virtual std::string sectionKeyword() const = 0;
    virtual std::vector<std::string> sectionLines() const = 0;
    // Further section keywords a dialog saves with its own (their old lines go).
    virtual std::vector<std::string> otherSectionKeywords() const { return {}; }
    virtual std::string_view saveQuestion() const;
    // The document "&Help" opens, with an anchor: "docs/measures.md#...".
    virtual QString helpDocument() const;
    // Validation after the save question; shows its own message. True: valid.
    virtual bool validateForSave() { return true; }
    // Validation on OK; shows its own message and keeps the dialog open.
    virtual bool validateForOk() { return true; }
    // Takes the dialog's values into the settings of the run.
    virtual void apply() = 0;

public:
    // OK: validates (keeping the dialog open on a problem), then applies.
    void accept() override;

private:
    CTAVIApp& app_;
    QDialogButtonBox* buttons_;
    QPushButton* reset_;
    QPushButton* saveDefault_;
};

} // namespace tavi::app
