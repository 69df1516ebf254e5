// Choosing utterance lists and table orders.
#include "app/table_report_dialog.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "reports/utterance_lists_report.h"

namespace tavi::app {
namespace {

QDialogButtonBox* okCancel(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

bool chooseUtteranceLists(ReportChoices& choices, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Standard Utterance Lists"));
    dialog.setObjectName(QStringLiteral("CUtteranceListsDialog"));
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("lists"));
    const auto& kinds = utteranceListKinds();
    for (int k = 0; k < kUtteranceLists; ++k) {
        bool on = choices.utteranceLists.empty();
        for (const std::string& key : choices.utteranceLists)
            on = on || utteranceListIndex(key) == k;
        auto* item =
            new QListWidgetItem(QString::fromUtf8(kinds[static_cast<size_t>(k)].key.data(),
                                                  kinds[static_cast<size_t>(k)].key.size()),
                                list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    auto* all = new QPushButton(QStringLiteral("Select &All"));
    auto* none = new QPushButton(QStringLiteral("&Clear All"));
    auto setAll = [list](Qt::CheckState state) {
        for (int k = 0; k < list->count(); ++k)
            list->item(k)->setCheckState(state);
    };
    QObject::connect(all, &QPushButton::clicked, list, [setAll] { setAll(Qt::Checked); });
    QObject::connect(none, &QPushButton::clicked, list, [setAll] { setAll(Qt::Unchecked); });
    auto* row = new QHBoxLayout;
    row->addWidget(all);
    row->addWidget(none);
    row->addStretch();
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addLayout(row);
    layout->addWidget(okCancel(dialog));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    choices.utteranceLists.clear();
    for (int k = 0; k < list->count(); ++k)
        if (list->item(k)->checkState() == Qt::Checked)
            choices.utteranceLists.push_back(list->item(k)->text().toStdString());
    // Nothing checked shows nothing: an empty choice would mean every list.
    if (choices.utteranceLists.empty())
        return false;
    return true;
}

bool chooseOrder(const ReportDefinition& report, bool offerMazes, ReportChoices& choices,
                 QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(QString::fromUtf8(report.title.data(), report.title.size()));
    dialog.setObjectName(QStringLiteral("CTableOrderDialog"));
    auto* group = new QGroupBox(QStringLiteral("Sort Order"));
    auto* frequency = new QRadioButton(QStringLiteral("By &frequency"));
    auto* alpha = new QRadioButton(QStringLiteral("&Alphabetically"));
    frequency->setObjectName(QStringLiteral("frequency"));
    alpha->setObjectName(QStringLiteral("alpha"));
    (choices.sortAlphabetically ? alpha : frequency)->setChecked(true);
    auto* inner = new QVBoxLayout(group);
    inner->addWidget(frequency);
    inner->addWidget(alpha);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(group);
    QCheckBox* mazes = nullptr;
    if (offerMazes) {
        mazes = new QCheckBox(QStringLiteral("Include &maze words"));
        mazes->setObjectName(QStringLiteral("mazes"));
        mazes->setChecked(choices.includeMazes);
        layout->addWidget(mazes);
    }
    layout->addWidget(okCancel(dialog));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    choices.sortAlphabetically = alpha->isChecked();
    if (mazes)
        choices.includeMazes = mazes->isChecked();
    return true;
}

} // namespace

std::optional<bool> chooseTableReportOptions(const ReportDefinition& report, ReportChoices& choices,
                                             QWidget* parent) {
    const std::string_view name = report.name;
    if (name == "utterance-lists")
        return chooseUtteranceLists(choices, parent);
    if (name == "word-roots")
        return chooseOrder(report, true, choices, parent);
    if (name == "bound-morphemes" || name == "bound-clitics" || name == "word-codes" ||
        name == "utterance-codes")
        return chooseOrder(report, false, choices, parent);
    return std::nullopt;
}

} // namespace tavi::app
