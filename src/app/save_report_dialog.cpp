// Choosing how a report is saved.
#include "app/save_report_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "reports/save_state.h"

namespace tavi::app {

namespace {

// The radio buttons, the check box and the buttons of either dialog.
void fillSaveDialog(QDialog& dialog, const SaveDialogTexts& texts,
                    const std::vector<const char*>& names, int choice, bool displayAfterSaving,
                    QButtonGroup* choices, QCheckBox* display) {
    dialog.setWindowTitle(QString::fromStdString(texts.title));
    display->setText(QString::fromStdString(texts.displayAfterSaving));
    auto* layout = new QVBoxLayout(&dialog);
    const int count = static_cast<int>(texts.choices.size());
    for (int i = 0; i < count; ++i) {
        auto* button =
            new QRadioButton(QString::fromStdString(texts.choices[static_cast<std::size_t>(i)]));
        button->setObjectName(QString::fromLatin1(names[static_cast<std::size_t>(i)]));
        choices->addButton(button, i);
        layout->addWidget(button);
    }
    const int start = choice >= 0 && choice < count ? choice : 0;
    choices->button(start)->setChecked(true);
    display->setObjectName(QStringLiteral("displayAfterSaving"));
    display->setChecked(displayAfterSaving);
    layout->addWidget(display);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
}

} // namespace

CSaveReportTypeRTF::CSaveReportTypeRTF(int choice, bool displayAfterSaving, bool batchOpen,
                                       QWidget* parent)
    : QDialog(parent), choices_(new QButtonGroup(this)), display_(new QCheckBox) {
    SaveDialogTexts texts = saveDialogTexts(tavi::ReportKind::RichText, batchOpen);
    // While a batch is open its choice closes the batch, and reads as the
    // grid reports' dialog does then.
    if (batchOpen)
        texts.choices.back() = saveDialogTexts(tavi::ReportKind::Grid, true).choices.back();
    setObjectName(QStringLiteral("CSaveReportTypeRTF"));
    fillSaveDialog(*this, texts, {"choicePdf", "choiceRtf", "choiceTxt", "choiceBatch"}, choice,
                   displayAfterSaving, choices_, display_);
}

int CSaveReportTypeRTF::choice() const {
    return choices_->checkedId();
}
bool CSaveReportTypeRTF::displayAfterSaving() const {
    return display_->isChecked();
}

CSaveReportType::CSaveReportType(int choice, bool displayAfterSaving, bool batchOpen,
                                 QWidget* parent)
    : QDialog(parent), choices_(new QButtonGroup(this)), display_(new QCheckBox) {
    setObjectName(QStringLiteral("CSaveReportType"));
    fillSaveDialog(*this, saveDialogTexts(tavi::ReportKind::Grid, batchOpen),
                   {"choicePdf", "choiceCsv", "choiceTsv", "choiceTxt", "choiceBatch"}, choice,
                   displayAfterSaving, choices_, display_);
}

int CSaveReportType::choice() const {
    return choices_->checkedId();
}
bool CSaveReportType::displayAfterSaving() const {
    return display_->isChecked();
}

} // namespace tavi::app
