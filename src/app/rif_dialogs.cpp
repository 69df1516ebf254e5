// Root identification and grammatical-category coding dialogs.
#include "app/rif_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/help_window.h"
#include "app/qt_prompter.h"
#include "app/tavi_app.h"
#include "base/file_io.h"
#include "base/format.h"

namespace tavi::app {

namespace {

QString qs(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The utterance line with the bytes [from, to) in bold.
QString markedLine(const std::string& line, size_t from, size_t to) {
    return qs(std::string_view(line).substr(0, from)).toHtmlEscaped() + QStringLiteral("<b><u>") +
           qs(std::string_view(line).substr(from, to - from)).toHtmlEscaped() +
           QStringLiteral("</u></b>") + qs(std::string_view(line).substr(to)).toHtmlEscaped();
}

constexpr const char* kSlotNames[kLanguageSlotCount] = {"Primary language", "First alternate",
                                                        "Second alternate", "Other language"};

std::string joinItems(const std::vector<std::string>& items) {
    std::string out;
    for (const std::string& item : items)
        out += (out.empty() ? "" : ", ") + item;
    return out;
}

std::vector<std::string> splitItems(const QString& text) {
    std::vector<std::string> items;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts))
        if (const QString item = part.trimmed(); !item.isEmpty())
            items.push_back(item.toStdString());
    return items;
}

// A folder as shown and opened: without its trailing "/".
QString folderName(const std::string& folder) {
    QString name = QString::fromStdString(folder);
    while (name.size() > 1 && name.endsWith(QLatin1Char('/')))
        name.chop(1);
    return name;
}

} // namespace

// ---------------------------------------------------------------------------

CIdentifyRootsDialog::CIdentifyRootsDialog(const RootCandidate& candidate, bool replaceAll,
                                           int remaining, QWidget* parent)
    : QDialog(parent), choices_(new QListWidget), replaceAll_(new QCheckBox) {
    setObjectName(QStringLiteral("CIdentifyRootsDialog"));
    setWindowTitle(QStringLiteral("Identify Roots"));
    auto* layout = new QVBoxLayout(this);
    auto* where = new QLabel(
        QStringLiteral("Entry %1 (%2 words left to look at):").arg(candidate.line).arg(remaining));
    auto* line = new QLabel(markedLine(candidate.lineText, candidate.wordStart, candidate.wordEnd));
    line->setObjectName(QStringLiteral("utterance"));
    line->setTextFormat(Qt::RichText);
    line->setWordWrap(true);
    layout->addWidget(where);
    layout->addWidget(line);
    auto* prompt =
        new QLabel(QStringLiteral("&Roots and replacements for \"%1\":").arg(qs(candidate.form)));
    prompt->setBuddy(choices_);
    layout->addWidget(prompt);
    choices_->setObjectName(QStringLiteral("choices"));
    for (const RootChoice& c : candidate.choices) {
        auto* item = new QListWidgetItem(
            c.replacement ? qs(c.label)
                          : QStringLiteral("%1   (root %2)").arg(qs(c.text), qs(c.label)),
            choices_);
        item->setToolTip(QStringLiteral("Written as: %1").arg(qs(c.text)));
    }
    choices_->setCurrentRow(0);
    layout->addWidget(choices_);
    replaceAll_->setObjectName(QStringLiteral("replaceAll"));
    replaceAll_->setText(
        QStringLiteral("Use this choice for &every later \"%1\"").arg(qs(candidate.form)));
    replaceAll_->setChecked(replaceAll);
    layout->addWidget(replaceAll_);
    auto* buttons = new QDialogButtonBox;
    QPushButton* replace =
        buttons->addButton(QStringLiteral("&Replace"), QDialogButtonBox::AcceptRole);
    replace->setObjectName(QStringLiteral("replace"));
    replace->setDefault(true);
    QPushButton* skip = buttons->addButton(QStringLiteral("&Skip"), QDialogButtonBox::ActionRole);
    skip->setObjectName(QStringLiteral("skip"));
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setText(QStringLiteral("Cancel"));
    connect(replace, &QPushButton::clicked, this, [this] { done(Replace); });
    connect(skip, &QPushButton::clicked, this, [this] { done(Skip); });
    connect(cancel, &QPushButton::clicked, this, [this] { done(Cancelled); });
    connect(choices_, &QListWidget::itemDoubleClicked, this, [this] { done(Replace); });
    layout->addWidget(buttons);
}

