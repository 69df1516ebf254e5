// Choosing the moving-average window.
#include "app/window_size_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "app/tavi_app.h"
#include "base/format.h"

namespace tavi::app {

CWindowSizeDialog::CWindowSizeDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Moving-Average Window Size"), parent),
      size_(new QLineEdit) {
    setObjectName(QStringLiteral("CWindowSizeDialog"));
    size_->setObjectName(QStringLiteral("windowSize"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Number of words in each window:")));
    layout->addWidget(size_);
    layout->addWidget(buttons());
    size_->setText(QString::number(app.settings().movingAverageWindow));
}

void CWindowSizeDialog::setText(const QString& text) {
    size_->setText(text);
}

void CWindowSizeDialog::resetValues() {
    size_->setText(QString::number(Settings().movingAverageWindow));
}

int CWindowSizeDialog::value() const {
    bool ok = false;
    const int n = size_->text().trimmed().toInt(&ok);
    return ok ? n : 0;
}

bool CWindowSizeDialog::validate() {
    const int n = value();
    if (n >= kMovingAverageWindowMin && n <= kMovingAverageWindowMax)
        return true;
    app().prompter().inform(tavi::format("Enter a number between %d and %d.",
                                         kMovingAverageWindowMin, kMovingAverageWindowMax));
    size_->setFocus();
    size_->selectAll();
    return false;
}

std::vector<std::string> CWindowSizeDialog::sectionLines() const {
    return {tavi::format("MATTRSET WINDOW %d", value())};
}

void CWindowSizeDialog::apply() {
    app().settings().movingAverageWindow = value();
}

} // namespace tavi::app
