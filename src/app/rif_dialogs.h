// The dialogs of root identification and grammatical-category coding: the
// choice of a root for one word, the RIF settings, the editor of a root
// identification file, and the options of Insert Grammatical Category Codes.
#pragma once

#include <QDialog>
#include <QString>

#include "analysis/rif_file.h"
#include "app/options_dialog.h"
#include "explore/word_marking.h"
#include "settings/rif_settings.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableWidget;

namespace tavi::app {

class CTAVIApp;

// One word at a time: the utterance with the word in bold, its choices, and
// Replace / Skip / Cancel.
class CIdentifyRootsDialog final : public QDialog {
    Q_OBJECT
public:
    enum Outcome { Cancelled = 0, Replace = 1, Skip = 2 };

    CIdentifyRootsDialog(const RootCandidate& candidate, bool replaceAll, int remaining,
                         QWidget* parent = nullptr);
    int chosen() const;      // index into the candidate's choices
    bool replaceAll() const; // use the choice for the form's later occurrences

private:
    QListWidget* choices_;
    QCheckBox* replaceAll_;
};

// "RIF Settings": per language slot the language name and the file, and the
// default of "use for every occurrence".
class CRifSettingsDialog final : public COptionsDialog {
    Q_OBJECT
public:
    CRifSettingsDialog(CTAVIApp& app, QWidget* parent = nullptr);
    RifSettings values() const;
    void setValues(const RifSettings& rif);

protected:
    void resetValues() override { setValues(RifSettings{}); }
    std::string sectionKeyword() const override { return "RIFSET"; }
    std::vector<std::string> sectionLines() const override { return rifSettingsLines(values()); }
    QString helpDocument() const override {
        return QStringLiteral("docs/root-identification.md#rif-settings");
    }
    void apply() override;

private:
    QLineEdit* languages_[kLanguageSlotCount];
    QLineEdit* files_[kLanguageSlotCount];
    QCheckBox* replaceAll_;
};

// "Edit RIF File Contents": the words of one file in a table (word, roots,
// replacements), with Add, Delete, Find, Import and Save.
class CRifEditorDialog final : public QDialog {
    Q_OBJECT
public:
    CRifEditorDialog(CTAVIApp& app, const QString& path, QWidget* parent = nullptr);

    QString path() const { return path_; }
    // The words as the table holds them; empty when a row breaks the form
    // (its message was shown).
    std::optional<RifWords> words();
    void setWords(const RifWords& words);
    // Writes the file; true when it was written. A file of the program's
    // data folder is never written: Save asks where to keep a copy.
    bool save();
    bool saveAs();
    // Imports a word list ("word:defn1,defn2:replace1,replace2" lines).
    void importFile(const QString& file);
    void find(const QString& text);
    bool modified() const { return modified_; }

    void reject() override;

private:
    void load(const QString& path);
    bool isProgramFile() const;
    void addRow(const RifEntry& entry);

    CTAVIApp& app_;
    QString path_;
    QLabel* pathLabel_;
    QLineEdit* find_;
    QTableWidget* table_;
    bool modified_ = false;
};

// "Insert Grammatical Category Codes": which speaker, whether coded words are
// skipped, and which categories are written.
class CInsertGcDialog final : public QDialog {
    Q_OBJECT
public:
    CInsertGcDialog(const std::map<int, std::string>& gcCodes, QWidget* parent = nullptr);
    CategoryCodeOptions options() const;

private:
    QComboBox* speaker_;
    QCheckBox* skipCoded_;
    QListWidget* categories_;
    std::array<std::string, kGrammaticalCategoryTable.size()> codes_;
};

} // namespace tavi::app
