// The language settings dialog.
#include "app/language_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/tavi_app.h"
#include "settings/section_lines.h"

namespace tavi::app {
namespace {

const char* const kSlotNames[] = {"Primary", "Alternate 1", "Alternate 2", "Other"};
constexpr char kSeparators[] = {'-', '.', '/'};

} // namespace

CLanguageDialog::CLanguageDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Language Settings"), parent),
      language_(app.settings().language), reportSlot_(new QComboBox), otherName_(new QLineEdit),
      monthFirst_(new QRadioButton(QStringLiteral("&Month first"))),
      dayFirst_(new QRadioButton(QStringLiteral("&Day first"))), separator_(new QComboBox),
      utf8_(new QRadioButton(
          QStringLiteral("&UTF-8 (files that are not valid UTF-8 are read as Windows-1252)"))),
      windows1252_(new QRadioButton(QStringLiteral("&Windows-1252 (Western European)"))),
      rifSlot_(new QComboBox) {
    setObjectName(QStringLiteral("CLanguageDialog"));
    reportSlot_->setObjectName(QStringLiteral("reportSlot"));
    otherName_->setObjectName(QStringLiteral("otherName"));
    monthFirst_->setObjectName(QStringLiteral("monthFirst"));
    dayFirst_->setObjectName(QStringLiteral("dayFirst"));
    separator_->setObjectName(QStringLiteral("dateSeparator"));
    utf8_->setObjectName(QStringLiteral("encodingUtf8"));
    windows1252_->setObjectName(QStringLiteral("encodingWindows1252"));
    rifSlot_->setObjectName(QStringLiteral("rifSlot"));
    for (const char* name : kSlotNames) {
        reportSlot_->addItem(QString::fromLatin1(name));
        rifSlot_->addItem(QString::fromLatin1(name));
    }
    for (char c : kSeparators)
        separator_->addItem(QString(QLatin1Char(c)));

    auto* layout = new QVBoxLayout(this);

    auto* labels = new QGroupBox(QStringLiteral("Report labels"));
    auto* labelForm = new QFormLayout(labels);
    labelForm->addRow(QStringLiteral("&Language of the labels:"), reportSlot_);
    labelForm->addRow(QStringLiteral("&Name of the other language:"), otherName_);
    layout->addWidget(labels);

    auto* dates = new QGroupBox(QStringLiteral("Dates in transcript headers"));
    auto* dateForm = new QFormLayout(dates);
    auto* order = new QHBoxLayout;
    order->addWidget(monthFirst_);
    order->addWidget(dayFirst_);
    order->addStretch();
    dateForm->addRow(QStringLiteral("Order:"), order);
    dateForm->addRow(QStringLiteral("&Separator:"), separator_);
    auto* example = new QLabel;
    example->setObjectName(QStringLiteral("dateExample"));
    dateForm->addRow(QStringLiteral("Example:"), example);
    auto showExample = [this, example] {
        const QString sep = separator_->currentText();
        example->setText(monthFirst_->isChecked()
                             ? QStringLiteral("3%114%12020 (14 March 2020)").arg(sep, sep)
                             : QStringLiteral("14%13%12020 (14 March 2020)").arg(sep, sep));
    };
    connect(monthFirst_, &QRadioButton::toggled, this, showExample);
    connect(separator_, &QComboBox::currentIndexChanged, this, showExample);
    layout->addWidget(dates);

    auto* encoding = new QGroupBox(QStringLiteral("Text files without a byte order mark"));
    auto* encodingLayout = new QVBoxLayout(encoding);
    encodingLayout->addWidget(utf8_);
    encodingLayout->addWidget(windows1252_);
    layout->addWidget(encoding);

    auto* rif = new QGroupBox(QStringLiteral("Root identification files"));
    auto* rifForm = new QFormLayout(rif);
    rifForm->addRow(QStringLiteral("For the la&nguage:"), rifSlot_);
    for (int i = 0; i < 4; ++i) {
        rif_[i] = new QLineEdit;
        rif_[i]->setObjectName(QStringLiteral("rif%1").arg(i + 1));
        auto* browse = new QPushButton(QStringLiteral("Browse..."));
        browse->setObjectName(QStringLiteral("browseRif%1").arg(i + 1));
        connect(browse, &QPushButton::clicked, this, [this, i] {
            const QString file = QFileDialog::getOpenFileName(
                this, QStringLiteral("Root Identification File"),
                QString::fromStdString(this->app().settings().folders.rif));
            if (!file.isEmpty())
                rif_[i]->setText(file);
        });
        auto* row = new QHBoxLayout;
        row->addWidget(rif_[i], 1);
        row->addWidget(browse);
        rifForm->addRow(QStringLiteral("File &%1:").arg(i + 1), row);
    }
    connect(rifSlot_, &QComboBox::currentIndexChanged, this, [this](int slot) {
        keepRifSlot();
        showRifSlot(slot);
    });
    layout->addWidget(rif);
    layout->addWidget(buttons());

    showSettings(language_);
    showExample();
}

void CLanguageDialog::showSettings(const LanguageSettings& language) {
    language_ = language;
    reportSlot_->setCurrentIndex(static_cast<int>(language.reportSlot()));
    otherName_->setText(QString::fromStdString(language.otherName));
    (language.monthFirst ? monthFirst_ : dayFirst_)->setChecked(true);
    for (int i = 0; i < separator_->count(); ++i)
        if (kSeparators[i] == language.dateSeparator)
            separator_->setCurrentIndex(i);
    (language.textEncoding == TextEncoding::Windows1252 ? windows1252_ : utf8_)->setChecked(true);
    showRifSlot(rifSlot_->currentIndex());
}

void CLanguageDialog::showRifSlot(int slot) {
    shownRifSlot_ = slot;
    const LanguageSlotOptions& options = language_.slots[static_cast<size_t>(slot)];
    for (size_t i = 0; i < 4; ++i)
        rif_[i]->setText(QString::fromStdString(options.rif[i]));
}

void CLanguageDialog::keepRifSlot() {
    LanguageSlotOptions& options = language_.slots[static_cast<size_t>(shownRifSlot_)];
    for (size_t i = 0; i < 4; ++i)
        options.rif[i] = rif_[i]->text().trimmed().toStdString();
}

LanguageSettings CLanguageDialog::current() const {
    LanguageSettings language = language_;
    LanguageSlotOptions& options = language.slots[static_cast<size_t>(shownRifSlot_)];
    for (size_t i = 0; i < 4; ++i)
        options.rif[i] = rif_[i]->text().trimmed().toStdString();
    const auto slot = static_cast<LanguageSlot>(reportSlot_->currentIndex());
    language.reportLabels =
        slot == LanguageSlot::Primary ? std::string() : std::string(languageSlotWord(slot));
    language.otherName = otherName_->text().trimmed().toStdString();
    language.monthFirst = monthFirst_->isChecked();
    language.dateSeparator = kSeparators[std::max(0, separator_->currentIndex())];
    language.textEncoding =
        windows1252_->isChecked() ? TextEncoding::Windows1252 : TextEncoding::Utf8;
    return language;
}

void CLanguageDialog::resetValues() {
    LanguageSettings defaults;
    // The root identification files and the options this dialog does not show stay.
    defaults.slots = current().slots;
    showSettings(defaults);
}

std::vector<std::string> CLanguageDialog::sectionLines() const {
    return languageLines(current());
}

void CLanguageDialog::apply() {
    app().settings().language = current();
}

} // namespace tavi::app
