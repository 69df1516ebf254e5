// The list editors of Setup > Lists.
#include "app/lists_dialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "analysis/word_lists.h"
#include "app/help_window.h"
#include "app/tavi_app.h"
#include "base/file_io.h"
#include "base/text.h"
#include "settings/keyword_file.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"

namespace tavi::app {
namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

std::string s(const QString& text) {
    return text.trimmed().toStdString();
}

// The trimmed non-empty lines of a text file; nothing when it cannot be read.
std::optional<std::vector<std::string>> fileLines(const QString& path) {
    std::string bytes;
    if (!readFile(path.toStdString(), bytes))
        return std::nullopt;
    return keywordTextLines(bytes);
}

} // namespace

std::vector<DescribedCode> defaultInsertCodes() {
    return {{"EW", "word error"},
            {"EO", "overgeneralisation error"},
            {"EU", "utterance-level error"},
            {"EP", "pronoun error"},
            {"PWR", "part-word repetition"},
            {"WWR", "whole-word repetition"},
            {"PRO", "prolongation"},
            {"BLK", "block"},
            {"NM", "nonmainstream form"},
            {"CS", "code switch"}};
}

CListEditorBase::CListEditorBase(CTAVIApp& app, const QString& title, QWidget* parent)
    : QDialog(parent), app_(app), buttons_(new QWidget),
      load_(new QPushButton(QStringLiteral("&Load from File..."))),
      programList_(new QPushButton(QStringLiteral("Program &List"))),
      saveDefault_(new QPushButton(QStringLiteral("Save as &Default"))) {
    setWindowTitle(title);
    load_->setObjectName(QStringLiteral("loadFromFile"));
    programList_->setObjectName(QStringLiteral("programList"));
    programList_->setToolTip(QStringLiteral("Go back to the list the program comes with"));
    saveDefault_->setObjectName(QStringLiteral("saveAsDefault"));
    auto* box = new QDialogButtonBox;
    box->addButton(QDialogButtonBox::Ok);
    box->addButton(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
    QPushButton* help = box->addButton(QDialogButtonBox::Help);
    help->setText(QStringLiteral("&Help"));
    auto* row = new QHBoxLayout(buttons_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(load_);
    row->addWidget(programList_);
    row->addWidget(saveDefault_);
    row->addStretch();
    row->addWidget(box);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this, [this] {
        const QString doc = QStringLiteral("docs/settings.md#lists");
        if (!openHelpWindow(app_, doc, this))
            app_.prompter().inform("Cannot open " + doc.toStdString());
    });
    connect(load_, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, QStringLiteral("Load List"), QString::fromStdString(app_.settings().folders.list),
            fileFilter());
        if (!path.isEmpty())
            loadFromFile(path);
    });
    connect(programList_, &QPushButton::clicked, this, [this] { useProgramList(); });
    connect(saveDefault_, &QPushButton::clicked, this, [this] { saveAsDefault(); });
}

// ---------------------------------------------------------------------------
// Current code, text and symbol lists