int CIdentifyRootsDialog::chosen() const {
    return std::max(0, choices_->currentRow());
}

bool CIdentifyRootsDialog::replaceAll() const {
    return replaceAll_->isChecked();
}

// ---------------------------------------------------------------------------

CRifSettingsDialog::CRifSettingsDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("RIF Settings"), parent), replaceAll_(new QCheckBox) {
    setObjectName(QStringLiteral("CRifSettingsDialog"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(
        new QLabel(QStringLiteral("Root identification files are looked for in the RIF folder:\n%1")
                       .arg(folderName(app.settings().folders.rif))));
    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Slot")), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Transcript language (+Language:)")), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Root identification file")), 0, 2);
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        languages_[s] = new QLineEdit;
        languages_[s]->setObjectName(QStringLiteral("language%1").arg(s));
        files_[s] = new QLineEdit;
        files_[s]->setObjectName(QStringLiteral("file%1").arg(s));
        files_[s]->setMinimumWidth(220);
        auto* browse = new QPushButton(QStringLiteral("Browse..."));
        QLineEdit* file = files_[s];
        connect(browse, &QPushButton::clicked, this, [this, file] {
            const QString chosen = QFileDialog::getOpenFileName(
                this, QStringLiteral("Root Identification File"),
                folderName(this->app().settings().folders.rif),
                QStringLiteral("Root identification files (*.rif);;All files (*)"));
            if (chosen.isEmpty())
                return;
            // A file in the RIF folder is kept by its name alone.
            const QString folder = folderName(this->app().settings().folders.rif);
            file->setText(QFileInfo(chosen).absolutePath() == QFileInfo(folder).absoluteFilePath()
                              ? QFileInfo(chosen).fileName()
                              : chosen);
        });
        auto* label = new QLabel(QString::fromLatin1(kSlotNames[s]));
        label->setBuddy(languages_[s]);
        grid->addWidget(label, s + 1, 0);
        grid->addWidget(languages_[s], s + 1, 1);
        grid->addWidget(files_[s], s + 1, 2);
        grid->addWidget(browse, s + 1, 3);
    }
    layout->addLayout(grid);
    layout->addWidget(new QLabel(QStringLiteral(
        "A transcript whose +Language: line names no slot uses the primary language's file.")));
    replaceAll_->setObjectName(QStringLiteral("replaceAll"));
    replaceAll_->setText(
        QStringLiteral("&Use a chosen root for every later occurrence of the same word"));
    layout->addWidget(replaceAll_);
    layout->addWidget(buttons());
    setValues(rifSettings(app.settings()));
}

RifSettings CRifSettingsDialog::values() const {
    RifSettings rif;
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        rif.languages[static_cast<size_t>(s)] = languages_[s]->text().trimmed().toStdString();
        rif.files[static_cast<size_t>(s)] = files_[s]->text().trimmed().toStdString();
    }
    rif.replaceAll = replaceAll_->isChecked();
    return rif;
}

void CRifSettingsDialog::setValues(const RifSettings& rif) {
    for (int s = 0; s < kLanguageSlotCount; ++s) {
        languages_[s]->setText(qs(rif.languages[static_cast<size_t>(s)]));
        files_[s]->setText(qs(rif.files[static_cast<size_t>(s)]));
    }
    replaceAll_->setChecked(rif.replaceAll);
}

void CRifSettingsDialog::apply() {
    app().settings().replaceSectionLines("RIFSET", rifSettingsLines(values()));
}

// ---------------------------------------------------------------------------

