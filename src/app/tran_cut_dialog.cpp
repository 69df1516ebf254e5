// Choosing the transcript cut.
#include "app/tran_cut_dialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app/tavi_app.h"
#include "base/format.h"
#include "settings/section_lines.h"
#include "transcript/time_value.h"

namespace tavi::app {
namespace {

QString timeText(int seconds) {
    return QString::fromStdString(tavi::format("%d:%02d", seconds / 60, seconds % 60));
}

QSpinBox* countBox(const char* name) {
    auto* box = new QSpinBox;
    box->setRange(0, 99999);
    box->setObjectName(QString::fromLatin1(name));
    return box;
}

QLineEdit* textBox(const char* name, const char* example = nullptr) {
    auto* box = new QLineEdit;
    box->setObjectName(QString::fromLatin1(name));
    if (example)
        box->setPlaceholderText(QString::fromLatin1(example));
    return box;
}

QComboBox* choiceBox(const char* name, const QStringList& items) {
    auto* box = new QComboBox;
    box->setObjectName(QString::fromLatin1(name));
    box->addItems(items);
    return box;
}

QRadioButton* option(QButtonGroup* group, int id, const char* text, const char* name) {
    auto* button = new QRadioButton(QString::fromLatin1(text));
    button->setObjectName(QString::fromLatin1(name));
    group->addButton(button, id);
    return button;
}

// "Analysis set" is base 0 and "Total utterances" base 1 in the record.
const QStringList kBases = {QStringLiteral("Analysis set"), QStringLiteral("Total utterances")};

} // namespace

CTranCutDialog::CTranCutDialog(CTAVIApp& app, QWidget* parent)
    : COptionsDialog(app, QStringLiteral("Current Transcript Cut"), parent),
      start_(new QButtonGroup(this)), end_(new QButtonGroup(this)),
      startUtterance_(countBox("startUtterance")),
      startSpeaker_(choiceBox("startSpeaker", {"1st speaker", "2nd speaker"})),
      startBase_(choiceBox("startBase", kBases)), startTime_(textBox("startTime", "e.g., 4:15")),
      startCode_(textBox("startCode")), endUtterance_(countBox("endUtterance")),
      endTime_(textBox("endTime", "e.g., 8:56")), endCode_(textBox("endCode")),
      targetCount_(countBox("targetCount")), targetTime_(textBox("targetTime", "e.g., 5:00")),
      targetSpeaker_(choiceBox("targetSpeaker", {"1st speaker", "2nd speaker", "Either speaker"})),
      targetBase_(choiceBox("targetBase", kBases)),
      wordArea_(choiceBox("wordArea", {"Main body", "Main body & Mazes"})) {
    setObjectName(QStringLiteral("CTranCutDialog"));
    using T = TranscriptCut;

    auto* startBox = new QGroupBox(QStringLiteral("START POINT"));
    auto* s = new QGridLayout(startBox);
    s->addWidget(option(start_, T::FromBeginning, "Beginning of transcript", "fromBeginning"), 0,
                 0);
    s->addWidget(option(start_, T::FromUtterance, "Utterance number", "fromUtterance"), 1, 0);
    s->addWidget(startUtterance_, 1, 1);
    s->addWidget(new QLabel(QStringLiteral("Speaker")), 2, 0, Qt::AlignRight);
    s->addWidget(startSpeaker_, 2, 1);
    s->addWidget(new QLabel(QStringLiteral("Utterance Base")), 3, 0, Qt::AlignRight);
    s->addWidget(startBase_, 3, 1);
    s->addWidget(option(start_, T::FromTiming, "Timing line", "fromTiming"), 4, 0);
    s->addWidget(startTime_, 4, 1);
    s->addWidget(option(start_, T::FromCode, "Code", "fromCode"), 5, 0);
    s->addWidget(startCode_, 5, 1);

    auto* endBox = new QGroupBox(QStringLiteral("END POINT"));
    auto* e = new QGridLayout(endBox);
    e->addWidget(option(end_, T::ToEnd, "End of transcript", "toEnd"), 0, 0);
    e->addWidget(option(end_, T::ToUtterance, "Utterance number", "toUtterance"), 1, 0);
    e->addWidget(endUtterance_, 1, 1);
    e->addWidget(option(end_, T::ToTiming, "Timing line", "toTiming"), 2, 0);
    e->addWidget(endTime_, 2, 1);
    e->addWidget(option(end_, T::ToCode, "Code", "toCode"), 3, 0);
    e->addWidget(endCode_, 3, 1);

    auto* targetBox = new QGroupBox(QStringLiteral("CONTENT TARGET"));
    auto* c = new QGridLayout(targetBox);
    c->addWidget(option(end_, T::ToUtteranceCount, "No. of utterances", "toUtteranceCount"), 0, 0);
    c->addWidget(option(end_, T::ToWordCount, "No. of words", "toWordCount"), 1, 0);
    c->addWidget(targetCount_, 0, 1, 2, 1);
    c->addWidget(option(end_, T::ToElapsedTime, "Elapsed time", "toElapsedTime"), 2, 0);
    c->addWidget(targetTime_, 2, 1);
    c->addWidget(new QLabel(QStringLiteral("Speaker")), 3, 0, Qt::AlignRight);
    c->addWidget(targetSpeaker_, 3, 1);
    c->addWidget(new QLabel(QStringLiteral("Utterance Base")), 4, 0, Qt::AlignRight);
    c->addWidget(targetBase_, 4, 1);
    c->addWidget(new QLabel(QStringLiteral("Word Area")), 5, 0, Qt::AlignRight);
    c->addWidget(wordArea_, 5, 1);

    auto* instruction = new QLabel(
        QStringLiteral("<b>START POINT</b> and either <b>END POINT or CONTENT TARGET</b>"));
    auto* row = new QHBoxLayout;
    row->addWidget(startBox);
    auto* right = new QVBoxLayout;
    right->addWidget(endBox);
    right->addWidget(targetBox);
    row->addLayout(right);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(instruction);
    layout->addLayout(row);
    layout->addWidget(buttons());
    setValues(app.settings().transcriptCut);
}

void CTranCutDialog::chooseStart(int type) {
    start_->button(type)->setChecked(true);
}
void CTranCutDialog::chooseEnd(int type) {
    end_->button(type)->setChecked(true);
}

TranscriptCut CTranCutDialog::values() const {
    TranscriptCut cut;
    cut.startType = start_->checkedId();
    cut.endType = end_->checkedId();
    cut.startUtterance = startUtterance_->value();
    cut.startSpeaker = startSpeaker_->currentIndex();
    cut.startBase = startBase_->currentIndex();
    cut.startTime = readTimeValue(startTime_->text().toStdString()).elapsed();
    cut.startCode = startCode_->text().trimmed().toStdString();
    cut.endCode = endCode_->text().trimmed().toStdString();
    switch (cut.endType) {
    case TranscriptCut::ToUtterance:
        cut.endValue = endUtterance_->value();
        cut.endSpeaker = startSpeaker_->currentIndex();
        cut.endBase = startBase_->currentIndex();
        break;
    case TranscriptCut::ToTiming:
        cut.endTime = readTimeValue(endTime_->text().toStdString()).elapsed();
        break;
    case TranscriptCut::ToWordCount:
    case TranscriptCut::ToUtteranceCount:
        cut.endValue = targetCount_->value();
        cut.endSpeaker = targetSpeaker_->currentIndex();
        cut.endBase = targetBase_->currentIndex();
        cut.wordArea = wordArea_->currentIndex();
        break;
    case TranscriptCut::ToElapsedTime:
        cut.endTime = readTimeValue(targetTime_->text().toStdString()).elapsed();
        break;
    default:
        break;
    }
    return cut;
}

void CTranCutDialog::setValues(const TranscriptCut& cut) {
    chooseStart(cut.startType);
    chooseEnd(cut.endType);
    startUtterance_->setValue(cut.startUtterance);
    startSpeaker_->setCurrentIndex(cut.startSpeaker);
    startBase_->setCurrentIndex(cut.startBase == 1 ? 1 : 0);
    startTime_->setText(cut.startType == TranscriptCut::FromTiming ? timeText(cut.startTime)
                                                                   : QString());
    startCode_->setText(QString::fromStdString(cut.startCode));
    endCode_->setText(QString::fromStdString(cut.endCode));
    const bool counts =
        cut.endType == TranscriptCut::ToWordCount || cut.endType == TranscriptCut::ToUtteranceCount;
    endUtterance_->setValue(cut.endType == TranscriptCut::ToUtterance ? cut.endValue : 0);
    targetCount_->setValue(counts ? cut.endValue : 0);
    endTime_->setText(cut.endType == TranscriptCut::ToTiming ? timeText(cut.endTime) : QString());
    targetTime_->setText(cut.endType == TranscriptCut::ToElapsedTime ? timeText(cut.endTime)
                                                                     : QString());
    targetSpeaker_->setCurrentIndex(std::clamp(cut.endSpeaker, 0, 2));
    targetBase_->setCurrentIndex(cut.endBase == 1 ? 1 : 0);
    wordArea_->setCurrentIndex(cut.wordArea ? 1 : 0);
}

// A time box in use must hold a time ("4:15").
bool CTranCutDialog::validateTimes() {
    const std::pair<bool, QLineEdit*> inUse[] = {
        {start_->checkedId() == TranscriptCut::FromTiming, startTime_},
        {end_->checkedId() == TranscriptCut::ToTiming, endTime_},
        {end_->checkedId() == TranscriptCut::ToElapsedTime, targetTime_}};
    for (const auto& [used, box] : inUse) {
        if (!used)
            continue;
        const TimeValue t = readTimeValue(box->text().trimmed().toStdString());
        if (t.valid && t.given)
            continue;
        app().prompter().inform("Enter a time as minutes:seconds, e.g., 4:15");
        box->setFocus();
        return false;
    }
    return true;
}

std::vector<std::string> CTranCutDialog::sectionLines() const {
    return transcriptCutLines(values());
}

void CTranCutDialog::apply() {
    app().settings().transcriptCut = values();
}

} // namespace tavi::app
