// The database selection dialog.
#include "app/dbp_set_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "analysis/selection.h"
#include "app/sd_interval_dialog.h"
#include "app/tavi_app.h"
#include "app/transcript_peers.h"
#include "base/format.h"

namespace tavi::app {
namespace {

constexpr const char* kGenderMismatch = "Warning: Selected gender does not match target speaker";

QString toQ(const std::string& text) {
    return QString::fromStdString(text);
}

std::int16_t genderCode(const QString& text) {
    const QString g = text.trimmed().toUpper();
    if (g == QLatin1String("M"))
        return db::kGenderMale;
    if (g == QLatin1String("F"))
        return db::kGenderFemale;
    if (g == QLatin1String("N"))
        return db::kGenderNonBinary;
    return -1;
}

QLineEdit* field(const char* name, int width = 0) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromLatin1(name));
    if (width > 0)
        edit->setMaximumWidth(width);
    return edit;
}

QComboBox* list(const char* name) {
    auto* box = new QComboBox;
    box->setObjectName(QString::fromLatin1(name));
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return box;
}

QRadioButton* radio(const QString& text, const char* name, QButtonGroup* group, int id) {
    auto* button = new QRadioButton(text);
    button->setObjectName(QString::fromLatin1(name));
    group->addButton(button, id);
    return button;
}

// "<all>" and the values the database's records hold, sorted without regard
// to case; the wanted value chosen when it is there (false when it is not).
bool fill(QComboBox* box, const std::set<std::string>& values, const std::string& wanted) {
    QStringList items;
    for (const std::string& v : values)
        items << toQ(v);
    items.sort(Qt::CaseInsensitive);
    items.removeDuplicates();
    box->clear();
    box->addItem(QString::fromLatin1(db::kAllValues.data(), db::kAllValues.size()));
    box->addItems(items);
    const int at = box->findText(toQ(wanted), Qt::MatchFixedString);
    box->setCurrentIndex(at < 0 ? 0 : at);
    return at >= 0;
}

} // namespace

