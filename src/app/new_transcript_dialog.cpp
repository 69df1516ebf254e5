// Entering the speakers and header of a new transcript.
#include "app/new_transcript_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tavi::app {
namespace {

// Header keywords in the order they are written, with their labels; choices
// for the fields that offer them (stored value, shown name).
struct HeaderField {
    const char* keyword;
    const char* label;
    std::vector<std::pair<const char*, const char*>> choices;
};

const std::vector<HeaderField>& headerFields() {
    static const std::vector<HeaderField> fields = {
        {"ParticipantId", "Participant ID", {}},
        {"Name", "Name", {}},
        {"Gender", "Gender", {{"", ""}, {"M", "Male"}, {"F", "Female"}, {"N", "Nonbinary"}}},
        {"DOB", "Date of birth", {}},
        {"DOE", "Date of sample", {}},
        {"CA", "Age (years;months)", {}},
        {"Grade", "Grade", {}},
        {"Ethnicity", "Ethnicity", {}},
        {"ParentEduc", "Parent education", {}},
        {"Examiner", "Examiner", {}},
        {"Transcriber", "Transcriber", {}},
        {"Location", "Location", {}},
        {"Collect", "Collection", {}},
        {"Context",
         "Context",
         {{"", ""},
          {"Con", "Conversation"},
          {"Play", "Play"},
          {"Nar", "Narrative"},
          {"Expo", "Expository"},
          {"Pers", "Persuasion"},
          {"Fable", "Fable"}}},
        {"Subgroup", "Subgroup", {}},
        {"Language", "Language", {}},
        {"Bilingual", "Bilingual", {}},
        {"BilSubgroup", "Bilingual subgroup", {}},
    };
    return fields;
}

QString labelWithoutCommas(QString label) {
    label.replace(QLatin1Char(','), QLatin1Char(' '));
    return label.trimmed();
}

} // namespace

QString composeNewTranscript(const NewTranscriptValues& values) {
    QString text = QStringLiteral("$ ") + labelWithoutCommas(values.targetSpeaker) +
                   QStringLiteral(", ") + labelWithoutCommas(values.otherSpeaker) +
                   QLatin1Char('\n');
    for (const auto& [keyword, value] : values.header)
        if (!value.trimmed().isEmpty())
            text += QStringLiteral("+ ") + keyword + QStringLiteral(": ") + value.trimmed() +
                    QLatin1Char('\n');
    if (!values.startTime.trimmed().isEmpty())
        text += QStringLiteral("- ") + values.startTime.trimmed() + QLatin1Char('\n');
    return text;
}

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
        fields_.emplace_back(QString::fromLatin1(f.keyword), w);
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
    for (auto& [keyword, w] : fields_) {
        if (keyword.compare(key, Qt::CaseInsensitive) != 0)
            continue;
        if (auto* edit = qobject_cast<QLineEdit*>(w))
            edit->setText(value);
        else if (auto* box = qobject_cast<QComboBox*>(w))
            box->setCurrentText(value);
    }
}

NewTranscriptValues CNewTranscriptDialog::values() const {
    NewTranscriptValues v{target_->currentText(), other_->currentText(), {}, start_->text()};
    for (const auto& [keyword, w] : fields_) {
        QString value;
        if (auto* edit = qobject_cast<QLineEdit*>(w))
            value = edit->text();
        else if (auto* box = qobject_cast<QComboBox*>(w))
            value = box->currentText();
        v.header.emplace_back(keyword, value);
    }
    return v;
}

} // namespace tavi::app
