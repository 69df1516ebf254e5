// The rectangular data file dialog over the batch core.
#include "app/batch_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "analysis/equating.h"
#include "analysis/selection.h"
#include "app/qt_prompter.h"
#include "app/tavi_app.h"
#include "app/transcript_picker.h"
#include "batch/batch_defaults.h"
#include "batch/selection_file.h"
#include "batch/variable_catalogue.h"
#include "reports/report_file.h"

namespace tavi::app {
namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

constexpr int kSpeakerCodes[] = {BatchSelections::kTargetSpeaker, BatchSelections::kOtherSpeaker,
                                 BatchSelections::kBothSpeakers};

const QString kSelectionFilter =
    QStringLiteral("Rectangular Data File Selections (*.SBT *.sbt);;All Files (*)");

} // namespace

CBatchDialog::CBatchDialog(CTAVIApp& app, QWidget* parent)
    : QDialog(parent), app_(app), selections_(defaultBatchSelections(app.settings())),
      groups_(new QListWidget(this)), variables_(new QListWidget(this)),
      speaker_(new QComboBox(this)), format_(new QComboBox(this)), output_(new QLineEdit(this)),
      picker_(new CTranscriptPicker(app.transcriptDir(), this)) {
    setWindowTitle(QStringLiteral("Rectangular Data File"));
    groups_->setObjectName(QStringLiteral("groups"));
    variables_->setObjectName(QStringLiteral("variables"));
    speaker_->setObjectName(QStringLiteral("speaker"));
    format_->setObjectName(QStringLiteral("format"));
    output_->setObjectName(QStringLiteral("output"));
    for (const VariableGroup& g : VariableCatalogue::standard().groups())
        groups_->addItem(q(g.title));
    speaker_->addItems({QStringLiteral("1st (target) speaker"), QStringLiteral("2nd speaker"),
                        QStringLiteral("Both main speakers")});
    format_->addItems({QStringLiteral("CSV - comma separated"),
                       QStringLiteral("TSV - tab separated"), QStringLiteral("TXT - text")});
    const char* missingNames[] = {"missingText", "missingInteger", "missingDecimal"};
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Speaker:"), speaker_);
    const AnalysisContext context = app_.analysisContext();
    form->addRow(QStringLiteral("Analysis set:"),
                 new QLabel(q(analysisSetName(context.measures.analysisSet)), this));
    form->addRow(QStringLiteral("Word base:"),
                 new QLabel(q(wordBaseText(context.measures.wordBase)), this));
    form->addRow(QStringLiteral("Transcript cut:"),
                 new QLabel(q(describeCut(context.measures.cut, 60)), this));
    const char* missingLabels[] = {"Missing &text:", "Missing &whole number:", "Missing &decimal:"};
    for (int i = 0; i < 3; ++i) {
        missing_[i] = new QLineEdit(this);
        missing_[i]->setObjectName(QString::fromLatin1(missingNames[i]));
        form->addRow(QString::fromLatin1(missingLabels[i]), missing_[i]);
    }
    auto* browse = new QPushButton(QStringLiteral("B&rowse..."), this);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getSaveFileName(
            this, QStringLiteral("Rectangular Data File"), output_->text(),
            QString::fromLatin1(gridFileFilter(format())));
        if (!path.isEmpty())
            setOutput(path);
    });
    auto* outputRow = new QHBoxLayout;
    outputRow->addWidget(output_, 1);
    outputRow->addWidget(browse);
    form->addRow(QStringLiteral("File &format:"), format_);
    auto* outputLabel = new QLabel(QStringLiteral("Data &file:"), this);
    outputLabel->setBuddy(output_);
    form->addRow(outputLabel, outputRow);

    auto* all = new QPushButton(QStringLiteral("Select All in Group"), this);
    auto* none = new QPushButton(QStringLiteral("Clear Group"), this);
    auto setGroup = [this](bool on) {
        for (int i = 0; i < variables_->count(); ++i)
            variables_->item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    };
    connect(all, &QPushButton::clicked, this, [setGroup] { setGroup(true); });
    connect(none, &QPushButton::clicked, this, [setGroup] { setGroup(false); });
    connect(groups_, &QListWidget::currentRowChanged, this, &CBatchDialog::showGroup);
    connect(variables_, &QListWidget::itemChanged, this, &CBatchDialog::variableChanged);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* load =
        buttons->addButton(QStringLiteral("&Load..."), QDialogButtonBox::ActionRole);
    QPushButton* save =
        buttons->addButton(QStringLiteral("Sa&ve..."), QDialogButtonBox::ActionRole);
    QPushButton* defaults =
        buttons->addButton(QStringLiteral("Save as &Default"), QDialogButtonBox::ActionRole);
    QPushButton* run = buttons->addButton(QStringLiteral("&Run"), QDialogButtonBox::ActionRole);
    load->setObjectName(QStringLiteral("load"));
    save->setObjectName(QStringLiteral("save"));
    defaults->setObjectName(QStringLiteral("saveDefaults"));
    run->setObjectName(QStringLiteral("run"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(load, &QPushButton::clicked, this, [this] {
        QtPrompter prompter(this);
        const Answer answer = prompter.ask(kSaveCurrentSelectionsQuestion);
        if (answer == Answer::Cancel)
            return;
        const QString folder = q(app_.settings().folders.batch);
        if (answer == Answer::Yes) {
            const QString to = QFileDialog::getSaveFileName(this, QStringLiteral("Save Selections"),
                                                            folder, kSelectionFilter);
            if (to.isEmpty() || !saveSelections(to))
                return;
        }
        const QString from = QFileDialog::getOpenFileName(this, QStringLiteral("Load Selections"),
                                                          folder, kSelectionFilter);
        if (!from.isEmpty())
            loadSelections(from);
    });
    connect(save, &QPushButton::clicked, this, [this] {
        const QString to =
            QFileDialog::getSaveFileName(this, QStringLiteral("Save Selections"),
                                         q(app_.settings().folders.batch), kSelectionFilter);
        if (!to.isEmpty())
            saveSelections(to);
    });
    connect(defaults, &QPushButton::clicked, this, &CBatchDialog::saveDefaults);
    connect(run, &QPushButton::clicked, this, [this] {
        if (runBatch())
            accept();
    });

    auto* variablesColumn = new QVBoxLayout;
    variablesColumn->addWidget(variables_, 1);
    auto* groupButtons = new QHBoxLayout;
    groupButtons->addWidget(all);
    groupButtons->addWidget(none);
    variablesColumn->addLayout(groupButtons);
    auto* lists = new QHBoxLayout;
    lists->addWidget(groups_);
    lists->addLayout(variablesColumn, 1);
    auto* lower = new QHBoxLayout;
    lower->addLayout(form, 1);
    lower->addWidget(picker_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(lists, 1);
    layout->addLayout(lower, 1);
    layout->addWidget(buttons);
    setSelections(selections_);
    groups_->setCurrentRow(0);
}

void CBatchDialog::showGroup(int group) {
    const VariableCatalogue& c = VariableCatalogue::standard();
    if (group < 0 || group >= static_cast<int>(c.groups().size()))
        return;
    filling_ = true;
    variables_->clear();
    const std::vector<int> chosen = chosenVariables(selections_, c);
    const VariableGroup& g = c.groups()[static_cast<std::size_t>(group)];
    for (int i = g.first; i < g.first + g.count; ++i) {
        const BatchVariable& v = c.variable(i);
        auto* item = new QListWidgetItem(q(v.name + "  -  " + v.description), variables_);
        item->setData(Qt::UserRole, i);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        const bool on = std::find(chosen.begin(), chosen.end(), i) != chosen.end();
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    filling_ = false;
}

void CBatchDialog::variableChanged(QListWidgetItem* item) {
    if (filling_)
        return;
    setVariableChosen(selections_, VariableCatalogue::standard(), item->data(Qt::UserRole).toInt(),
                      item->checkState() == Qt::Checked);
}

BatchSelections CBatchDialog::selections() const {
    BatchSelections s = selections_;
    s.speaker = kSpeakerCodes[std::max(0, speaker_->currentIndex())];
    s.missingText = missing_[0]->text().toStdString();
    s.missingInteger = missing_[1]->text().toStdString();
    s.missingDecimal = missing_[2]->text().toStdString();
    return s;
}

void CBatchDialog::setSelections(const BatchSelections& selections) {
    selections_ = selections;
    for (int i = 0; i < 3; ++i)
        if (kSpeakerCodes[i] == selections.speaker)
            speaker_->setCurrentIndex(i);
    missing_[0]->setText(q(selections.missingText));
    missing_[1]->setText(q(selections.missingInteger));
    missing_[2]->setText(q(selections.missingDecimal));
    showGroup(groups_->currentRow() < 0 ? 0 : groups_->currentRow());
}

bool CBatchDialog::loadSelections(const QString& path) {
    QtPrompter prompter(this);
    BatchSelections loaded = selections();
    if (!loadSelectionFile(path.toStdString(), loaded, prompter))
        return false;
    setSelections(loaded);
    selectionFile_ = std::filesystem::path(path.toStdString());
    return true;
}

bool CBatchDialog::saveSelections(const QString& path) {
    QtPrompter prompter(this);
    if (!saveSelectionFile(path.toStdString(), selections(), prompter))
        return false;
    selectionFile_ = std::filesystem::path(path.toStdString());
    return true;
}

void CBatchDialog::saveDefaults() {
    QtPrompter prompter(this);
    const BatchSelections s = selections();
    if (saveBatchDefaults(s, app_.settings(), prompter) == SaveOutcome::Saved)
        app_.settings().replaceSectionLines("BATCH", batchSectionLines(s));
}

void CBatchDialog::setOutput(const QString& path) {
    output_->setText(path);
    const QString suffix = path.section(QLatin1Char('.'), -1).toLower();
    format_->setCurrentIndex(suffix == QLatin1String("tsv")   ? 1
                             : suffix == QLatin1String("txt") ? 2
                                                              : 0);
}

GridFormat CBatchDialog::format() const {
    return format_->currentIndex() == 1   ? GridFormat::Tsv
           : format_->currentIndex() == 2 ? GridFormat::Txt
                                          : GridFormat::Csv;
}

bool CBatchDialog::runBatch() {
    QtPrompter prompter(this);
    if (output_->text().isEmpty()) {
        prompter.inform("Choose the data file first.");
        return false;
    }
    BatchRunOptions options;
    options.selections = selections();
    options.analysis = app_.analysisContext();
    options.selectionFile = selectionFile_;
    QtProgress progress(this, true);
    result_ = tavi::runBatch(picker_->files(), options, prompter, progress);
    if (!result_)
        return false;
    const std::filesystem::path out = output_->text().toStdString();
    const char separator = gridSeparator(format());
    const std::string problem =
        saveReportFiles({{out, gridFileBytes(result_->data, separator)},
                         {batchKeyFilePath(out), gridFileBytes(result_->key, separator)}});
    if (!problem.empty()) {
        prompter.inform(problem + ": " + out.string());
        return false;
    }
    return true;
}

} // namespace tavi::app
