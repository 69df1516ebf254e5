// The database builder dialog over the core builder.
#include "app/db_build_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/qt_prompter.h"
#include "app/tavi_app.h"
#include "app/transcript_picker.h"
#include "base/text.h"
#include "database/database_file.h"
#include "database/db_messages.h"
#include "database/sample_values.h"

namespace tavi::app {
namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}

constexpr const char* kTitle = "Build Reference Database";

} // namespace

CDBBuildDialog::CDBBuildDialog(CTAVIApp& app, QWidget* parent)
    : QDialog(parent), app_(app), database_(new QLineEdit(this)), context_(new QLineEdit(this)),
      description_(new QPlainTextEdit(this)), password_(new QLineEdit(this)),
      speaker_(new QComboBox(this)), picker_(new CTranscriptPicker(app.transcriptDir(), this)),
      deidentify_(new QCheckBox(QStringLiteral("&De-identify (leave out name, ID and dates; keep "
                                               "the age as CA)"),
                                this)),
      records_(new QListWidget(this)) {
    setWindowTitle(QString::fromLatin1(kTitle));
    database_->setObjectName(QStringLiteral("database"));
    context_->setObjectName(QStringLiteral("context"));
    description_->setObjectName(QStringLiteral("description"));
    description_->setMaximumHeight(60);
    password_->setObjectName(QStringLiteral("password"));
    password_->setEchoMode(QLineEdit::Password);
    speaker_->setObjectName(QStringLiteral("speaker"));
    speaker_->addItems({QStringLiteral("1st speaker"), QStringLiteral("2nd speaker")});
    deidentify_->setObjectName(QStringLiteral("deidentify"));
    deidentify_->setChecked(true);
    records_->setObjectName(QStringLiteral("records"));

    auto* browse = new QPushButton(QStringLiteral("B&rowse..."), this);
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path =
            QFileDialog::getSaveFileName(this, QString::fromLatin1(kTitle), database_->text(),
                                         QStringLiteral("TAVI Database File (*.TVIDB *.tvidb)"),
                                         nullptr, QFileDialog::DontConfirmOverwrite);
        if (!path.isEmpty())
            setDatabase(path);
    });
    // Only a name the person typed is taken up (a message box taking the
    // focus ends editing too).
    connect(database_, &QLineEdit::editingFinished, this, [this] {
        if (database_->isModified())
            setDatabase(database_->text());
    });
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(database_, 1);
    fileRow->addWidget(browse);

    auto* form = new QFormLayout;
    auto* fileLabel = new QLabel(QStringLiteral("Database &file:"), this);
    fileLabel->setBuddy(database_);
    form->addRow(fileLabel, fileRow);
    form->addRow(QStringLiteral("Sampling &context:"), context_);
    form->addRow(QStringLiteral("Descri&ption:"), description_);
    form->addRow(QStringLiteral("Pass&word:"), password_);
    const char* listNames[] = {"errorCodes", "fluencyCodes", "nonmainstreamCodes",
                               "codeSwitchCodes"};
    const char* listLabels[] = {
        "Error codes:", "Fluency codes:", "Nonmainstream-form codes:", "Code-switch codes:"};
    for (int i = 0; i < 4; ++i) {
        codeLists_[i] = new QLineEdit(this);
        codeLists_[i]->setObjectName(QString::fromLatin1(listNames[i]));
        form->addRow(QString::fromLatin1(listLabels[i]), codeLists_[i]);
    }
    form->addRow(QStringLiteral("Target &speaker:"), speaker_);

    auto* enforcement = new QGridLayout;
    const char* enforceNames[] = {"enforceContext", "enforceSubgroup", "enforceEthnicity",
                                  "enforceLocation", "enforceSelect"};
    const char* enforceLabels[] = {"Enforce context", "Enforce subgroup", "Enforce ethnicity",
                                   "Enforce location", "Enforce +Select value"};
    const char* valueNames[] = {"", "subgroupValue", "ethnicityValue", "locationValue",
                                "selectValue"};
    for (int f = 0; f < db::kEnforcedFields; ++f) {
        enforce_[f] = new QCheckBox(QString::fromLatin1(enforceLabels[f]), this);
        enforce_[f]->setObjectName(QString::fromLatin1(enforceNames[f]));
        enforcement->addWidget(enforce_[f], f, 0);
        values_[f] = nullptr;
        if (f == db::EnforceContext)
            continue;
        values_[f] = new QLineEdit(this);
        values_[f]->setObjectName(QString::fromLatin1(valueNames[f]));
        enforcement->addWidget(values_[f], f, 1);
    }

    auto* add = new QPushButton(QStringLiteral("&Add Transcripts"), this);
    add->setObjectName(QStringLiteral("add"));
    auto* remove = new QPushButton(QStringLiteral("Re&move Record"), this);
    remove->setObjectName(QStringLiteral("remove"));
    connect(add, &QPushButton::clicked, this, [this] { addTranscripts(); });
    connect(remove, &QPushButton::clicked, this, [this] { removeChosenRecord(); });
    auto* actions = new QHBoxLayout;
    actions->addWidget(add);
    actions->addWidget(remove);
    actions->addStretch(1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &CDBBuildDialog::accept);

    auto* left = new QVBoxLayout;
    left->addLayout(form);
    left->addLayout(enforcement);
    left->addWidget(deidentify_);
    auto* right = new QVBoxLayout;
    right->addWidget(picker_, 1);
    right->addLayout(actions);
    right->addWidget(new QLabel(QStringLiteral("Records:"), this));
    right->addWidget(records_, 1);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(buttons);
    fillFields(loaded_);
}

