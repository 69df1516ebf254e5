// The buttons and the Save-as-Default procedure of the options dialogs.
#include "app/options_dialog.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include "app/help_window.h"
#include "app/tavi_app.h"
#include "settings/section_save.h"

namespace tavi::app {

COptionsDialog::COptionsDialog(CTAVIApp& app, const QString& title, QWidget* parent)
    : QDialog(parent), app_(app), buttons_(new QDialogButtonBox),
      reset_(new QPushButton(QStringLiteral("&Reset"))),
      saveDefault_(new QPushButton(QStringLiteral("Save as &Default"))) {
    setWindowTitle(title);
    reset_->setObjectName(QStringLiteral("reset"));
    saveDefault_->setObjectName(QStringLiteral("saveAsDefault"));
    buttons_->addButton(QDialogButtonBox::Ok);
    buttons_->addButton(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
    buttons_->addButton(reset_, QDialogButtonBox::ResetRole);
    buttons_->addButton(saveDefault_, QDialogButtonBox::ActionRole);
    QPushButton* help = buttons_->addButton(QDialogButtonBox::Help);
    help->setText(QStringLiteral("&Help"));
    connect(help, &QPushButton::clicked, this, [this] {
        if (!openHelpWindow(app_, helpDocument(), this))
            app_.prompter().inform("Cannot open " + helpDocument().toStdString());
    });
    connect(buttons_, &QDialogButtonBox::accepted, this, &COptionsDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(reset_, &QPushButton::clicked, this, [this] { resetValues(); });
    connect(saveDefault_, &QPushButton::clicked, this, [this] { saveAsDefault(); });
}

QString COptionsDialog::helpDocument() const {
    return QStringLiteral("docs/settings.md");
}

std::string_view COptionsDialog::saveQuestion() const {
    return kSaveSettingsQuestion;
}

SaveOutcome COptionsDialog::saveAsDefault() {
    SectionSaveRequest request;
    request.file = app_.settings().userSettingsFile();
    request.keyword = sectionKeyword();
    request.question = saveQuestion();
    request.savingAllowed = app_.settings().canSaveDefaults();
    request.validate = [this] { return validateForSave(); };
    request.lines = sectionLines();
    const SaveOutcome outcome = saveSections(request, otherSectionKeywords(), app_.prompter());
    if (outcome == SaveOutcome::Saved)
        apply();
    return outcome;
}

void COptionsDialog::accept() {
    if (!validateForOk())
        return;
    apply();
    QDialog::accept();
}

} // namespace tavi::app