CDBPSetDialog::CDBPSetDialog(CTAVIApp& app, TranscriptPeers& peers,
                             const db::PeerSelection& initial,
                             const std::array<db::PeerTarget, 2>& targets,
                             const std::pair<std::string, std::string>& speakerLabels,
                             const QString& transcriptTitle, QWidget* parent)
    : QDialog(parent), app_(app), peers_(peers), targets_(targets),
      setName_(analysisSetName(app.settings().analysisSet)), databasePath_(field("databasePath")),
      databaseLine_(new QLabel), speaker_(new QButtonGroup(this)), age_(new QButtonGroup(this)),
      ageSpan_(field("ageSpan", 60)), ageFrom_(field("ageFrom", 80)), ageTo_(field("ageTo", 80)),
      useGrade_(new QCheckBox(QStringLiteral("&Grade:"))), grade_(field("grade", 80)),
      useGender_(new QCheckBox(QStringLiteral("G&ender (M, F or N):"))),
      gender_(field("gender", 40)),
      genderWarning_(new QLabel(QString::fromLatin1(kGenderMismatch))), subgroup_(list("subgroup")),
      ethnicity_(list("ethnicity")), location_(list("location")), select_(list("select")),
      equating_(new QButtonGroup(this)), applyCut_(new QCheckBox),
      sdInterval_(field("sdInterval", 60)), criteria_(new QLabel), matchCount_(new QLabel) {
    setObjectName(QStringLiteral("CDBPSetDialog"));
    setWindowTitle(toQ(db::selectionTitle(transcriptTitle.toStdString())));
    databaseLine_->setObjectName(QStringLiteral("databaseLine"));
    useGrade_->setObjectName(QStringLiteral("useGrade"));
    useGender_->setObjectName(QStringLiteral("useGender"));
    genderWarning_->setObjectName(QStringLiteral("genderWarning"));
    applyCut_->setObjectName(QStringLiteral("applyCut"));
    criteria_->setObjectName(QStringLiteral("criteria"));
    criteria_->setWordWrap(true);
    matchCount_->setObjectName(QStringLiteral("matchCount"));

    auto* dbBox = new QGroupBox(QStringLiteral("Database"));
    auto* dbRow = new QHBoxLayout;
    auto* browseButton = new QPushButton(QStringLiteral("&Browse..."));
    browseButton->setObjectName(QStringLiteral("browse"));
    dbRow->addWidget(databasePath_, 1);
    dbRow->addWidget(browseButton);
    auto* dbLayout = new QVBoxLayout(dbBox);
    dbLayout->addLayout(dbRow);
    dbLayout->addWidget(databaseLine_);

    auto* speakerBox = new QGroupBox(QStringLiteral("Target speaker"));
    auto* speakerLayout = new QHBoxLayout(speakerBox);
    speakerLayout->addWidget(
        radio(toQ("&1st speaker (" + speakerLabels.first + ")"), "speaker1", speaker_, 0));
    speakerLayout->addWidget(
        radio(toQ("&2nd speaker (" + speakerLabels.second + ")"), "speaker2", speaker_, 1));

    auto* criteriaBox = new QGroupBox(QStringLiteral("Match database samples by"));
    auto* grid = new QGridLayout(criteriaBox);
    const int span = static_cast<int>(db::AgeCriterion::Span);
    const int range = static_cast<int>(db::AgeCriterion::Range);
    const int none = static_cast<int>(db::AgeCriterion::None);
    grid->addWidget(radio(QStringLiteral("&Age +/-"), "ageSpanChoice", age_, span), 0, 0);
    auto* spanRow = new QHBoxLayout;
    spanRow->addWidget(ageSpan_);
    spanRow->addWidget(new QLabel(QStringLiteral("months")));
    spanRow->addStretch();
    grid->addLayout(spanRow, 0, 1);
    grid->addWidget(radio(QStringLiteral("Age &range from"), "ageRangeChoice", age_, range), 1, 0);
    auto* rangeRow = new QHBoxLayout;
    rangeRow->addWidget(ageFrom_);
    rangeRow->addWidget(new QLabel(QStringLiteral("to")));
    rangeRow->addWidget(ageTo_);
    rangeRow->addWidget(new QLabel(QStringLiteral("(years;months or years)")));
    rangeRow->addStretch();
    grid->addLayout(rangeRow, 1, 1);
    grid->addWidget(radio(QStringLiteral("Any a&ge"), "ageNoneChoice", age_, none), 2, 0);
    grid->addWidget(useGrade_, 3, 0);
    grid->addWidget(grade_, 3, 1);
    grid->addWidget(useGender_, 4, 0);
    auto* genderRow = new QHBoxLayout;
    genderRow->addWidget(gender_);
    genderRow->addWidget(genderWarning_);
    genderRow->addStretch();
    grid->addLayout(genderRow, 4, 1);
    const std::pair<const char*, QComboBox*> lists[] = {{"&Subgroup:", subgroup_},
                                                        {"E&thnicity:", ethnicity_},
                                                        {"&Location:", location_},
                                                        {"+Se&lect:", select_}};
    int row = 5;
    for (const auto& [text, box] : lists) {
        auto* label = new QLabel(QString::fromLatin1(text));
        label->setBuddy(box);
        grid->addWidget(label, row, 0);
        grid->addWidget(box, row++, 1, Qt::AlignLeft);
    }

    auto* equatingBox = new QGroupBox(QStringLiteral("Equate sample length"));
    auto* equatingLayout = new QVBoxLayout(equatingBox);
    const std::pair<EquatingMethod, const char*> methods[] = {
        {EquatingMethod::TotalWords, "equatingWords"},
        {EquatingMethod::ElapsedTime, "equatingTime"},
        {EquatingMethod::AnalysisSetUtterances, "equatingUtterances"},
        {EquatingMethod::EntireTranscript, "equatingNone"}};
    for (const auto& [method, name] : methods)
        equatingLayout->addWidget(radio(QString(), name, equating_, static_cast<int>(method)));
    equatingLayout->addWidget(applyCut_);
    applyCut_->setText(toQ(format("Apply transcript cut to database samples (%s)",
                                  describeCut(app.settings().transcriptCut, 60).c_str())));

    auto* sdRow = new QHBoxLayout;
    auto* sdLabel = new QLabel(QStringLiteral("S&D interval:"));
    sdLabel->setBuddy(sdInterval_);
    sdRow->addWidget(sdLabel);
    sdRow->addWidget(sdInterval_);
    sdRow->addStretch();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &CDBPSetDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(dbBox);
    layout->addWidget(speakerBox);
    layout->addWidget(criteriaBox);
    layout->addWidget(equatingBox);
    layout->addLayout(sdRow);
    layout->addWidget(criteria_);
    layout->addWidget(matchCount_);
    layout->addWidget(buttons);

    showSelection(initial);
    database_ = peers_.database(initial.database, app_.prompter());
    fillLists(initial, true);
    refresh();

    connect(browseButton, &QPushButton::clicked, this, &CDBPSetDialog::browse);
    connect(databasePath_, &QLineEdit::editingFinished, this,
            [this] { setDatabase(databasePath_->text().trimmed()); });
    for (QButtonGroup* group : {speaker_, age_, equating_})
        connect(group, &QButtonGroup::idClicked, this, &CDBPSetDialog::refresh);
    for (QLineEdit* edit : {ageSpan_, ageFrom_, ageTo_, grade_, gender_, sdInterval_})
        connect(edit, &QLineEdit::textChanged, this, &CDBPSetDialog::refresh);
    for (QCheckBox* box : {useGrade_, useGender_, applyCut_})
        connect(box, &QCheckBox::toggled, this, &CDBPSetDialog::refresh);
    for (QComboBox* box : {subgroup_, ethnicity_, location_, select_})
        connect(box, &QComboBox::currentIndexChanged, this, &CDBPSetDialog::refresh);
}

