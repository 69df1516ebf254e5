// Setup > Lists: the editors of the standard word lists (TAVI_SWL.ini) and of
// the current code, text and symbol lists that Edit > Insert Code, Insert
// Text and Insert Symbol offer (their sections of TAVI.ini). Each applies to
// the session on OK, loads a list from a file, goes back to the program's
// list, and saves as the program default with "List and settings saved in ".
#pragma once

#include <QDialog>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "analysis/code_lists.h"
#include "settings/save_outcome.h"
#include "settings/word_list_settings.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace tavi::app {

class CTAVIApp;

// The codes Insert Code offers while no code list was saved, with what they mean.
std::vector<DescribedCode> defaultInsertCodes();

// The buttons every list editor shares: OK, "&Cancel", "&Load from File...",
// "Program &List" (back to the program's list), "Save as &Default", "&Help".
class CListEditorBase : public QDialog {
    Q_OBJECT
public:
    QPushButton* loadButton() const { return load_; }
    QPushButton* programListButton() const { return programList_; }
    QPushButton* saveDefaultButton() const { return saveDefault_; }
    // Saves the shown lists as the program default (and, when saved, takes them
    // into the session).
    virtual SaveOutcome saveAsDefault() = 0;

protected:
    CListEditorBase(CTAVIApp& app, const QString& title, QWidget* parent);
    QWidget* buttonRow() const { return buttons_; }
    CTAVIApp& app() const { return app_; }
    virtual void loadFromFile(const QString& path) = 0;
    virtual void useProgramList() = 0;
    virtual void apply() = 0; // takes the shown lists into the session
    virtual QString fileFilter() const {
        return QStringLiteral("Text files (*.txt *.TXT);;All files (*)");
    }

private:
    CTAVIApp& app_;
    QWidget* buttons_;
    QPushButton* load_;
    QPushButton* programList_;
    QPushButton* saveDefault_;
};

// Current Code Lists (17 lists, 0..16), Current Text Lists (10, 0..9) and
// Current Symbol List (one list).
class CCurrentListsDialog final : public CListEditorBase {
    Q_OBJECT
public:
    enum Kind { Codes, Texts, Symbols };
    CCurrentListsDialog(CTAVIApp& app, Kind kind, QWidget* parent = nullptr);

    SaveOutcome saveAsDefault() override;
    // The lists as shown (the entry on screen included).
    std::map<int, std::string> lists() const;
    std::map<int, std::string> titles() const;
    std::vector<std::string> symbols() const;
    void showEntry(int number);
    void accept() override; // takes the lists into the session

protected:
    void loadFromFile(const QString& path) override;
    void useProgramList() override;
    void apply() override;

private:
    void storeShown();
    void fillEntries();
    void addRow(const QString& first, const QString& second);
    std::vector<std::string> sectionKeywords() const;
    std::vector<std::string> sectionLines() const;

    Kind kind_;
    int count_;
    int shown_ = -1;
    std::map<int, std::string> lists_;
    std::map<int, std::string> titles_;
    QListWidget* entries_ = nullptr;
    QLineEdit* title_ = nullptr;
    QLineEdit* text_ = nullptr;     // text lists
    QTableWidget* table_ = nullptr; // codes with descriptions, symbols with descriptions
};

// Standard Word Lists: the twenty lists of each language set, the titles of
// the five extra lists, saved to TAVI_SWL.ini.
class CStandardWordListsDialog final : public CListEditorBase {
    Q_OBJECT
public:
    CStandardWordListsDialog(CTAVIApp& app, QWidget* parent = nullptr);

    SaveOutcome saveAsDefault() override;
    WordListSettings lists() const;
    void showList(int set, int kind);
    void accept() override; // takes the lists into the session

protected:
    void loadFromFile(const QString& path) override;
    void useProgramList() override;
    void apply() override;

private:
    void storeShown();
    void setEntries(const std::vector<std::string>& lines);
    void refreshNames();

    // The entries of each list, as written after the list key ("what", "$ have to").
    std::array<std::array<std::vector<std::string>, 20>, 4> words_;
    WordListSettings kept_; // titles and the lines the editor does not own
    int set_ = 0;
    int kind_ = -1;
    QComboBox* setChoice_;
    QListWidget* names_;
    QLineEdit* title_;
    QPlainTextEdit* wordsEdit_;
};

} // namespace tavi::app