void CDBBuildDialog::fillFields(const db::DescriptiveHeader& info) {
    context_->setText(q(info.context));
    description_->setPlainText(q(info.description));
    password_->setText(q(info.password));
    for (int i = 0; i < 4; ++i)
        codeLists_[i]->setText(q(db::joinCodeList(info.codeLists[i])));
    db::BuildOptions options = db::buildOptionsFromHeader(info);
    for (int f = 0; f < db::kEnforcedFields; ++f) {
        enforce_[f]->setChecked(options.enforce[f]);
        if (values_[f])
            values_[f]->setText(q(options.values[f]));
    }
}

void CDBBuildDialog::setDatabase(const QString& path) {
    database_->setText(path);
    database_->setModified(false);
    records_->clear();
    setWindowTitle(QString::fromLatin1(kTitle));
    exists_ = !path.isEmpty() && QFileInfo::exists(path);
    loaded_ = {};
    if (!exists_) {
        fillFields(loaded_);
        return;
    }
    QtPrompter prompter(this);
    auto db = db::openDatabase(path.toStdString(), db::OpenFor::Writing, prompter,
                               password_->text().toStdString());
    if (!db)
        return;
    if (db->readOnly())
        setWindowTitle(QString::fromLatin1(kTitle) + QStringLiteral(" - READ ONLY"));
    loaded_ = db->info();
    fillFields(loaded_);
    listRecords(*db);
}

void CDBBuildDialog::listRecords(db::Database& database) {
    records_->clear();
    QtPrompter prompter(this);
    if (auto list = database.records(prompter))
        for (const db::sd2& record : *list)
            records_->addItem(q(db::recordListLine(record)));
}

db::DescriptiveHeader CDBBuildDialog::headerFromFields(db::DescriptiveHeader info) const {
    info.context = context_->text().toStdString();
    info.description = description_->toPlainText().toStdString();
    const std::string password(trim(password_->text().toStdString()));
    info.restricted = !password.empty();
    info.password = password;
    for (int i = 0; i < 4; ++i)
        info.codeLists[i] = db::splitCodeList(codeLists_[i]->text().toStdString());
    return info;
}

db::BuildOptions CDBBuildDialog::optionsFromFields() const {
    db::BuildOptions options;
    options.speaker = speaker_->currentIndex() + 1;
    for (int f = 0; f < db::kEnforcedFields; ++f) {
        options.enforce[f] = enforce_[f]->isChecked();
        if (values_[f])
            options.values[f] = values_[f]->text().trimmed().toStdString();
    }
    options.deidentify = deidentify_->isChecked();
    return options;
}

bool CDBBuildDialog::addTranscripts() {
    QtPrompter prompter(this);
    const QString path = database_->text();
    if (path.isEmpty()) {
        prompter.inform("Choose a database file first.");
        return false;
    }
    if (!exists_) {
        if (!db::createDatabase(path.toStdString(), headerFromFields(loaded_), prompter))
            return false;
        exists_ = true;
    }
    auto db = db::openDatabase(path.toStdString(), db::OpenFor::Writing, prompter,
                               password_->text().toStdString());
    if (!db || db->readOnly())
        return false;
    const db::DescriptiveHeader edited = headerFromFields(db->info());
    if (edited != db->info() && !db::closeBuilder(*db, edited, prompter))
        return false;
    AnalysisContext context = app_.analysisContext();
    db::BuildOptions options = optionsFromFields();
    options.dateOrder = context.check.dateFormat.order;
    options.encoding = context.encoding;
    std::vector<std::string> files;
    for (const std::filesystem::path& file : picker_->files())
        files.push_back(file.string());
    QtProgress progress(this);
    last_ = db::addTranscripts(*db, files, options, db::standardChecker(context.check),
                               db::analysisValues(context), prompter, progress);
    loaded_ = db->info();
    listRecords(*db);
    return last_.counters.added > 0;
}

bool CDBBuildDialog::removeChosenRecord() {
    QListWidgetItem* item = records_->currentItem();
    if (!item || !exists_)
        return false;
    QtPrompter prompter(this);
    auto db = db::openDatabase(database_->text().toStdString(), db::OpenFor::Writing, prompter,
                               password_->text().toStdString());
    if (!db || db->readOnly())
        return false;
    const std::string key = item->text().section(QStringLiteral(" - "), 0, 0).toStdString();
    const bool removed = db::removeRecord(*db, key, prompter);
    listRecords(*db);
    return removed;
}

void CDBBuildDialog::accept() {
    if (exists_) {
        QtPrompter prompter(this);
        auto db = db::openDatabase(database_->text().toStdString(), db::OpenFor::Writing, prompter,
                                   password_->text().toStdString());
        if (db && !db->readOnly() &&
            !db::closeBuilder(*db, headerFromFields(db->info()), prompter)) {
            context_->setFocus();
            return;
        }
    }
    QDialog::accept();
}

} // namespace tavi::app
