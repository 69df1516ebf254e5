// Dialogs of the explore reports and of the customised database report.
#include "app/db_report_options_dialog.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

#include "analysis/explore_items.h"
#include "base/file_io.h"
#include "base/text.h"
#include "reports/db_custom_report.h"

namespace tavi::app {

namespace {

QString qs(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string joined(const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& item : items)
        text += (text.empty() ? "" : ", ") + item;
    return text;
}

std::vector<std::string> commaItems(const QString& text) {
    std::vector<std::string> items;
    for (const QString& part : text.split(',', Qt::SkipEmptyParts))
        if (QString item = part.trimmed(); !item.isEmpty())
            items.push_back(item.toStdString());
    return items;
}

// One line of comma-separated entries, with a button that adds the items of
// a word list file when `listFiles` is set.
bool askList(const ReportDefinition& report, const QString& prompt, bool listFiles,
             std::vector<std::string>& items, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(qs(report.title));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(prompt, &dialog));
    auto* row = new QHBoxLayout;
    auto* edit = new QLineEdit(QString::fromStdString(joined(items)), &dialog);
    edit->setObjectName("items");
    edit->setMinimumWidth(360);
    row->addWidget(edit);
    if (listFiles) {
        auto* load = new QPushButton("Word &List File...", &dialog);
        QObject::connect(load, &QPushButton::clicked, &dialog, [&dialog, edit] {
            const QString path = QFileDialog::getOpenFileName(
                &dialog, "Word List File", QString(), "Word lists (*.LST *.lst);;All files (*)");
            std::string text;
            if (path.isEmpty() || !readFile(path.toStdString(), text))
                return;
            std::vector<std::string> all = commaItems(edit->text());
            for (std::string& item : wordListFileItems(text))
                all.push_back(std::move(item));
            edit->setText(QString::fromStdString(joined(all)));
        });
        row->addWidget(load);
    }
    layout->addLayout(row);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    items = commaItems(edit->text());
    return true;
}

bool askKinds(const ReportDefinition& report, std::vector<std::string>& kinds, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(qs(report.title));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel("Reports to include:", &dialog));
    const std::vector<std::string> chosen = kinds.empty() ? defaultDbCustomKinds() : kinds;
    std::vector<std::pair<QCheckBox*, std::string>> boxes;
    for (const ReportDefinition& d : reportDefinitions()) {
        if (!dbCustomAccepts(d.name))
            continue;
        auto* box = new QCheckBox(qs(d.title), &dialog);
        box->setObjectName(qs(d.name));
        box->setChecked(std::ranges::find(chosen, std::string(d.name)) != chosen.end());
        layout->addWidget(box);
        boxes.emplace_back(box, std::string(d.name));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    kinds.clear();
    for (const auto& [box, name] : boxes)
        if (box->isChecked())
            kinds.push_back(name);
    return true;
}

} // namespace

bool hasDbReportOptions(std::string_view name) {
    return name == "explore-words-codes" || name == "explore-plus-lines" || name == "db-custom-pdf";
}

bool chooseDbReportOptions(const ReportDefinition& report, const TranscriptAnalysis& analysis,
                           ReportChoices& choices, QWidget* parent) {
    if (report.name == "explore-words-codes")
        return askList(report,
                       "Words and codes to count, separated by commas (codes in brackets, "
                       "e.g. [EW]; a final * matches any ending):",
                       true, choices.exploreItems, parent);
    if (report.name == "explore-plus-lines") {
        if (choices.plusLines.empty())
            choices.plusLines = numericPlusLines(analysis.check.segmented);
        return askList(report, "\"+\" lines to compare, separated by commas:", false,
                       choices.plusLines, parent);
    }
    return askKinds(report, choices.kinds, parent);
}

} // namespace tavi::app
