// Choosing a code, text or symbol to insert.
#include "app/insert_list_dialog.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "analysis/code_lists.h"
#include "app/lists_dialogs.h"
#include "settings/settings.h"

namespace tavi::app {
namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

// A code as the list shows it: the code, then its description when it has one.
InsertEntry codeEntry(const DescribedCode& code) {
    const QString bracketed = q("[" + code.code + "]");
    return {code.description.empty() ? bracketed
                                     : bracketed + QStringLiteral("   ") + q(code.description),
            bracketed};
}

// The codes of the saved code lists, in list order, each once; while no code
// list was saved, the error, fluency, nonmainstream-form and code-switch codes.
std::vector<InsertEntry> codeEntries(const Settings& settings) {
    std::vector<InsertEntry> entries;
    for (const auto& [number, list] : settings.insertCodeLists)
        for (const DescribedCode& code : parseDescribedCodes(list)) {
            InsertEntry entry = codeEntry(code);
            const bool seen = std::any_of(entries.begin(), entries.end(), [&](const auto& e) {
                return e.second == entry.second && e.first == entry.first;
            });
            if (!seen)
                entries.push_back(std::move(entry));
        }
    if (entries.empty())
        for (const DescribedCode& code : defaultInsertCodes())
            entries.push_back(codeEntry(code));
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