const db::PeerTarget& CDBPSetDialog::target() const {
    return targets_[speaker_->checkedId() == 1 ? 1 : 0];
}

void CDBPSetDialog::showSelection(const db::PeerSelection& s) {
    updating_ = true;
    databasePath_->setText(toQ(s.database.string()));
    speaker_->button(s.speaker == 1 ? 1 : 0)->setChecked(true);
    age_->button(static_cast<int>(s.age))->setChecked(true);
    ageSpan_->setText(QString::number(s.ageSpan));
    ageFrom_->setText(toQ(s.ageFrom));
    ageTo_->setText(toQ(s.ageTo));
    useGrade_->setChecked(s.useGrade);
    grade_->setText(toQ(s.grade.empty() ? targets_[0].grade : s.grade));
    useGender_->setChecked(s.useGender);
    gender_->setText(toQ(s.gender));
    equating_->button(static_cast<int>(s.equating))->setChecked(true);
    applyCut_->setChecked(s.applyCut);
    sdInterval_->setText(toQ(shortestFloat(s.sdInterval)));
    updating_ = false;
}

// The subgroup, ethnicity, location and "+Select" lists from the database's
// records. A chosen subgroup or location the database does not hold is told
// and set back to "<all>".
void CDBPSetDialog::fillLists(const db::PeerSelection& wanted, bool tellProblems) {
    std::set<std::string> subgroups, ethnicities, locations, selects;
    if (database_)
        for (const db::sd2& record : database_->records()) {
            for (auto [set, value] :
                 {std::pair{&subgroups, &record.subgroup},
                  std::pair{&ethnicities, &record.ethnicity},
                  std::pair{&locations, &record.location}, std::pair{&selects, &record.select}})
                if (!value->empty())
                    set->insert(*value);
        }
    updating_ = true;
    const bool subgroupFound = fill(subgroup_, subgroups, wanted.subgroup);
    fill(ethnicity_, ethnicities, wanted.ethnicity);
    const bool locationFound = fill(location_, locations, wanted.location);
    fill(select_, selects, wanted.select);
    updating_ = false;
    if (tellProblems && database_ && !subgroupFound)
        app_.prompter().inform("Problem with selected subgroup");
    if (tellProblems && database_ && !locationFound)
        app_.prompter().inform("Problem with selected location");
}

void CDBPSetDialog::setDatabase(const QString& path) {
    databasePath_->setText(path);
    db::PeerDatabase* before = database_;
    database_ = peers_.database(path.toStdString(), app_.prompter());
    if (database_ && database_ != before) {
        // Another database: its own age span, every list from its records.
        const int span = database_->info().ageSpan;
        updating_ = true;
        ageSpan_->setText(QString::number(
            span >= db::kMinAgeSpan && span <= db::kMaxAgeSpan ? span : db::kDefaultAgeSpan));
        updating_ = false;
        fillLists(selection(), true);
    } else if (!database_) {
        fillLists(selection(), false);
    }
    refresh();
}

