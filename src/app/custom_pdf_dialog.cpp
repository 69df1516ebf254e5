// Choosing the reports of a customised PDF.
#include "app/custom_pdf_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tavi::app {

namespace {

QString qtext(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

CCustomPdfDialog::CCustomPdfDialog(const std::vector<const ReportDefinition*>& choices,
                                   const std::vector<std::string>& checked, QWidget* parent)
    : QDialog(parent), choices_(choices), list_(new QListWidget) {
    setObjectName(QStringLiteral("CCustomPdfDialog"));
    setWindowTitle(QStringLiteral("Create Customized PDF Report"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Reports to include:")));
    for (const ReportDefinition* report : choices_) {
        auto* item = new QListWidgetItem(qtext(report->title), list_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        const bool on = std::ranges::find(checked, std::string(report->name)) != checked.end();
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    layout->addWidget(list_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* all =
        buttons->addButton(QStringLiteral("Select &All"), QDialogButtonBox::ActionRole);
    QPushButton* none =
        buttons->addButton(QStringLiteral("&Clear All"), QDialogButtonBox::ActionRole);
    auto checkAll = [this](Qt::CheckState state) {
        for (int i = 0; i < list_->count(); ++i)
            list_->item(i)->setCheckState(state);
    };
    connect(all, &QPushButton::clicked, this, [checkAll] { checkAll(Qt::Checked); });
    connect(none, &QPushButton::clicked, this, [checkAll] { checkAll(Qt::Unchecked); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

std::vector<std::string> CCustomPdfDialog::kinds() const {
    std::vector<std::string> names;
    for (int i = 0; i < list_->count(); ++i)
        if (list_->item(i)->checkState() == Qt::Checked)
            names.emplace_back(choices_[static_cast<size_t>(i)]->name);
    return names;
}

} // namespace tavi::app
