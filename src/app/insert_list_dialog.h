// The dialogs of Insert Code, Insert Text and Insert Symbol: the current list
// of codes, texts or symbols, from which the chosen entry is typed into the
// transcript at the caret.
#pragma once

#include <QDialog>
#include <QString>
#include <utility>
#include <vector>

class QListWidget;

namespace tavi {
struct Settings;
}

namespace tavi::app {

// One entry: what the list shows and what is inserted.
using InsertEntry = std::pair<QString, QString>;

enum class InsertKind { Code, Text, Symbol };

// The current list of one kind, from the settings (the code and text lists
// saved as defaults, the symbol list or else the symbol file).
std::vector<InsertEntry> currentInsertList(const Settings& settings, InsertKind kind);

class CInsertListDialog final : public QDialog {
    Q_OBJECT
public:
    CInsertListDialog(const QString& title, std::vector<InsertEntry> entries,
                      QWidget* parent = nullptr);
    // The text to insert; empty when nothing is chosen.
    QString chosenText() const;
    QListWidget& list() { return *list_; }

private:
    std::vector<InsertEntry> entries_;
    QListWidget* list_;
};

} // namespace tavi::app