CCurrentListsDialog::CCurrentListsDialog(CTAVIApp& app, Kind kind, QWidget* parent)
    : CListEditorBase(app,
                      kind == Codes   ? QStringLiteral("Current Code Lists")
                      : kind == Texts ? QStringLiteral("Current Text Lists")
                                      : QStringLiteral("Current Symbol List"),
                      parent),
      kind_(kind), count_(kind == Codes   ? 17
                          : kind == Texts ? 10
                                          : 1) {
    setObjectName(QStringLiteral("CCurrentListsDialog"));
    const Settings& settings = app.settings();
    auto* layout = new QVBoxLayout(this);
    auto* body = new QHBoxLayout;
    layout->addLayout(body, 1);
    auto* right = new QVBoxLayout;
    if (kind_ != Symbols) {
        lists_ = kind_ == Codes ? settings.insertCodeLists : settings.insertTexts;
        titles_ = kind_ == Codes ? settings.insertCodeListTitles : settings.insertTitles;
        entries_ = new QListWidget;
        entries_->setObjectName(QStringLiteral("entries"));
        body->addWidget(entries_);
        title_ = new QLineEdit;
        title_->setObjectName(QStringLiteral("title"));
        auto* form = new QFormLayout;
        form->addRow(QStringLiteral("&Title:"), title_);
        right->addLayout(form);
    }
    if (kind_ == Texts) {
        text_ = new QLineEdit;
        text_->setObjectName(QStringLiteral("text"));
        auto* form = new QFormLayout;
        form->addRow(QStringLiteral("Te&xt:"), text_);
        right->addLayout(form);
        right->addStretch();
    } else {
        table_ = new QTableWidget(0, 2);
        table_->setObjectName(QStringLiteral("items"));
        table_->setHorizontalHeaderLabels(
            {kind_ == Codes ? QStringLiteral("Code") : QStringLiteral("Symbol"),
             QStringLiteral("Description")});
        table_->horizontalHeader()->setStretchLastSection(true);
        table_->verticalHeader()->hide();
        right->addWidget(table_, 1);
        auto* rowButtons = new QHBoxLayout;
        auto* add = new QPushButton(QStringLiteral("&Add"));
        auto* remove = new QPushButton(QStringLiteral("Re&move"));
        add->setObjectName(QStringLiteral("addItem"));
        remove->setObjectName(QStringLiteral("removeItem"));
        connect(add, &QPushButton::clicked, this, [this] {
            addRow({}, {});
            table_->setCurrentCell(table_->rowCount() - 1, 0);
            table_->editItem(table_->item(table_->rowCount() - 1, 0));
        });
        connect(remove, &QPushButton::clicked, this, [this] {
            if (table_->currentRow() >= 0)
                table_->removeRow(table_->currentRow());
        });
        rowButtons->addWidget(add);
        rowButtons->addWidget(remove);
        rowButtons->addStretch();
        right->addLayout(rowButtons);
    }
    body->addLayout(right, 2);
    if (kind_ == Codes)
        layout->addWidget(new QLabel(QStringLiteral(
            "Insert Code shows each code with its description and types the code alone.")));
    layout->addWidget(buttonRow());

    if (kind_ == Symbols) {
        const std::vector<std::string>& lines =
            settings.symbolList.empty() ? settings.symbolFileLines : settings.symbolList;
        lists_[0].clear();
        for (const std::string& line : lines)
            lists_[0] += line + "\n";
        showEntry(0);
    } else {
        fillEntries();
        connect(entries_, &QListWidget::currentRowChanged, this, [this](int row) {
            if (row >= 0 && row != shown_)
                showEntry(row);
        });
        entries_->setCurrentRow(0);
    }
    resize(640, 420);
}

void CCurrentListsDialog::fillEntries() {
    if (!entries_)
        return;
    const int current = entries_->currentRow();
    entries_->blockSignals(true);
    entries_->clear();
    for (int n = 0; n < count_; ++n) {
        const auto title = titles_.find(n);
        const auto list = lists_.find(n);
        QString text = QStringLiteral("%1. ").arg(n + 1);
        if (title != titles_.end() && !title->second.empty())
            text += q(title->second);
        else if (list == lists_.end() || list->second.empty())
            text += QStringLiteral("(empty)");
        else
            text += QStringLiteral("(untitled)");
        entries_->addItem(text);
    }
    entries_->setCurrentRow(current);
    entries_->blockSignals(false);
}

void CCurrentListsDialog::addRow(const QString& first, const QString& second) {
    const int row = table_->rowCount();
    table_->insertRow(row);
    table_->setItem(row, 0, new QTableWidgetItem(first));
    table_->setItem(row, 1, new QTableWidgetItem(second));
}

void CCurrentListsDialog::showEntry(int number) {
    if (shown_ >= 0)
        storeShown();
    shown_ = number;
    if (entries_ && entries_->currentRow() != number) {
        entries_->blockSignals(true);
        entries_->setCurrentRow(number);
        entries_->blockSignals(false);
    }
    const std::string list = lists_.contains(number) ? lists_[number] : std::string();
    if (title_)
        title_->setText(titles_.contains(number) ? q(titles_[number]) : QString());
    if (text_) {
        text_->setText(q(list));
        return;
    }
    table_->setRowCount(0);
    if (kind_ == Codes) {
        for (const DescribedCode& code : parseDescribedCodes(list))
            addRow(q(code.code), q(code.description));
        return;
    }
    for (const std::string& line : keywordTextLines(list)) {
        const size_t tab = line.find('\t');
        addRow(q(line.substr(0, tab)),
               tab == std::string::npos ? QString() : q(std::string(trim(line.substr(tab + 1)))));
    }
}

