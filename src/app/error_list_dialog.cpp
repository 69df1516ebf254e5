// Listing checker problems and going to their lines.
#include "app/error_list_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/palette_colours.h"
#include "app/tavi_doc.h"
#include "app/tavi_view.h"
#include "transcript/check_listing.h"

namespace tavi::app {

CErrorListDialog::CErrorListDialog(CTAVIView& view, const std::vector<err>& problems,
                                   const QString& question, QWidget* parent)
    : QDialog(parent), view_(&view), problems_(problems), list_(new QListWidget) {
    setObjectName(QStringLiteral("CErrorListDialog"));
    setWindowTitle(QStringLiteral("Errors - ") + view.doc().title());
    list_->setObjectName(QStringLiteral("problemList"));
    int errors = 0;
    int warnings = 0;
    for (const err& e : problems_) {
        (e.isWarning() ? warnings : errors)++;
        auto* row = new QListWidgetItem(QString::fromStdString(formatProblem(e)), list_);
        row->setForeground(
            readableOn(e.isWarning() ? QColor(0x8a, 0x5a, 0x00) : QColor(Qt::darkRed),
                       list_->palette().color(QPalette::Base)));
    }
    connect(list_, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { goToRow(list_->row(item)); });

    auto* layout = new QVBoxLayout(this);
    if (!question.isEmpty()) {
        auto* ask = new QLabel(question);
        ask->setObjectName(QStringLiteral("question"));
        ask->setWordWrap(true);
        layout->addWidget(ask);
    }
    layout->addWidget(list_);
    auto* summary = new QLabel(QString::fromStdString(checkSummary(errors, warnings)));
    summary->setObjectName(QStringLiteral("summary"));
    layout->addWidget(summary);
    auto* buttons = new QDialogButtonBox;
    if (question.isEmpty()) {
        buttons->addButton(QDialogButtonBox::Close);
    } else {
        buttons->addButton(QStringLiteral("C&ontinue"), QDialogButtonBox::AcceptRole)
            ->setObjectName(QStringLiteral("continue"));
        buttons->addButton(QDialogButtonBox::Cancel);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(640, 360);
}

void CErrorListDialog::goToRow(int row) {
    if (view_ && row >= 0 && row < static_cast<int>(problems_.size()))
        view_->goToLine(problems_[static_cast<size_t>(row)].line);
}

} // namespace tavi::app
