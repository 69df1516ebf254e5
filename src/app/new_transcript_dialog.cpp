// Entering the speakers and header of a new transcript.
#include "app/new_transcript_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "transcript/header_checks.h"

namespace tavi::app {
namespace {

// Header fields in the order they are written: the member, the object name
// (the standard keyword), the label key of the field's name in the dialog and
// of its keyword in the transcript (empty: the standard keyword), and, for
// the fields that offer them, choices (stored value, label key of the name).
struct HeaderField {
    std::string NewTranscriptValues::*value;
    const char* keyword;
    const char* nameKey;
    const char* name; // when there is no label for the field's name
    std::vector<std::pair<const char*, const char*>> choices;
};

const std::vector<HeaderField>& headerFields() {
    using V = NewTranscriptValues;
    static const std::vector<HeaderField> fields = {
        {&V::participantId, "ParticipantId", "PL_NEWSID", "", {}},
        {&V::name, "Name", "PL_NEWNAME", "", {}},
        {&V::gender,
         "Gender",
         "PL_NEWGENDER",
         "",
         {{"", ""}, {"M", "PL_NEWMALE"}, {"F", "PL_NEWFEMALE"}, {"N", "PL_NEWNONBINARY"}}},
        {&V::dob, "DOB", "PL_NEWDOB", "", {}},
        {&V::doe, "DOE", "PL_NEWDOE", "", {}},
        {&V::ca, "CA", "PL_NEWCA", "", {}},
        {&V::grade, "Grade", "PL_NEWGRADE", "", {}},
        {&V::ethnicity, "Ethnicity", "PL_NEWETH", "", {}},
        {&V::parentEduc, "ParentEduc", "PL_NEWPED", "", {}},
        {&V::examiner, "Examiner", "PL_NEWENAME", "", {}},
        {&V::transcriber, "Transcriber", "PL_NEWTNAME", "", {}},
        {&V::location, "Location", "", "Location", {}},
        {&V::collect, "Collect", "PL_NEWCPT", "", {}},
        {&V::context,
         "Context",
         "",
         "Context",
         {{"", ""},
          {"Con", "PL_CON"},
          {"Play", "PL_PLAY"},
          {"Nar", "PL_NAR"},
          {"Expo", "PL_EXPO"},
          {"Pers", "PL_PERS"},
          {"Fable", "PL_FABLE"}}},
        {&V::subgroup, "Subgroup", "PL_NEWSGRP", "", {}},
        {&V::language, "Language", "", "Language", {}},
        {&V::bilingual, "Bilingual", "PL_BILINGUAL", "", {}},
        {&V::bilSubgroup, "BilSubgroup", "PL_NEWPLSELECT", "", {}},
        {&V::mode, "MODE", "", "Mode", {}},
    };
    return fields;
}

// The words written into the transcript: keywords and the written forms of
// the gender and context values, from the "PL_PLUS" labels where they exist.
NewTranscriptLabels writtenLabels(const LabelSource& labels) {
    NewTranscriptLabels l;
    auto take = [&](std::string& word, const char* key) {
        if (std::string text = labels(key); !text.empty())
            word = text;
    };
    take(l.participantId, "PL_PLUSSID");
    take(l.dob, "PL_PLUSDOB");
    take(l.doe, "PL_PLUSDOE");
    take(l.ca, "PL_PLUSCA");
    take(l.parentEduc, "PL_PLUSPED");
    take(l.examiner, "PL_PLUSENAME");
    take(l.transcriber, "PL_PLUSTNAME");
    take(l.location, "PL_PLUSLOC");
    take(l.collect, "PL_PLUSCPT");
    take(l.context, "PL_PLUSCONTEXT");
    take(l.language, "PL_PLUSLANG");
    l.genders = {{"M", "M"}, {"F", "F"}, {"N", "N"}};
    take(l.genders[0].second, "PL_PLUSM");
    take(l.genders[1].second, "PL_PLUSF");
    take(l.genders[2].second, "PL_PLUSN");
    const char* contextKeys[] = {"PL_CON", "PL_PLAY", "PL_NAR", "PL_EXPO", "PL_PERS", "PL_FABLE"};
    for (size_t i = 0; i < l.contexts.size() && i < std::size(contextKeys); ++i)
        take(l.contexts[i].second, contextKeys[i]);
    return l;
}

QString labelText(const LabelSource& labels, const char* key, const char* fallback) {
    const std::string text = *key ? labels(key) : std::string();
    return QString::fromStdString(text.empty() ? std::string(fallback) : text);
}

// A combo box gives its stored value when one of its choices is shown, the
// typed text otherwise.
QString fieldText(QWidget* w) {
    if (auto* edit = qobject_cast<QLineEdit*>(w))
        return edit->text();
    auto* box = qobject_cast<QComboBox*>(w);
    const int at = box->findText(box->currentText());
    if (at >= 0 && !box->itemData(at).toString().isEmpty())
        return box->itemData(at).toString();
    return box->currentText();
}

} // namespace

CNewTranscriptDialog::CNewTranscriptDialog(const LabelSource& labels, const DateFormat& dates,
                                           QWidget* parent)
    : QDialog(parent), dates_(dates), written_(writtenLabels(labels)), target_(new QComboBox),
      other_(new QComboBox), start_(new QLineEdit), ageNote_(new QLabel) {
    setWindowTitle(QStringLiteral("New Transcript"));
    setObjectName(QStringLiteral("CNewTranscriptDialog"));
    target_->setEditable(true);
    target_->addItems({labelText(labels, "PL_SPEAKER1", "Child"), QStringLiteral("Student"),
                       QStringLiteral("Participant"), QStringLiteral("Adult")});
    target_->setObjectName(QStringLiteral("TSPEAKER"));
    other_->setEditable(true);
    other_->addItems({labelText(labels, "PL_SPEAKER2", "Examiner"), QStringLiteral("Parent"),
                      QStringLiteral("Teacher"), QStringLiteral("Clinician")});
    other_->setObjectName(QStringLiteral("OSPEAKER"));
    start_->setObjectName(QStringLiteral("INITTIME"));
    start_->setPlaceholderText(QStringLiteral("e.g., 0:00"));
    ageNote_->setObjectName(QStringLiteral("AgeNote"));

    const QString dateHint = QString::fromStdString(dates_.text());
    auto* form = new QFormLayout;
    form->addRow(labelText(labels, "PL_NEWTSPK", "Target speaker"), target_);
    form->addRow(labelText(labels, "PL_NEWOSPK", "Other speaker"), other_);
    for (const HeaderField& f : headerFields()) {
        QWidget* w;
        if (f.choices.empty()) {
            auto* edit = new QLineEdit;
            w = edit;
        } else {
            auto* box = new QComboBox;
            box->setEditable(true);
            for (const auto& [stored, key] : f.choices)
                box->addItem(*key ? labelText(labels, key, stored) : QString(),
                             QString::fromUtf8(stored));
            w = box;
        }
        w->setObjectName(QString::fromLatin1(f.keyword));
        form->addRow(labelText(labels, f.nameKey, f.name), w);
        if (f.value == &NewTranscriptValues::dob || f.value == &NewTranscriptValues::doe) {
            auto* edit = qobject_cast<QLineEdit*>(w);
            edit->setPlaceholderText(dateHint);
            edit->setToolTip(QStringLiteral("Date in the current date format, %1").arg(dateHint));
            (f.value == &NewTranscriptValues::dob ? dob_ : doe_) = edit;
            connect(edit, &QLineEdit::textChanged, this, &CNewTranscriptDialog::updateAge);
        } else if (f.value == &NewTranscriptValues::ca) {
            ca_ = qobject_cast<QLineEdit*>(w);
            ca_->setPlaceholderText(QStringLiteral("years;months"));
            form->addRow(QString(), ageNote_);
        }
        fields_.emplace_back(f.value, w);
    }
    form->addRow(labelText(labels, "PL_NEWCLOCK", "Starting time"), start_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

// With both dates readable, the age in years;months is filled in (unless the
// person typed an age of their own); otherwise the note says what is wrong.
void CNewTranscriptDialog::updateAge() {
    const std::string dob = dob_->text().trimmed().toStdString();
    const std::string doe = doe_->text().trimmed().toStdString();
    Date birth, sample;
    const bool typedOwnAge = !ca_->text().isEmpty() && ca_->text() != workedOutAge_;
    if (dob.empty() || doe.empty()) {
        ageNote_->clear();
        return;
    }
    if (readDate(dob, dates_, birth) != DateStatus::Ok ||
        readDate(doe, dates_, sample) != DateStatus::Ok) {
        ageNote_->setText(
            QStringLiteral("Dates are written %1").arg(QString::fromStdString(dates_.text())));
        return;
    }
    const long long months = monthsBetween(birth, sample);
    if (months < 0 || months > 1200) {
        ageNote_->setText(QStringLiteral("The date of sample comes before the date of birth"));
        return;
    }
    const QString age = QStringLiteral("%1;%2").arg(months / 12).arg(months % 12);
    ageNote_->setText(QStringLiteral("Age from the dates: %1").arg(age));
    if (!typedOwnAge) {
        ca_->setText(age);
        workedOutAge_ = age;
    }
}

void CNewTranscriptDialog::setField(const QString& key, const QString& value) {
    if (key == QLatin1String("TSPEAKER"))
        return target_->setCurrentText(value);
    if (key == QLatin1String("OSPEAKER"))
        return other_->setCurrentText(value);
    if (key == QLatin1String("INITTIME"))
        return start_->setText(value);
    for (QWidget* w : findChildren<QWidget*>(key)) {
        if (auto* edit = qobject_cast<QLineEdit*>(w))
            edit->setText(value);
        else if (auto* box = qobject_cast<QComboBox*>(w))
            box->setCurrentText(value);
    }
}

NewTranscriptValues CNewTranscriptDialog::values() const {
    NewTranscriptValues v;
    v.targetSpeaker = target_->currentText().toStdString();
    v.secondSpeaker = other_->currentText().toStdString();
    v.startTime = start_->text().trimmed().toStdString();
    for (const auto& [member, w] : fields_)
        v.*member = fieldText(w).trimmed().toStdString();
    return v;
}

} // namespace tavi::app