void CCurrentListsDialog::storeShown() {
    if (shown_ < 0)
        return;
    if (title_) {
        const std::string title = s(title_->text());
        if (title.empty())
            titles_.erase(shown_);
        else
            titles_[shown_] = title;
    }
    std::string list;
    if (text_) {
        list = s(text_->text());
    } else {
        std::vector<DescribedCode> rows;
        for (int row = 0; row < table_->rowCount(); ++row) {
            const QTableWidgetItem* first = table_->item(row, 0);
            const QTableWidgetItem* second = table_->item(row, 1);
            std::string item = first ? s(first->text()) : std::string();
            std::string description = second ? s(second->text()) : std::string();
            if (kind_ == Codes) {
                // "[EW]" typed with its brackets is the code EW.
                if (item.size() >= 2 && item.front() == '[' && item.back() == ']')
                    item = item.substr(1, item.size() - 2);
                rows.push_back({item, description});
            } else if (!item.empty()) {
                list += item + (description.empty() ? "" : "\t" + description) + "\n";
            }
        }
        if (kind_ == Codes)
            list = describedCodeListText(rows);
    }
    if (list.empty())
        lists_.erase(shown_);
    else
        lists_[shown_] = list;
    fillEntries();
}

std::map<int, std::string> CCurrentListsDialog::lists() const {
    const_cast<CCurrentListsDialog*>(this)->storeShown();
    return lists_;
}

std::map<int, std::string> CCurrentListsDialog::titles() const {
    const_cast<CCurrentListsDialog*>(this)->storeShown();
    return titles_;
}

std::vector<std::string> CCurrentListsDialog::symbols() const {
    const std::map<int, std::string> all = lists();
    return all.contains(0) ? keywordTextLines(all.at(0)) : std::vector<std::string>{};
}

void CCurrentListsDialog::loadFromFile(const QString& path) {
    const std::optional<std::vector<std::string>> lines = fileLines(path);
    if (!lines) {
        app().prompter().inform("Unable to open " + path.toStdString());
        return;
    }
    std::string list;
    if (kind_ == Codes) {
        std::vector<DescribedCode> codes;
        for (const std::string& line : *lines)
            for (DescribedCode& code : parseDescribedCodes(line))
                codes.push_back(std::move(code));
        list = describedCodeListText(codes);
    } else if (kind_ == Texts) {
        list = lines->empty() ? std::string() : lines->front();
    } else {
        for (const std::string& line : *lines)
            list += line + "\n";
    }
    lists_[shown_] = list;
    if (title_ && s(title_->text()).empty())
        titles_[shown_] = QFileInfo(path).completeBaseName().toStdString();
    else if (title_)
        titles_[shown_] = s(title_->text());
    const int number = shown_;
    shown_ = -1;
    showEntry(number);
    fillEntries();
}

void CCurrentListsDialog::useProgramList() {
    const int number = std::max(shown_, 0);
    shown_ = -1;
    lists_.clear();
    titles_.clear();
    if (kind_ == Codes) {
        lists_[0] = describedCodeListText(defaultInsertCodes());
        titles_[0] = "Error, fluency and other codes";
    } else if (kind_ == Symbols) {
        for (const std::string& line : app().settings().symbolFileLines)
            lists_[0] += line + "\n";
    }
    fillEntries();
    showEntry(number);
}

std::vector<std::string> CCurrentListsDialog::sectionKeywords() const {
    switch (kind_) {
    case Codes:
        return {"CURINSCODELIST", "CURINSCODELISTTITLE"};
    case Texts:
        return {"CURINSTEXT", "CURINSTITLE"};
    case Symbols:
        break;
    }
    return {"CURSYMBOLLIST"};
}

std::vector<std::string> CCurrentListsDialog::sectionLines() const {
    const std::vector<std::string> keywords = sectionKeywords();
    if (kind_ == Symbols)
        return listLines(keywords[0], symbols());
    std::vector<std::string> lines = numberedListLines(keywords[0], lists());
    for (std::string& line : numberedListLines(keywords[1], titles()))
        lines.push_back(std::move(line));
    return lines;
}

