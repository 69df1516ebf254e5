// Choosing how a report is saved.
#include "app/save_report_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavi::app {

CSaveReportTypeRTF::CSaveReportTypeRTF(int choice, bool displayAfterSaving, bool batchOpen,
                                       QWidget* parent)
    : QDialog(parent), choices_(new QButtonGroup(this)),
      display_(new QCheckBox(QStringLiteral("Display report after saving"))) {
    setWindowTitle(QStringLiteral("Save report as"));
    setObjectName(QStringLiteral("CSaveReportTypeRTF"));
    auto* layout = new QVBoxLayout(this);
    const QString texts[] = {
        QStringLiteral("PDF - Portable Document Format"),
        QStringLiteral("RTF - Rich Text Format (Word)"), QStringLiteral("TXT - Text File"),
        batchOpen ? QStringLiteral("Close PDF &Batch") : QStringLiteral("Begin PDF Batch")};
    const char* names[] = {"choicePdf", "choiceRtf", "choiceTxt", "choiceBatch"};
    for (int i = 0; i < 4; ++i) {
        auto* button = new QRadioButton(texts[i]);
        button->setObjectName(QString::fromLatin1(names[i]));
        choices_->addButton(button, i);
        layout->addWidget(button);
    }
    const int start = choice >= 0 && choice < 4 ? choice : SavePdf;
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
