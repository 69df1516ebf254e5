// Choosing the lines of the Standard Measures Report.
#include "app/smr_variables_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavi::app {
namespace {

QString toUpper(const std::string& text) {
    return QString::fromStdString(text).toUpper();
}

} // namespace

QString smrLineText(const SmrLineDef& line, const LabelSource& labels) {
    std::string text(smrLinePrefix(line));
    if (line.percentOfLabel)
        text += "% ";
    text += labels(line.labelKey);
    if (!line.suffixKey.empty())
        text += " " + labels(line.suffixKey);
    QString result = QString::fromStdString(text);
    result.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return result;
}

CSmrVariablesDialog::CSmrVariablesDialog(const SmrVariables& variables, int speaker,
                                         const std::pair<std::string, std::string>& speakers,
                                         const LabelSource& labels, QWidget* parent)
    : QDialog(parent),
      first_(new QRadioButton(QString::fromStdString("1st speaker (" + speakers.first + ")"))),
      second_(new QRadioButton(QString::fromStdString("2nd speaker (" + speakers.second + ")"))) {
    setWindowTitle(QStringLiteral("Standard Measures Report Variables"));
    setObjectName(QStringLiteral("CSmrVariablesDialog"));
    first_->setObjectName(QStringLiteral("speaker1"));
    second_->setObjectName(QStringLiteral("speaker2"));
    second_->setEnabled(!speakers.second.empty());
    (speaker == 1 && !speakers.second.empty() ? second_ : first_)->setChecked(true);

    auto* speakerRow = new QHBoxLayout;
    speakerRow->addWidget(first_);
    speakerRow->addWidget(second_);
    speakerRow->addStretch();

    auto* grid = new QGridLayout;
    int column = 0;
    int row = 0;
    for (const SmrSectionDef& section : smrSections()) {
        auto* group = new QGroupBox(toUpper(labels(section.titleKey)));
        auto* inner = new QVBoxLayout(group);
        for (size_t i = section.firstLine; i < section.firstLine + section.lineCount; ++i) {
            boxes_[i] = new QCheckBox(smrLineText(smrLines()[i], labels));
            boxes_[i]->setObjectName(
                QString::fromLatin1(smrLines()[i].measureId.data(),
                                    static_cast<qsizetype>(smrLines()[i].measureId.size())));
            inner->addWidget(boxes_[i]);
        }
        grid->addWidget(group, row, column);
        if (++row == 4) {
            row = 0;
            ++column;
        }
    }
    setVariables(variables);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
    auto* selectAll =
        buttons->addButton(QStringLiteral("&Select All"), QDialogButtonBox::ActionRole);
    auto* reset = buttons->addButton(QStringLiteral("&Reset"), QDialogButtonBox::ResetRole);
    selectAll->setObjectName(QStringLiteral("selectAll"));
    reset->setObjectName(QStringLiteral("reset"));
    connect(selectAll, &QPushButton::clicked, this, [this] {
        SmrVariables all;
        all.selectAll();
        setVariables(all);
    });
    connect(reset, &QPushButton::clicked, this, [this] { setVariables(SmrVariables::defaults()); });
    auto* saveDefault =
        buttons->addButton(QStringLiteral("Save as &Default"), QDialogButtonBox::ActionRole);
    saveDefault->setObjectName(QStringLiteral("saveAsDefault"));
    connect(saveDefault, &QPushButton::clicked, this, &CSmrVariablesDialog::saveDefaultRequested);
    QPushButton* help = buttons->addButton(QDialogButtonBox::Help);
    help->setText(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("help"));
    connect(help, &QPushButton::clicked, this, &CSmrVariablesDialog::helpRequested);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(speakerRow);
    layout->addLayout(grid);
    layout->addWidget(new QLabel(QString::fromStdString(labels("RL_ITALICSNOTE2"))));
    layout->addWidget(buttons);
}

SmrVariables CSmrVariablesDialog::variables() const {
    SmrVariables v;
    for (size_t i = 0; i < kSmrLineCount; ++i)
        v.chosen[i] = boxes_[i]->isChecked();
    return v;
}

int CSmrVariablesDialog::speaker() const {
    return second_->isChecked() ? 1 : 0;
}

void CSmrVariablesDialog::setVariables(const SmrVariables& variables) {
    for (size_t i = 0; i < kSmrLineCount; ++i)
        boxes_[i]->setChecked(variables.chosen[i]);
}

} // namespace tavi::app
