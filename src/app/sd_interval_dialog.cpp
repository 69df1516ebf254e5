// Choosing the SD interval of database comparisons.
#include "app/sd_interval_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "analysis/peer_stats.h"
#include "app/tavi_app.h"

namespace tavi::app {
namespace {

float intervalOfSettings(const Settings& settings) {
    const auto found = settings.databaseDefaults.find("SDINT");
    return found == settings.databaseDefaults.end() ? kDefaultSdInterval
                                                    : sdIntervalFromText(found->second);
}

} // namespace

float sdIntervalValue(const QString& text) {
    bool ok = false;
    const float value = text.trimmed().toFloat(&ok);
    return ok && value > 0.0f && value <= kMaxSdInterval ? value : 0.0f;
}

CSdIntervalDialog::CSdIntervalDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Database Stats (%SD)"), parent),
      interval_(new QLineEdit) {
    setObjectName(QStringLiteral("CSdIntervalDialog"));
    interval_->setObjectName(QStringLiteral("sdInterval"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(
        QStringLiteral("Values at or beyond this many standard deviations from the database "
                       "mean are reported as above or below it.\nSD interval:")));
    layout->addWidget(interval_);
    layout->addWidget(buttons());
    interval_->setText(QString::fromStdString(shortestFloat(intervalOfSettings(app.settings()))));
}

void CSdIntervalDialog::resetValues() {
    interval_->setText(QString::fromStdString(shortestFloat(kDefaultSdInterval)));
}

std::vector<std::string> CSdIntervalDialog::sectionLines() const {
    return {"SDINT " + shortestFloat(sdIntervalValue(interval_->text()))};
}

std::string_view CSdIntervalDialog::saveQuestion() const {
    return "Would you like to save this SD interval setting as the program default?";
}

bool CSdIntervalDialog::validate() {
    if (sdIntervalValue(interval_->text()) > 0.0f)
        return true;
    app().prompter().inform(kBadSdInterval);
    interval_->setFocus();
    interval_->selectAll();
    return false;
}

void CSdIntervalDialog::apply() {
    app().settings().databaseDefaults["SDINT"] = shortestFloat(sdIntervalValue(interval_->text()));
}

} // namespace tavi::app
