// Choosing the analysis set.
#include "app/anal_set_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "analysis/code_lists.h"
#include "app/tavi_app.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"

namespace tavi::app {
namespace {

constexpr const char* kBoxTexts[] = {"Abandoned && Interrupted Utterances",
                                     "Unintelligible Utterances",
                                     "Nonverbal Utterances",
                                     "Responses to Questions -Q",
                                     "Yes/No Responses to Questions -Y",
                                     "Responses to Intonation Prompts -P",
                                     "Imitations -I",
                                     "One-word Utterances -O"};
constexpr const char* kBoxNames[] = {"excludeIncomplete",     "excludeUnintelligible",
                                     "excludeNonverbal",      "excludeQuestionResponses",
                                     "excludeYesNoResponses", "excludePromptResponses",
                                     "excludeImitations",     "excludeOneWord"};

// The flags of the set in the dialog's order.
std::array<std::int32_t AnalysisSet::*, 8> flagMembers() {
    return {&AnalysisSet::excludeIncomplete,     &AnalysisSet::excludeUnintelligible,
            &AnalysisSet::excludeNonverbal,      &AnalysisSet::excludeQuestionResponses,
            &AnalysisSet::excludeYesNoResponses, &AnalysisSet::excludePromptResponses,
            &AnalysisSet::excludeImitations,     &AnalysisSet::excludeOneWord};
}

} // namespace

CAnalSetDialog::CAnalSetDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Current Analysis Set"), parent),
      excludeCodes_(new QLineEdit),
      includeOnly_(new QCheckBox(QStringLiteral(
          "Only include utterances containing at least one of the following codes"))),
      includeCodes_(new QLineEdit) {
    setObjectName(QStringLiteral("CAnalSetDialog"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(
        QStringLiteral("Select the subset of utterances to include in the analysis set")));
    auto* kinds = new QGroupBox(QStringLiteral("Exclude"));
    auto* kindsLayout = new QVBoxLayout(kinds);
    for (size_t i = 0; i < exclusions_.size(); ++i) {
        exclusions_[i] = new QCheckBox(QString::fromLatin1(kBoxTexts[i]));
        exclusions_[i]->setObjectName(QString::fromLatin1(kBoxNames[i]));
        kindsLayout->addWidget(exclusions_[i]);
    }
    layout->addWidget(kinds);
    excludeCodes_->setObjectName(QStringLiteral("excludeCodes"));
    includeOnly_->setObjectName(QStringLiteral("includeOnly"));
    includeCodes_->setObjectName(QStringLiteral("includeCodes"));
    layout->addWidget(new QLabel(
        QStringLiteral("Exclude utterances containing any of the following codes -[ ]")));
    layout->addWidget(excludeCodes_);
    layout->addWidget(new QLabel(QStringLiteral("Separate codes with commas")));
    layout->addWidget(includeOnly_);
    layout->addWidget(includeCodes_);
    layout->addWidget(new QLabel(QStringLiteral("Separate codes with commas")));
    layout->addWidget(buttons());
    setValues(app.settings().analysisSet);
}

AnalysisSet CAnalSetDialog::values() const {
    AnalysisSet set;
    const auto members = flagMembers();
    for (size_t i = 0; i < members.size(); ++i)
        set.*members[i] = exclusions_[i]->isChecked() ? 1 : 0;
    set.includeOnly = includeOnly_->isChecked() ? 1 : 0;
    set.excludeCodes = excludeCodes_->text().trimmed().toStdString();
    set.includeCodes = includeCodes_->text().trimmed().toStdString();
    return set;
}

void CAnalSetDialog::setValues(const AnalysisSet& set) {
    const auto members = flagMembers();
    for (size_t i = 0; i < members.size(); ++i)
        exclusions_[i]->setChecked(set.*members[i] != 0);
    includeOnly_->setChecked(set.includeOnly != 0);
    excludeCodes_->setText(QString::fromStdString(set.excludeCodes));
    includeCodes_->setText(QString::fromStdString(set.includeCodes));
}

std::vector<std::string> CAnalSetDialog::sectionLines() const {
    return analysisSetLines(values());
}

std::string_view CAnalSetDialog::saveQuestion() const {
    return kSaveAnalysisSetQuestion;
}

bool CAnalSetDialog::validateCodes(const char* suffix) {
    for (QLineEdit* box : {excludeCodes_, includeCodes_}) {
        if (isValidCodeList(box->text().toStdString()))
            continue;
        app().prompter().inform(std::string("Error: illegal code specification") + suffix);
        box->setFocus();
        box->selectAll();
        return false;
    }
    return true;
}

void CAnalSetDialog::apply() {
    app().settings().analysisSet = values();
}

} // namespace tavi::app
