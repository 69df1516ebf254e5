// The program's page setup dialog.
#include "app/page_setup_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPageSize>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavi::app {

CPageSetupDialog::CPageSetupDialog(const QPageLayout& layout, bool withMargins, QWidget* parent)
    : QDialog(parent), paper_(new QComboBox),
      portrait_(new QRadioButton(QStringLiteral("&Portrait"))),
      landscape_(new QRadioButton(QStringLiteral("&Landscape"))), initial_(layout) {
    setWindowTitle(QStringLiteral("Page Setup"));
    setObjectName(QStringLiteral("CPageSetupDialog"));
    paper_->setObjectName(QStringLiteral("Paper"));
    for (const QPageSize::PageSizeId id : {QPageSize::Letter, QPageSize::Legal, QPageSize::A4,
                                           QPageSize::A5, QPageSize::B5, QPageSize::Executive})
        paper_->addItem(QPageSize::name(id), static_cast<int>(id));
    const int current = paper_->findData(static_cast<int>(layout.pageSize().id()));
    if (current >= 0) {
        paper_->setCurrentIndex(current);
    } else {
        paper_->addItem(layout.pageSize().name(), static_cast<int>(layout.pageSize().id()));
        paper_->setCurrentIndex(paper_->count() - 1);
    }
    (layout.orientation() == QPageLayout::Landscape ? landscape_ : portrait_)->setChecked(true);

    auto* form = new QFormLayout;
    auto* paperLabel = new QLabel(QStringLiteral("Paper &size:"));
    paperLabel->setBuddy(paper_);
    form->addRow(paperLabel, paper_);
    auto* orientation = new QGroupBox(QStringLiteral("Orientation"));
    auto* row = new QHBoxLayout(orientation);
    row->addWidget(portrait_);
    row->addWidget(landscape_);
    auto* box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addWidget(orientation);
    if (withMargins) {
        margin_ = new QDoubleSpinBox;
        margin_->setObjectName(QStringLiteral("Margin"));
        margin_->setRange(0, 50);
        margin_->setDecimals(1);
        margin_->setSuffix(QStringLiteral(" mm"));
        margin_->setValue(layout.margins(QPageLayout::Millimeter).left());
        auto* marginLabel = new QLabel(QStringLiteral("&Margins:"));
        marginLabel->setBuddy(margin_);
        form->addRow(marginLabel, margin_);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    box->addWidget(buttons);
}

QPageLayout CPageSetupDialog::layout() const {
    const auto id = static_cast<QPageSize::PageSizeId>(paper_->currentData().toInt());
    const QPageSize size = id == initial_.pageSize().id() ? initial_.pageSize() : QPageSize(id);
    const QMarginsF margins =
        margin_ ? QMarginsF(margin_->value(), margin_->value(), margin_->value(), margin_->value())
                : initial_.margins(QPageLayout::Millimeter);
    const QPageLayout chosen(
        size, landscape_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait, margins,
        QPageLayout::Millimeter);
    return chosen;
}

} // namespace tavi::app
