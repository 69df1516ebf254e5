// The explore criteria dialog.
#include "app/explore_dialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/file_io.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

namespace {

// The check box texts of the utterance types, in the order of ExploreType.
constexpr const char* kTypeTexts[kExploreTypes] = {
    "Statements (.)",
    "Exclamations (!)",
    "Questions (?)",
    "Intonation prompts (~)",
    "Abandoned (>)",
    "Interrupted (^)",
    "Responses to questions (Q)",
    "Yes/no responses (Y)",
    "Responses to prompts (P)",
    "Imitations (I)",
    "One-word utterances (O)",
    "Unintelligible",
    "Partly intelligible",
    "Nonverbal",
    "With mazes",
    "With pauses",
    "With omissions",
};

QComboBox* combo(QWidget* parent, const char* name, std::initializer_list<const char*> texts) {
    auto* box = new QComboBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    for (const char* text : texts)
        box->addItem(QString::fromLatin1(text));
    return box;
}

} // namespace

CExploreDialog::CExploreDialog(const ExploreCriteria& criteria, const QString& title,
                               const QString& listFolder, QWidget* parent)
    : QDialog(parent), listFolder_(listFolder) {
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);

    auto* where = new QFormLayout;
    speaker_ = combo(this, "speaker", {"1st speaker", "2nd speaker", "Either speaker"});
    utterances_ =
        combo(this, "utterances",
              {"Total utterances", "Analysis set utterances", "Non-analysis set utterances"});
    where->addRow(QStringLiteral("Speaker:"), speaker_);
    where->addRow(QStringLiteral("Search:"), utterances_);
    layout->addLayout(where);

    auto* typeBox = new QGroupBox(QStringLiteral("Utterance types"), this);
    auto* grid = new QGridLayout(typeBox);
    for (int i = 0; i < kExploreTypes; ++i) {
        types_[static_cast<size_t>(i)] = new QCheckBox(QString::fromLatin1(kTypeTexts[i]), typeBox);
        types_[static_cast<size_t>(i)]->setObjectName(QString::fromLatin1(
            exploreTypeName(static_cast<ExploreType>(i)).data(),
            static_cast<int>(exploreTypeName(static_cast<ExploreType>(i)).size())));
        grid->addWidget(types_[static_cast<size_t>(i)], i % 9, i / 9);
    }
    mazeFilled_ = new QCheckBox(QStringLiteral("Mazes: filled pauses"), typeBox);
    mazeRepetition_ = new QCheckBox(QStringLiteral("Mazes: repetitions"), typeBox);
    mazeRevision_ = new QCheckBox(QStringLiteral("Mazes: revisions"), typeBox);
    grid->addWidget(mazeFilled_, 0, 2);
    grid->addWidget(mazeRepetition_, 1, 2);
    grid->addWidget(mazeRevision_, 2, 2);
    layout->addWidget(typeBox);

    auto* length = new QHBoxLayout;
    lengthFrom_ = new QSpinBox(this);
    lengthFrom_->setObjectName(QStringLiteral("lengthFrom"));
    lengthTo_ = new QSpinBox(this);
    lengthTo_->setObjectName(QStringLiteral("lengthTo"));
    for (QSpinBox* b : {lengthFrom_, lengthTo_}) {
        b->setRange(0, 999);
        b->setSpecialValueText(QStringLiteral("-"));
    }
    lengthUnit_ = combo(this, "lengthUnit", {"words", "morphemes"});
    length->addWidget(new QLabel(QStringLiteral("Length from"), this));
    length->addWidget(lengthFrom_);
    length->addWidget(new QLabel(QStringLiteral("to"), this));
    length->addWidget(lengthTo_);
    length->addWidget(lengthUnit_);
    length->addStretch();
    layout->addLayout(length);

    layout->addWidget(new QLabel(
        QStringLiteral("Words and codes, one a line (* at either end matches any letters; "
                       "codes in brackets: [EW*]):"),
        this));
    items_ = new QPlainTextEdit(this);
    items_->setObjectName(QStringLiteral("items"));
    items_->setMaximumHeight(110);
    layout->addWidget(items_);
    auto* listButtons = new QHBoxLayout;
    auto* load = new QPushButton(QStringLiteral("&Load List..."), this);
    auto* save = new QPushButton(QStringLiteral("Sa&ve List..."), this);
    connect(load, &QPushButton::clicked, this, &CExploreDialog::loadList);
    connect(save, &QPushButton::clicked, this, &CExploreDialog::saveList);
    listButtons->addWidget(load);
    listButtons->addWidget(save);
    listButtons->addStretch();
    layout->addLayout(listButtons);

    auto* how = new QFormLayout;
    area_ = combo(this, "area", {"Main body", "Mazes", "Main body and mazes"});
    roots_ = combo(this, "roots", {"Words as produced", "Identified roots", "Either"});
    codes_ = combo(this, "codes", {"Word codes", "Utterance codes", "Word or utterance codes"});
    how->addRow(QStringLiteral("Look for words in:"), area_);
    how->addRow(QStringLiteral("Compare:"), roots_);
    how->addRow(QStringLiteral("Codes:"), codes_);
    layout->addLayout(how);

    auto* join = new QHBoxLayout;
    any_ = new QRadioButton(QStringLiteral("Any criterion (OR)"), this);
    any_->setObjectName(QStringLiteral("any"));
    all_ = new QRadioButton(QStringLiteral("Every criterion (AND)"), this);
    all_->setObjectName(QStringLiteral("all"));
    negate_ = new QCheckBox(QStringLiteral("NOT: utterances that do not meet them"), this);
    negate_->setObjectName(QStringLiteral("negate"));
    join->addWidget(any_);
    join->addWidget(all_);
    join->addWidget(negate_);
    layout->addLayout(join);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    saveDefault_ =
        buttons->addButton(QStringLiteral("Save as &Default"), QDialogButtonBox::ActionRole);
    saveDefault_->setObjectName(QStringLiteral("saveDefault"));
    saveDefault_->hide();
    connect(saveDefault_, &QPushButton::clicked, this, [this] {
        if (save_)
            save_(this->criteria());
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);

    setCriteria(criteria);
}