void CCurrentListsDialog::apply() {
    Settings& settings = app().settings();
    switch (kind_) {
    case Codes:
        settings.insertCodeLists = lists();
        settings.insertCodeListTitles = titles();
        break;
    case Texts:
        settings.insertTexts = lists();
        settings.insertTitles = titles();
        break;
    case Symbols:
        settings.symbolList = symbols();
        break;
    }
}

void CCurrentListsDialog::accept() {
    apply();
    QDialog::accept();
}

SaveOutcome CCurrentListsDialog::saveAsDefault() {
    Settings& settings = app().settings();
    const std::vector<std::string> keywords = sectionKeywords();
    SectionSaveRequest request;
    request.file = settings.userSettingsFile();
    request.keyword = keywords[0];
    request.lines = sectionLines();
    request.question = kSaveListQuestion;
    request.savedMessage = kListSavedIn;
    request.savingAllowed = settings.canSaveDefaults();
    const SaveOutcome outcome = saveSections(
        request, std::vector<std::string>(keywords.begin() + 1, keywords.end()), app().prompter());
    if (outcome == SaveOutcome::Saved) {
        apply();
        for (const std::string& keyword : keywords) {
            std::vector<std::string> own;
            for (const std::string& line : request.lines)
                if (keyIs(parseKeywordLine(line).keyword, keyword))
                    own.push_back(line);
            settings.replaceSectionLines(keyword, own);
        }
    }
    return outcome;
}

// ---------------------------------------------------------------------------
// Standard word lists

CStandardWordListsDialog::CStandardWordListsDialog(CTAVIApp& app, QWidget* parent)
    : CListEditorBase(app, QStringLiteral("Standard Word Lists"), parent),
      setChoice_(new QComboBox), names_(new QListWidget), title_(new QLineEdit),
      wordsEdit_(new QPlainTextEdit) {
    setObjectName(QStringLiteral("CStandardWordListsDialog"));
    setChoice_->setObjectName(QStringLiteral("languageSet"));
    names_->setObjectName(QStringLiteral("lists"));
    title_->setObjectName(QStringLiteral("title"));
    wordsEdit_->setObjectName(QStringLiteral("words"));
    setChoice_->addItems(
        {QStringLiteral("Primary language"), QStringLiteral("Alternate language 1"),
         QStringLiteral("Alternate language 2"), QStringLiteral("Other language")});

    auto* left = new QVBoxLayout;
    auto* setForm = new QFormLayout;
    setForm->addRow(QStringLiteral("Lan&guage:"), setChoice_);
    left->addLayout(setForm);
    left->addWidget(names_, 1);
    auto* right = new QVBoxLayout;
    auto* titleForm = new QFormLayout;
    titleForm->addRow(QStringLiteral("&Title:"), title_);
    right->addLayout(titleForm);
    auto* wordsLabel =
        new QLabel(QStringLiteral("&Words, one a line (\"walk*\" matches every word beginning with "
                                  "\"walk\"; \"$ have to\" is a phrase):"));
    wordsLabel->setWordWrap(true);
    wordsLabel->setBuddy(wordsEdit_);
    right->addWidget(wordsLabel);
    right->addWidget(wordsEdit_, 1);
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addLayout(right, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addWidget(buttonRow());

    kept_ = parseWordListSettings(app.settings().swlSettingsLines);
    setEntries(wordListLinesInForce(app.settings()));
    refreshNames();
    connect(setChoice_, &QComboBox::currentIndexChanged, this,
            [this](int set) { showList(set, std::max(names_->currentRow(), 0)); });
    connect(names_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row != kind_)
            showList(set_, row);
    });
    showList(0, 0);
    resize(680, 460);
}

void CStandardWordListsDialog::setEntries(const std::vector<std::string>& lines) {
    for (auto& set : words_)
        for (auto& list : set)
            list.clear();
    for (const std::string& text : lines) {
        const KeywordLine line = parseKeywordLine(text);
        if (const auto parts = wordListKeyParts(line.keyword); parts && !line.value.empty())
            words_[static_cast<size_t>(parts->first)][static_cast<size_t>(parts->second)].push_back(
                line.value);
    }
}

