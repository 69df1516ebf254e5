// The list generators' dialog.
#include "app/list_gen_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/transcript_picker.h"

namespace tavi::app {

QString listGenTitle(ListKind kind) {
    switch (kind) {
    case ListKind::Words:
        return QStringLiteral("Generate Word List");
    case ListKind::BoundMorphemes:
        return QStringLiteral("Generate Bound Morpheme List");
    case ListKind::Codes:
        return QStringLiteral("Generate Code List");
    }
    return {};
}

CListGenDialog::CListGenDialog(ListKind kind, const ListOptions& options, const QString& folder,
                               QWidget* parent)
    : QDialog(parent), kind_(kind), picker_(new CTranscriptPicker(folder, this)),
      speaker_(new QComboBox(this)), utterances_(new QComboBox(this)), area_(new QComboBox(this)),
      include_(new QLineEdit(QString::fromStdString(options.includeCodes), this)),
      exclude_(new QLineEdit(QString::fromStdString(options.excludeCodes), this)),
      total_(new QCheckBox(QStringLiteral("Total uses"), this)),
      transcripts_(new QCheckBox(QStringLiteral("Number of transcripts"), this)),
      percent_(new QCheckBox(QStringLiteral("Percent of transcripts"), this)),
      byCount_(new QCheckBox(QStringLiteral("Most used first"), this)),
      output_(new QComboBox(this)) {
    setWindowTitle(listGenTitle(kind));
    speaker_->setObjectName(QStringLiteral("speaker"));
    utterances_->setObjectName(QStringLiteral("utterances"));
    area_->setObjectName(QStringLiteral("area"));
    include_->setObjectName(QStringLiteral("includeCodes"));
    exclude_->setObjectName(QStringLiteral("excludeCodes"));
    total_->setObjectName(QStringLiteral("countTotal"));
    transcripts_->setObjectName(QStringLiteral("countTranscripts"));
    percent_->setObjectName(QStringLiteral("percentTranscripts"));
    byCount_->setObjectName(QStringLiteral("countFirst"));
    output_->setObjectName(QStringLiteral("output"));

    speaker_->addItems({QStringLiteral("Target speaker"), QStringLiteral("Second speaker"),
                        QStringLiteral("Both speakers")});
    speaker_->setCurrentIndex(options.bothSpeakers ? 2 : 0);
    utterances_->addItems(
        {QStringLiteral("Analysis set utterances"), QStringLiteral("All utterances")});
    utterances_->setCurrentIndex(options.analysisSetOnly ? 0 : 1);
    area_->addItems({QStringLiteral("Main body"), QStringLiteral("Mazes"),
                     QStringLiteral("Main body and mazes")});
    area_->setCurrentIndex(static_cast<int>(options.area));
    area_->setEnabled(kind != ListKind::Codes);
    total_->setChecked(options.countTotal);
    transcripts_->setChecked(options.countTranscripts);
    percent_->setChecked(options.percentTranscripts);
    byCount_->setChecked(options.countFirst);
    output_->addItems({QStringLiteral("Word list file (*.LST)"), QStringLiteral("Table")});
    if (kind == ListKind::Codes)
        output_->addItem(QStringLiteral("Current code list"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Speaker:"), speaker_);
    form->addRow(QStringLiteral("&Utterances:"), utterances_);
    form->addRow(QStringLiteral("&Words from:"), area_);
    form->addRow(kind == ListKind::Codes ? QStringLiteral("&Include codes:")
                                         : QStringLiteral("Only words with &codes:"),
                 include_);
    form->addRow(kind == ListKind::Codes ? QStringLiteral("&Exclude codes:")
                                         : QStringLiteral("Never words with c&odes:"),
                 exclude_);
    form->addRow(QStringLiteral("Columns:"), total_);
    form->addRow(QString(), transcripts_);
    form->addRow(QString(), percent_);
    form->addRow(QStringLiteral("Order:"), byCount_);
    form->addRow(QStringLiteral("&Output:"), output_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* defaults =
        buttons->addButton(QStringLiteral("Save as &Default"), QDialogButtonBox::ActionRole);
    defaults->setObjectName(QStringLiteral("saveDefaults"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(defaults, &QPushButton::clicked, this,
            [this] { Q_EMIT saveDefaultsWanted(this->options()); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picker_, 1);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

ListOptions CListGenDialog::options() const {
    ListOptions o;
    o.bothSpeakers = speaker_->currentIndex() == 2;
    o.analysisSetOnly = utterances_->currentIndex() == 0;
    o.area = static_cast<WordArea>(area_->currentIndex());
    o.includeCodes = include_->text().trimmed().toStdString();
    o.excludeCodes = exclude_->text().trimmed().toStdString();
    o.countTotal = total_->isChecked();
    o.countTranscripts = transcripts_->isChecked();
    o.percentTranscripts = percent_->isChecked();
    o.countFirst = byCount_->isChecked();
    return o;
}

int CListGenDialog::speaker() const {
    return speaker_->currentIndex() == 1 ? 1 : 0;
}

CListGenDialog::Output CListGenDialog::output() const {
    return static_cast<Output>(output_->currentIndex());
}

} // namespace tavi::app