void CExploreDialog::offerSavingDefaults(std::function<void(const ExploreCriteria&)> save) {
    save_ = std::move(save);
    saveDefault_->setVisible(static_cast<bool>(save_));
}

void CExploreDialog::setCriteria(const ExploreCriteria& c) {
    speaker_->setCurrentIndex(static_cast<int>(c.speaker));
    utterances_->setCurrentIndex(static_cast<int>(c.utterances));
    for (int i = 0; i < kExploreTypes; ++i)
        types_[static_cast<size_t>(i)]->setChecked(c.types.count(static_cast<ExploreType>(i)) != 0);
    mazeFilled_->setChecked(c.mazeFilledPauses);
    mazeRepetition_->setChecked(c.mazeRepetitions);
    mazeRevision_->setChecked(c.mazeRevisions);
    lengthFrom_->setValue(c.lengthFrom);
    lengthTo_->setValue(c.lengthTo);
    lengthUnit_->setCurrentIndex(c.lengthInMorphemes ? 1 : 0);
    QStringList items;
    for (const std::string& item : c.items)
        items << QString::fromStdString(item);
    items_->setPlainText(items.join(QLatin1Char('\n')));
    area_->setCurrentIndex(static_cast<int>(c.area));
    roots_->setCurrentIndex(static_cast<int>(c.roots));
    codes_->setCurrentIndex(static_cast<int>(c.codes));
    (c.all ? all_ : any_)->setChecked(true);
    negate_->setChecked(c.negate);
}

ExploreCriteria CExploreDialog::criteria() const {
    ExploreCriteria c;
    c.speaker = static_cast<ExploreSpeaker>(speaker_->currentIndex());
    c.utterances = static_cast<ExploreUtterances>(utterances_->currentIndex());
    for (int i = 0; i < kExploreTypes; ++i)
        if (types_[static_cast<size_t>(i)]->isChecked())
            c.types.insert(static_cast<ExploreType>(i));
    c.mazeFilledPauses = mazeFilled_->isChecked();
    c.mazeRepetitions = mazeRepetition_->isChecked();
    c.mazeRevisions = mazeRevision_->isChecked();
    c.lengthFrom = lengthFrom_->value();
    c.lengthTo = lengthTo_->value();
    c.lengthInMorphemes = lengthUnit_->currentIndex() == 1;
    c.items = parseWordListFile(items_->toPlainText().toStdString());
    c.area = static_cast<ExploreArea>(area_->currentIndex());
    c.roots = static_cast<ExploreRoots>(roots_->currentIndex());
    c.codes = static_cast<ExploreCodes>(codes_->currentIndex());
    c.all = all_->isChecked();
    c.negate = negate_->isChecked();
    return c;
}

void CExploreDialog::loadList() {
    const QString path =
        QFileDialog::getOpenFileName(this, QStringLiteral("Load Word List"), listFolder_,
                                     QStringLiteral("Word Lists (*.LST *.lst);;All Files (*)"));
    if (path.isEmpty())
        return;
    std::string text;
    if (!readTranscriptText(path.toStdString(), text)) {
        QMessageBox::warning(this, windowTitle(), QStringLiteral("Cannot read ") + path);
        return;
    }
    QStringList items;
    for (const std::string& item : parseWordListFile(text))
        items << QString::fromStdString(item);
    items_->setPlainText(items.join(QLatin1Char('\n')));
}

void CExploreDialog::saveList() {
    const QString path = QFileDialog::getSaveFileName(
        this, QStringLiteral("Save Word List"), listFolder_, QStringLiteral("Word Lists (*.LST)"));
    if (path.isEmpty())
        return;
    const std::string text =
        wordListFileText(parseWordListFile(items_->toPlainText().toStdString()));
    if (writeFileAtomic(path.toStdString(), text) != WriteStatus::Ok)
        QMessageBox::warning(this, windowTitle(), QStringLiteral("Cannot write to ") + path);
}

} // namespace tavi::app