void CStandardWordListsDialog::refreshNames() {
    const int current = names_->currentRow();
    names_->blockSignals(true);
    names_->clear();
    for (int kind = 0; kind < static_cast<int>(kStandardWordLists.size()); ++kind)
        names_->addItem(q(wordListTitle(kept_, set_, kind)));
    names_->setCurrentRow(current < 0 ? 0 : current);
    names_->blockSignals(false);
}

void CStandardWordListsDialog::showList(int set, int kind) {
    storeShown();
    set_ = set;
    kind_ = kind;
    refreshNames();
    names_->blockSignals(true);
    names_->setCurrentRow(kind);
    names_->blockSignals(false);
    if (setChoice_->currentIndex() != set) {
        setChoice_->blockSignals(true);
        setChoice_->setCurrentIndex(set);
        setChoice_->blockSignals(false);
    }
    // Only the five extra lists take a title of the user's.
    const bool extra = kind >= 13 && kind <= 17;
    title_->setEnabled(extra);
    title_->setText(q(wordListTitle(kept_, set, kind)));
    QString text;
    for (const std::string& word : words_[static_cast<size_t>(set)][static_cast<size_t>(kind)])
        text += q(word) + QLatin1Char('\n');
    wordsEdit_->setPlainText(text);
}

void CStandardWordListsDialog::storeShown() {
    if (kind_ < 0)
        return;
    std::vector<std::string>& list = words_[static_cast<size_t>(set_)][static_cast<size_t>(kind_)];
    list.clear();
    for (const QString& line : wordsEdit_->toPlainText().split(QLatin1Char('\n'))) {
        // Blanks inside a phrase are kept as one.
        const QString word = line.simplified().toLower();
        if (!word.isEmpty())
            list.push_back(word.toStdString());
    }
    if (title_->isEnabled()) {
        const std::string key = wordListKey(set_, kind_);
        const std::string title = s(title_->text());
        if (title.empty() || title == kStandardWordLists[static_cast<size_t>(kind_)].label)
            kept_.titles.erase(key);
        else
            kept_.titles[key] = title;
    }
}

WordListSettings CStandardWordListsDialog::lists() const {
    const_cast<CStandardWordListsDialog*>(this)->storeShown();
    WordListSettings result = kept_;
    result.entries.clear();
    for (int set = 0; set < 4; ++set)
        for (int kind = 0; kind < static_cast<int>(kStandardWordLists.size()); ++kind)
            for (const std::string& word :
                 words_[static_cast<size_t>(set)][static_cast<size_t>(kind)])
                result.entries.push_back(wordListKey(set, kind) + " " + word);
    return result;
}

void CStandardWordListsDialog::loadFromFile(const QString& path) {
    const std::optional<std::vector<std::string>> lines = fileLines(path);
    if (!lines) {
        app().prompter().inform("Unable to open standard word list file (" + path.toStdString() +
                                ")");
        return;
    }
    kind_ = -1;
    setEntries(*lines);
    for (const std::string& text : *lines) {
        const KeywordLine line = parseKeywordLine(text);
        if (keyIs(line.keyword, "TITLE") && wordListKeyParts(line.subKey) && !line.rest.empty())
            kept_.titles[toUpperAscii(line.subKey)] = line.rest;
    }
    showList(set_, std::max(names_->currentRow(), 0));
}

void CStandardWordListsDialog::useProgramList() {
    kind_ = -1;
    kept_.titles.clear();
    setEntries(app().settings().standardWordListLines);
    showList(set_, std::max(names_->currentRow(), 0));
}

void CStandardWordListsDialog::apply() {
    Settings& settings = app().settings();
    settings.swlSettingsLines = wordListSettingsLines(lists());
    app().reloadMeasureResources();
}

void CStandardWordListsDialog::accept() {
    apply();
    QDialog::accept();
}

SaveOutcome CStandardWordListsDialog::saveAsDefault() {
    const SaveOutcome outcome = saveWordListSettings(lists(), app().settings(), app().prompter());
    if (outcome == SaveOutcome::Saved)
        app().reloadMeasureResources();
    return outcome;
}

} // namespace tavi::app
