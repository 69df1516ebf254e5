// Choosing a code, text or symbol to insert.
#include "app/insert_list_dialog.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

#include "analysis/code_lists.h"
#include "settings/settings.h"

namespace tavi::app {
namespace {

// Codes offered while no code list was saved: the error, fluency,
// nonmainstream-form and code-switch codes of the default code lists.
constexpr const char* kDefaultCodes[] = {"EW",  "EO",  "EU",  "EP", "PWR",
                                         "WWR", "PRO", "BLK", "NM", "CS"};

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

std::vector<InsertEntry> codeEntries(const Settings& settings) {
    std::vector<InsertEntry> entries;
    for (const auto& [number, list] : settings.insertCodeLists)
        for (const std::string& code : parseCodeItems(list))
            entries.emplace_back(q("[" + code + "]"), q("[" + code + "]"));
    if (entries.empty())
        for (const char* code : kDefaultCodes)
            entries.emplace_back(QStringLiteral("[%1]").arg(QLatin1String(code)),
                                 QStringLiteral("[%1]").arg(QLatin1String(code)));
    return entries;
}

std::vector<InsertEntry> textEntries(const Settings& settings) {
    std::vector<InsertEntry> entries;
    for (const auto& [number, text] : settings.insertTexts) {
        const auto title = settings.insertTitles.find(number);
        const std::string shown = title != settings.insertTitles.end() && !title->second.empty()
                                      ? title->second + ": " + text
                                      : text;
        entries.emplace_back(q(shown), q(text));
    }
    return entries;
}

std::vector<InsertEntry> symbolEntries(const Settings& settings) {
    std::vector<InsertEntry> entries;
    const std::vector<std::string>& lines =
        settings.symbolList.empty() ? settings.symbolFileLines : settings.symbolList;
    for (const std::string& line : lines) {
        const size_t tab = line.find('\t');
        const std::string symbol = line.substr(0, tab);
        if (symbol.empty())
            continue;
        entries.emplace_back(
            q(tab == std::string::npos ? line : symbol + "    " + line.substr(tab + 1)), q(symbol));
    }
    return entries;
}

} // namespace

std::vector<InsertEntry> currentInsertList(const Settings& settings, InsertKind kind) {
    switch (kind) {
    case InsertKind::Code:
        return codeEntries(settings);
    case InsertKind::Text:
        return textEntries(settings);
    case InsertKind::Symbol:
        break;
    }
    return symbolEntries(settings);
}

CInsertListDialog::CInsertListDialog(const QString& title, std::vector<InsertEntry> entries,
                                     QWidget* parent)
    : QDialog(parent), entries_(std::move(entries)), list_(new QListWidget) {
    setWindowTitle(title);
    setObjectName(QStringLiteral("CInsertListDialog"));
    list_->setObjectName(QStringLiteral("entries"));
    for (const InsertEntry& e : entries_)
        list_->addItem(e.first);
    if (!entries_.empty())
        list_->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list_);
    layout->addWidget(buttons);
    resize(420, 360);
}

QString CInsertListDialog::chosenText() const {
    const int row = list_->currentRow();
    return row >= 0 && row < static_cast<int>(entries_.size())
               ? entries_[static_cast<size_t>(row)].second
               : QString();
}

} // namespace tavi::app
