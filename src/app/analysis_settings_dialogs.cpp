// The Timing Lines and Default Databases dialogs.
#include "app/analysis_settings_dialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/tavi_app.h"
#include "settings/section_lines.h"

namespace tavi::app {
namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

std::string databaseDefault(const Settings& settings, const char* keyword) {
    const auto found = settings.databaseDefaults.find(keyword);
    return found == settings.databaseDefaults.end() ? std::string() : found->second;
}

} // namespace

CTimingLinesDialog::CTimingLinesDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Timing Lines"), parent),
      subtract_(new QCheckBox(QStringLiteral("&Subtract the starting time from the elapsed time"))),
      ignorePlus_(new QCheckBox(QStringLiteral("Ignore &timing lines in the header lines"))),
      ignoreEqual_(new QCheckBox(QStringLiteral("Ignore timing lines &equal to the one before"))) {
    setObjectName(QStringLiteral("CTimingLinesDialog"));
    subtract_->setObjectName(QStringLiteral("subtract"));
    ignorePlus_->setObjectName(QStringLiteral("ignorePlus"));
    ignoreEqual_->setObjectName(QStringLiteral("ignoreEqual"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral(
        "How the elapsed time of a sample is read from its timing lines (\"- 1:30\"):")));
    layout->addWidget(subtract_);
    layout->addWidget(ignorePlus_);
    layout->addWidget(ignoreEqual_);
    layout->addWidget(buttons());
    setFlags(app.settings().timingLines);
}

TimingLineFlags CTimingLinesDialog::flags() const {
    return {subtract_->isChecked(), ignorePlus_->isChecked(), ignoreEqual_->isChecked()};
}

void CTimingLinesDialog::setFlags(const TimingLineFlags& flags) {
    subtract_->setChecked(flags.subtract);
    ignorePlus_->setChecked(flags.ignorePlus);
    ignoreEqual_->setChecked(flags.ignoreEqual);
}

std::vector<std::string> CTimingLinesDialog::sectionLines() const {
    return timingLineLines(flags());
}

void CTimingLinesDialog::apply() {
    app().settings().timingLines = flags();
}

CDefaultDatabaseDialog::CDefaultDatabaseDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Default Databases"), parent), name_(new QLineEdit),
      path_(new QLineEdit),
      include_(new QCheckBox(QStringLiteral("&Include %SD statistics in database comparisons"))) {
    setObjectName(QStringLiteral("CDefaultDatabaseDialog"));
    name_->setObjectName(QStringLiteral("databaseName"));
    path_->setObjectName(QStringLiteral("databasePath"));
    include_->setObjectName(QStringLiteral("pcsdInclude"));
    auto* browse = new QPushButton(QStringLiteral("&Browse..."));
    browse->setObjectName(QStringLiteral("browse"));
    connect(browse, &QPushButton::clicked, this, [this] { this->browse(); });

    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(path_, 1);
    pathRow->addWidget(browse);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Database &file name:"), name_);
    auto* folderLabel = new QLabel(QStringLiteral("&Folder:"));
    folderLabel->setBuddy(path_); // a row of two widgets gives the label no field of its own
    form->addRow(folderLabel, pathRow);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(QStringLiteral("The reference database a new database comparison starts with\n"
                                  "(leave the name empty to choose one each time):")));
    layout->addLayout(form);
    layout->addWidget(include_);
    layout->addWidget(buttons());

    const Settings& settings = app.settings();
    name_->setText(q(databaseDefault(settings, "DEFDBNAME")));
    path_->setText(q(databaseDefault(settings, "DEFDBPATH")));
    include_->setChecked(settings.pcsdInclude);
    resize(520, sizeHint().height());
}

void CDefaultDatabaseDialog::browse() {
    QString start = path_->text();
    if (start.isEmpty())
        start = q(app().settings().folders.database);
    const QString file = QFileDialog::getOpenFileName(
        this, QStringLiteral("Default Database"), start,
        QStringLiteral("Reference databases (*.tvidb);;All files (*)"));
    if (file.isEmpty())
        return;
    const QFileInfo info(file);
    name_->setText(info.fileName());
    QString folder = info.absolutePath();
    if (!folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    path_->setText(folder);
}

void CDefaultDatabaseDialog::resetValues() {
    name_->clear();
    path_->clear();
    include_->setChecked(false);
}

std::vector<std::string> CDefaultDatabaseDialog::sectionLines() const {
    return defaultDatabaseLines(name_->text().trimmed().toStdString(),
                                path_->text().trimmed().toStdString(), include_->isChecked());
}

void CDefaultDatabaseDialog::apply() {
    Settings& settings = app().settings();
    const std::string name = name_->text().trimmed().toStdString();
    const std::string path = path_->text().trimmed().toStdString();
    auto set = [&](const char* keyword, const std::string& value) {
        if (value.empty())
            settings.databaseDefaults.erase(keyword);
        else
            settings.databaseDefaults[keyword] = value;
    };
    set("DEFDBNAME", name);
    set("DEFDBPATH", path);
    settings.pcsdInclude = include_->isChecked();
}

} // namespace tavi::app
