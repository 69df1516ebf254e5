// Choosing the word base.
#include "app/word_base_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "analysis/code_lists.h"
#include "app/tavi_app.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"

namespace tavi::app {

CWordBaseDialog::CWordBaseDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Current Word Base"), parent),
      parenthetical_(new QCheckBox(QStringLiteral("Parenthetical remarks"))),
      exclude_(new QRadioButton(
          QStringLiteral("Exclude words containing any of the following codes -[ ]"))),
      include_(new QRadioButton(
          QStringLiteral("Only include words containing at least one of the following codes"))),
      codes_(new QLineEdit) {
    setObjectName(QStringLiteral("CWordBaseDialog"));
    parenthetical_->setObjectName(QStringLiteral("excludeParenthetical"));
    exclude_->setObjectName(QStringLiteral("excludeWords"));
    include_->setObjectName(QStringLiteral("includeWords"));
    codes_->setObjectName(QStringLiteral("codes"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(QStringLiteral("Select the subset of words to include in all analyses")));
    auto* excluded = new QGroupBox(QStringLiteral("Exclude"));
    (new QVBoxLayout(excluded))->addWidget(parenthetical_);
    layout->addWidget(excluded);
    layout->addWidget(exclude_);
    layout->addWidget(include_);
    layout->addWidget(codes_);
    layout->addWidget(new QLabel(QStringLiteral("Separate codes with commas")));
    layout->addWidget(buttons());
    connect(include_, &QRadioButton::toggled, this, &CWordBaseDialog::switchMode);
    setValues(app.settings().wordBase);
}

void CWordBaseDialog::switchMode() {
    // The box shows the list of the chosen mode; the other list is kept.
    if (include_->isChecked()) {
        shown_.excludeCodes = codes_->text().trimmed().toStdString();
        codes_->setText(QString::fromStdString(shown_.includeCodes));
    } else {
        shown_.includeCodes = codes_->text().trimmed().toStdString();
        codes_->setText(QString::fromStdString(shown_.excludeCodes));
    }
}

WordBase CWordBaseDialog::values() const {
    WordBase base = shown_;
    base.excludeParenthetical = parenthetical_->isChecked();
    base.includeMode = include_->isChecked();
    (base.includeMode ? base.includeCodes : base.excludeCodes) =
        codes_->text().trimmed().toStdString();
    return base;
}

void CWordBaseDialog::setValues(const WordBase& base) {
    shown_ = base;
    parenthetical_->setChecked(base.excludeParenthetical);
    const QSignalBlocker quiet(include_);
    (base.includeMode ? include_ : exclude_)->setChecked(true);
    codes_->setText(
        QString::fromStdString(base.includeMode ? base.includeCodes : base.excludeCodes));
}

std::vector<std::string> CWordBaseDialog::sectionLines() const {
    return wordBaseLines(values());
}

std::string_view CWordBaseDialog::saveQuestion() const {
    return kSaveWordBaseQuestion;
}

bool CWordBaseDialog::validateCodes(const char* suffix) {
    if (isValidCodeList(codes_->text().toStdString()))
        return true;
    app().prompter().inform(std::string("Error: illegal word code specification") + suffix);
    codes_->setFocus();
    codes_->selectAll();
    return false;
}

void CWordBaseDialog::apply() {
    app().settings().wordBase = values();
}

} // namespace tavi::app
