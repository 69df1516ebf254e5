// Choosing how a report is saved.
#include "app/save_report_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "reports/save_state.h"

namespace tavi::app {

CSaveReportTypeRTF::CSaveReportTypeRTF(int choice, bool displayAfterSaving, bool batchOpen,
                                       QWidget* parent)
    : QDialog(parent), choices_(new QButtonGroup(this)), display_(new QCheckBox) {
    SaveDialogTexts texts = saveDialogTexts(tavi::ReportKind::RichText, batchOpen);
    // While a batch is open its choice closes the batch, and reads as the
    // grid reports' dialog does then.
    if (batchOpen)
        texts.choices.back() = saveDialogTexts(tavi::ReportKind::Grid, true).choices.back();
    setWindowTitle(QString::fromStdString(texts.title));
    setObjectName(QStringLiteral("CSaveReportTypeRTF"));
    display_->setText(QString::fromStdString(texts.displayAfterSaving));
    auto* layout = new QVBoxLayout(this);
    const char* names[] = {"choicePdf", "choiceRtf", "choiceTxt", "choiceBatch"};
    const int count = static_cast<int>(texts.choices.size());
    for (int i = 0; i < count; ++i) {
        auto* button =
            new QRadioButton(QString::fromStdString(texts.choices[static_cast<std::size_t>(i)]));
        button->setObjectName(QString::fromLatin1(names[i]));
        choices_->addButton(button, i);
        layout->addWidget(button);
    }
    const int start = choice >= 0 && choice < count ? choice : 0;
    choices_->button(start)->setChecked(true);
    display_->setObjectName(QStringLiteral("displayAfterSaving"));
    display_->setChecked(displayAfterSaving);
    layout->addWidget(display_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

int CSaveReportTypeRTF::choice() const {
    return choices_->checkedId();
}
bool CSaveReportTypeRTF::displayAfterSaving() const {
    return display_->isChecked();
}

} // namespace tavi::app