CRifEditorDialog::CRifEditorDialog(CTAVIApp& app, const QString& path, QWidget* parent)
    : QDialog(parent), app_(app), pathLabel_(new QLabel), find_(new QLineEdit),
      table_(new QTableWidget(0, 3)) {
    setObjectName(QStringLiteral("CRifEditorDialog"));
    setWindowTitle(QStringLiteral("Edit RIF File Contents"));
    resize(640, 480);
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    pathLabel_->setObjectName(QStringLiteral("path"));
    pathLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    top->addWidget(pathLabel_, 1);
    auto* open = new QPushButton(QStringLiteral("&Open..."));
    top->addWidget(open);
    layout->addLayout(top);

    auto* findRow = new QHBoxLayout;
    auto* findLabel = new QLabel(QStringLiteral("F&ind word:"));
    findLabel->setBuddy(find_);
    find_->setObjectName(QStringLiteral("find"));
    auto* findButton = new QPushButton(QStringLiteral("Find &Next"));
    findRow->addWidget(findLabel);
    findRow->addWidget(find_, 1);
    findRow->addWidget(findButton);
    layout->addLayout(findRow);

    table_->setObjectName(QStringLiteral("words"));
    table_->setHorizontalHeaderLabels(
        {QStringLiteral("Word"), QStringLiteral("Roots"), QStringLiteral("Replacements")});
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->setVisible(false);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    layout->addWidget(table_, 1);
    layout->addWidget(new QLabel(QStringLiteral(
        "Separate several roots or replacements with commas. A root is written after the word "
        "as word|root; a replacement is written in place of the word.")));

    auto* buttons = new QDialogButtonBox;
    QPushButton* add = buttons->addButton(QStringLiteral("&Add"), QDialogButtonBox::ActionRole);
    QPushButton* remove =
        buttons->addButton(QStringLiteral("&Delete"), QDialogButtonBox::ActionRole);
    QPushButton* import =
        buttons->addButton(QStringLiteral("I&mport..."), QDialogButtonBox::ActionRole);
    QPushButton* saveButton =
        buttons->addButton(QStringLiteral("&Save"), QDialogButtonBox::ActionRole);
    QPushButton* saveAs =
        buttons->addButton(QStringLiteral("Save &As..."), QDialogButtonBox::ActionRole);
    QPushButton* close = buttons->addButton(QDialogButtonBox::Close);
    close->setText(QStringLiteral("&Close"));
    QPushButton* help = buttons->addButton(QDialogButtonBox::Help);
    help->setText(QStringLiteral("&Help"));
    connect(help, &QPushButton::clicked, this, [this] {
        const QString document =
            QStringLiteral("docs/root-identification.md#edit-rif-file-contents");
        if (!openHelpWindow(app_, document, this))
            app_.prompter().inform("Cannot open " + document.toStdString());
    });
    add->setObjectName(QStringLiteral("add"));
    remove->setObjectName(QStringLiteral("delete"));
    import->setObjectName(QStringLiteral("import"));
    saveButton->setObjectName(QStringLiteral("save"));
    layout->addWidget(buttons);

    connect(open, &QPushButton::clicked, this, [this] {
        const QString chosen = QFileDialog::getOpenFileName(
            this, QStringLiteral("Open RIF File"), QFileInfo(path_).absolutePath(),
            QStringLiteral("Root identification files (*.rif);;All files (*)"));
        if (!chosen.isEmpty())
            load(chosen);
    });
    connect(findButton, &QPushButton::clicked, this, [this] { find(find_->text()); });
    connect(find_, &QLineEdit::returnPressed, this, [this] { find(find_->text()); });
    connect(add, &QPushButton::clicked, this, [this] {
        addRow(RifEntry{});
        table_->setCurrentCell(table_->rowCount() - 1, 0);
        table_->editItem(table_->item(table_->rowCount() - 1, 0));
        modified_ = true;
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        QList<int> rows;
        for (const QModelIndex& index : table_->selectionModel()->selectedRows())
            rows << index.row();
        if (rows.isEmpty() && table_->currentRow() >= 0)
            rows << table_->currentRow();
        std::sort(rows.rbegin(), rows.rend());
        for (int row : rows)
            table_->removeRow(row);
        modified_ = modified_ || !rows.isEmpty();
    });
    connect(import, &QPushButton::clicked, this, [this] {
        const QString file = QFileDialog::getOpenFileName(
            this, QStringLiteral("Import Words"), QFileInfo(path_).absolutePath(),
            QStringLiteral("Word list for RIF file (*.TXT *.txt)"));
        if (!file.isEmpty())
            importFile(file);
    });
    connect(saveButton, &QPushButton::clicked, this, [this] { save(); });
    connect(saveAs, &QPushButton::clicked, this, [this] { this->saveAs(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &CRifEditorDialog::reject);
    connect(table_, &QTableWidget::itemChanged, this, [this] { modified_ = true; });
    load(path);
}

void CRifEditorDialog::load(const QString& path) {
    path_ = path;
    pathLabel_->setText(path);
    RifWords words;
    if (std::optional<RifFileContents> contents = readRifFile(path.toStdString())) {
        words = std::move(contents->words);
        if (!contents->badLines.empty())
            app_.prompter().inform(tavi::format(
                "%d lines of %s do not have the form word:root1,root2:replacement1,replacement2 "
                "and were left out (the first is line %d)",
                static_cast<int>(contents->badLines.size()), path.toStdString().c_str(),
                contents->badLines.front()));
    }
    setWords(words);
}

void CRifEditorDialog::addRow(const RifEntry& entry) {
    const QSignalBlocker block(table_);
    const int row = table_->rowCount();
    table_->insertRow(row);
    table_->setItem(row, 0, new QTableWidgetItem(qs(entry.word)));
    table_->setItem(row, 1, new QTableWidgetItem(qs(joinItems(entry.definitions))));
    table_->setItem(row, 2, new QTableWidgetItem(qs(joinItems(entry.replacements))));
}

void CRifEditorDialog::setWords(const RifWords& words) {
    {
        const QSignalBlocker block(table_);
        table_->setRowCount(0);
    }
    for (const auto& [word, entry] : words)
        addRow(entry);
    table_->resizeColumnToContents(0);
    modified_ = false;
}

std::optional<RifWords> CRifEditorDialog::words() {
    RifWords words;
    for (int row = 0; row < table_->rowCount(); ++row) {
        auto text = [&](int column) {
            const QTableWidgetItem* item = table_->item(row, column);
            return item ? item->text().trimmed() : QString();
        };
        const QString word = text(0);
        if (word.isEmpty())
            continue;
        const QString all = word + text(1) + text(2);
        if (word.contains(QLatin1Char(',')) || all.contains(QLatin1Char(':')) ||
            word.size() > kRifWordMax) {
            app_.prompter().inform(tavi::format(
                "Row %d: a word may not hold ',' or ':', nor be longer than %d characters, and "
                "roots and replacements may not hold ':'",
                row + 1, kRifWordMax));
            table_->setCurrentCell(row, 0);
            return std::nullopt;
        }
        RifEntry entry{word.toStdString(), splitItems(text(1)), splitItems(text(2))};
        words[entry.word] = std::move(entry);
    }
    return words;
}

bool CRifEditorDialog::saveAs() {
    // The program's own files are never changed: a copy of one starts in the
    // transcript folder.
    const QString start = isProgramFile() ? folderName(app_.settings().folders.transcript) +
                                                QLatin1Char('/') + QFileInfo(path_).fileName()
                                          : path_;
    const QString file = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save RIF File As"), start,
        QStringLiteral("Root identification files (*.rif);;All files (*)"));
    if (file.isEmpty())
        return false;
    const QString old = path_;
    path_ = file;
    if (isProgramFile() || !save()) {
        path_ = old;
        return false;
    }
    pathLabel_->setText(path_);
    const QString rifFolder = QFileInfo(folderName(app_.settings().folders.rif)).absoluteFilePath();
    if (QFileInfo(path_).absolutePath() != rifFolder)
        app_.prompter().inform("Root identification files are looked for in " +
                               rifFolder.toStdString() +
                               ": to use this file, choose its folder in Setup > File Locations > "
                               "Root Identification Files, or name it in RIF Settings");
    return true;
}

bool CRifEditorDialog::isProgramFile() const {
    const QString shared =
        QFileInfo(folderName(app_.settings().folders.sharedData)).absoluteFilePath();
    return !shared.isEmpty() && QFileInfo(path_).absoluteFilePath().startsWith(shared + '/');
}

bool CRifEditorDialog::save() {
    if (isProgramFile())
        return saveAs();
    std::optional<RifWords> table = words();
    if (!table)
        return false;
    const std::string file = path_.toStdString();
    if (writeRifFile(file, *table) != WriteStatus::Ok) {
        app_.prompter().inform("Cannot write to " + file + " (not saved)");
        return false;
    }
    modified_ = false;
    app_.prompter().inform("RIF file saved in " + file);
    return true;
}

void CRifEditorDialog::importFile(const QString& file) {
    std::string text;
    if (!readFile(file.toStdString(), text)) {
        app_.prompter().inform("Unable to open " + file.toStdString());
        return;
    }
    std::optional<RifWords> table = words();
    if (!table)
        return;
    QtProgress progress(this);
    if (importRifWords(text, *table, app_.prompter(), progress) > 0) {
        setWords(*table);
        modified_ = true;
    }
}

void CRifEditorDialog::find(const QString& text) {
    const QString wanted = text.trimmed();
    const int rows = table_->rowCount();
    if (wanted.isEmpty() || rows == 0)
        return;
    const int start = table_->currentRow();
    for (int step = 1; step <= rows; ++step) {
        const int row = (start + step + rows) % rows;
        const QTableWidgetItem* item = table_->item(row, 0);
        if (item && item->text().startsWith(wanted, Qt::CaseInsensitive)) {
            table_->setCurrentCell(row, 0);
            table_->scrollToItem(table_->item(row, 0));
            return;
        }
    }
    app_.prompter().inform("No word beginning with " + wanted.toStdString() + " was found");
}

void CRifEditorDialog::reject() {
    if (modified_) {
        switch (app_.prompter().ask("Save the changes to " + path_.toStdString() + "?")) {
        case Answer::Cancel:
            return;
        case Answer::Yes:
            if (!save())
                return;
            break;
        case Answer::No:
            break;
        }
    }
    QDialog::reject();
}

// ---------------------------------------------------------------------------

CInsertGcDialog::CInsertGcDialog(const std::map<int, std::string>& gcCodes, QWidget* parent)
    : QDialog(parent), speaker_(new QComboBox), skipCoded_(new QCheckBox),
      categories_(new QListWidget), codes_(categoryCodesToUse(gcCodes)) {
    setObjectName(QStringLiteral("CInsertGcDialog"));
    setWindowTitle(QStringLiteral("Insert Grammatical Category Codes"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral(
        "Each main-body word of the analysis-set utterances gets the code of its most likely "
        "category, for you to review.")));
    auto* form = new QFormLayout;
    speaker_->setObjectName(QStringLiteral("speaker"));
    speaker_->addItems({QStringLiteral("1st Speaker"), QStringLiteral("2nd Speaker"),
                        QStringLiteral("Both Speakers")});
    form->addRow(QStringLiteral("&Speaker:"), speaker_);
    layout->addLayout(form);
    skipCoded_->setObjectName(QStringLiteral("skipCoded"));
    skipCoded_->setText(QStringLiteral("S&kip words that already have a GC code"));
    skipCoded_->setChecked(true);
    layout->addWidget(skipCoded_);
    auto* label = new QLabel(QStringLiteral("&Categories to code:"));
    label->setBuddy(categories_);
    layout->addWidget(label);
    categories_->setObjectName(QStringLiteral("categories"));
    for (size_t c = 0; c < kGrammaticalCategoryTable.size(); ++c) {
        const std::string& code =
            codes_[c].empty() ? std::string(kGrammaticalCategoryTable[c].code) : codes_[c];
        auto* item = new QListWidgetItem(
            qs(kGrammaticalCategoryTable[c].label) + QStringLiteral("   ") + qs(code), categories_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(codes_[c].empty() ? Qt::Unchecked : Qt::Checked);
        if (codes_[c].empty())
            codes_[c] = code;
    }
    layout->addWidget(categories_, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

CategoryCodeOptions CInsertGcDialog::options() const {
    CategoryCodeOptions options;
    options.speaker = speaker_->currentIndex();
    options.skipCoded = skipCoded_->isChecked();
    for (size_t c = 0; c < options.codes.size(); ++c)
        if (categories_->item(static_cast<int>(c))->checkState() == Qt::Checked)
            options.codes[c] = codes_[c];
    return options;
}

} // namespace tavi::app