void CDBPSetDialog::browse() {
    QString folder = QFileInfo(databasePath_->text()).absolutePath();
    if (databasePath_->text().trimmed().isEmpty())
        folder = toQ(app_.settings().folders.database);
    const QString path = QFileDialog::getOpenFileName(
        this, QStringLiteral("Select Database"), folder,
        QStringLiteral("TAVI Reference Databases (*.tvidb);;All Files (*)"));
    if (!path.isEmpty())
        setDatabase(path);
}

db::PeerSelection CDBPSetDialog::selection() const {
    db::PeerSelection s;
    s.database = databasePath_->text().trimmed().toStdString();
    s.speaker = speaker_->checkedId() == 1 ? 1 : 0;
    s.age = static_cast<db::AgeCriterion>(age_->checkedId());
    bool ok = false;
    const int span = ageSpan_->text().trimmed().toInt(&ok);
    s.ageSpan = ok ? span : 0;
    s.ageFrom = ageFrom_->text().trimmed().toStdString();
    s.ageTo = ageTo_->text().trimmed().toStdString();
    s.useGrade = useGrade_->isChecked();
    s.grade = grade_->text().trimmed().toStdString();
    s.useGender = useGender_->isChecked();
    s.gender = gender_->text().trimmed().toUpper().toStdString();
    s.subgroup = subgroup_->currentText().toStdString();
    s.ethnicity = ethnicity_->currentText().toStdString();
    s.location = location_->currentText().toStdString();
    s.select = select_->currentText().toStdString();
    s.equating = static_cast<EquatingMethod>(equating_->checkedId());
    s.applyCut = applyCut_->isChecked();
    s.sdInterval = sdIntervalValue(sdInterval_->text());
    return s;
}

// The database line, the equating options with their reasons, the gender
// warning, the criteria line and the number of matching samples, from the
// fields as they stand.
void CDBPSetDialog::refresh() {
    if (updating_)
        return;
    const db::PeerSelection s = selection();
    const db::PeerTarget& t = target();
    if (database_)
        databaseLine_->setText(
            toQ("Database: " + QFileInfo(toQ(database_->name())).fileName().toStdString() +
                "     Sampling context: " + database_->info().context));
    else
        databaseLine_->setText(QStringLiteral("Database: NONE"));

    int matched = 0, timed = 0;
    if (database_) {
        const auto bounds = db::ageBounds(s, t);
        for (const db::sd2& record : database_->records())
            if (db::recordMatches(record, s, bounds)) {
                ++matched;
                timed += (record.flags & db::kFlagTimed) ? 1 : 0;
            }
        matchCount_->setText(
            QStringLiteral("%1/%2 samples match").arg(matched).arg(database_->records().size()));
    } else {
        matchCount_->setText(QString());
    }
    const DatabaseTiming timing = !database_ || timed == matched ? DatabaseTiming::All
                                  : timed == 0                   ? DatabaseTiming::None
                                                                 : DatabaseTiming::Some;
    for (QAbstractButton* button : equating_->buttons()) {
        const auto method = static_cast<EquatingMethod>(equating_->id(button));
        button->setText(toQ(equatingOptionText(method, t.amount, timing, setName_))
                            .replace(QLatin1Char('&'), QStringLiteral("&&")));
        button->setEnabled(method == EquatingMethod::EntireTranscript ||
                           equatingAvailable(method, t.amount, timing));
    }
    genderWarning_->setVisible(s.useGender && t.gender != db::kGenderUnknown &&
                               genderCode(gender_->text()) >= 0 &&
                               genderCode(gender_->text()) != t.gender);
    criteria_->setText(toQ("SELECT DATABASE SAMPLES - " + db::criteriaLine(s, t)));
}

void CDBPSetDialog::accept() {
    db::PeerSelection s = selection();
    if (!(s.sdInterval > 0.0f)) {
        app_.prompter().inform(kBadSdInterval);
        sdInterval_->setFocus();
        return;
    }
    if (!db::checkPeerSelection(s, target(), app_.prompter()))
        return;
    showSelection(s); // a 2nd speaker the transcript lacks was reset
    refresh();
    QDialog::accept();
}

} // namespace tavi::app
