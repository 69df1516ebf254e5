// Entering the speakers and header of a new transcript.
#include "app/new_transcript_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tavi::app {
namespace {

// Header fields in the order they are written, with their labels and, for
// the fields that offer them, choices (stored value, shown name).
struct HeaderField {
    std::string NewTranscriptValues::*value;
    const char* keyword;
    const char* label;
    std::vector<std::pair<const char*, const char*>> choices;
};

const std::vector<HeaderField>& headerFields() {
    using V = NewTranscriptValues;
    static const std::vector<HeaderField> fields = {
        {&V::participantId, "ParticipantId", "Participant ID", {}},
        {&V::name, "Name", "Name", {}},
        {&V::gender,
         "Gender",
         "Gender",
         {{"", ""}, {"M", "Male"}, {"F", "Female"}, {"N", "Not specified"}}},
        {&V::dob, "DOB", "Date of birth", {}},
        {&V::doe, "DOE", "Date of sample", {}},
        {&V::ca, "CA", "Age (years;months)", {}},
        {&V::grade, "Grade", "Grade", {}},
        {&V::ethnicity, "Ethnicity", "Ethnicity", {}},
        {&V::parentEduc, "ParentEduc", "Parent education", {}},
        {&V::examiner, "Examiner", "Examiner", {}},
        {&V::transcriber, "Transcriber", "Transcriber", {}},
        {&V::location, "Location", "Location", {}},
        {&V::collect, "Collect", "Collection", {}},
        {&V::context,
         "Context",
         "Context",
         {{"", ""},
          {"Con", "Conversation"},
          {"Play", "Play"},
          {"Nar", "Narrative"},
          {"Expo", "Expository"},
          {"Pers", "Persuasive"},
          {"Fable", "Fable"}}},
        {&V::subgroup, "Subgroup", "Subgroup", {}},
        {&V::language, "Language", "Language", {}},
        {&V::bilingual, "Bilingual", "Bilingual", {}},
        {&V::bilSubgroup, "BilSubgroup", "Bilingual subgroup", {}},
    };
    return fields;
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

CNewTranscriptDialog::CNewTranscriptDialog(QWidget* parent)
    : QDialog(parent), target_(new QComboBox), other_(new QComboBox), start_(new QLineEdit) {
    setWindowTitle(QStringLiteral("New Transcript"));
    setObjectName(QStringLiteral("CNewTranscriptDialog"));
    target_->setEditable(true);
    target_->addItems({QStringLiteral("Child"), QStringLiteral("Student"),
                       QStringLiteral("Participant"), QStringLiteral("Adult")});
    target_->setObjectName(QStringLiteral("TSPEAKER"));
    other_->setEditable(true);
    other_->addItems({QStringLiteral("Examiner"), QStringLiteral("Parent"),
                      QStringLiteral("Teacher"), QStringLiteral("Clinician")});
    other_->setObjectName(QStringLiteral("OSPEAKER"));
    start_->setObjectName(QStringLiteral("INITTIME"));
    start_->setPlaceholderText(QStringLiteral("e.g., 0:00"));

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Target speaker"), target_);
    form->addRow(QStringLiteral("Other speaker"), other_);
    for (const HeaderField& f : headerFields()) {
        QWidget* w;
        if (f.choices.empty()) {
            w = new QLineEdit;
        } else {
            auto* box = new QComboBox;
            box->setEditable(true);
            for (const auto& [stored, shown] : f.choices)
                box->addItem(QString::fromUtf8(shown), QString::fromUtf8(stored));
            w = box;
        }
        w->setObjectName(QString::fromLatin1(f.keyword));
        form->addRow(QString::fromUtf8(f.label), w);
        fields_.emplace_back(f.value, w);
    }
    form->addRow(QStringLiteral("Starting time"), start_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
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
