// The macro-analysis commands: Edit > "Insert Template" puts a scoring
// template's "+" lines into the transcript after the clinician picks each
// score, and the Analyze and Database reports of a template (or of the
// Subordination Index) can be chosen only when the transcript holds its
// lines (or SI codes).
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "analysis/si_suggest.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/transcript_peers.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"
#include "transcript/scoring_template.h"

namespace tavi::app {

namespace {

// Whether a "+" line of the stem ("+ NSS Introduction: 3") is in the text;
// an empty stem asks for an SI code instead.
bool holdsMacroLines(QTextDocument& doc, const QString& stem) {
    const QRegularExpression pattern =
        stem.isEmpty()
            ? QRegularExpression(QStringLiteral("\\[SI-\\d+\\??\\]"),
                                 QRegularExpression::CaseInsensitiveOption)
            : QRegularExpression(QStringLiteral("^\\+\\s*") + QRegularExpression::escape(stem) +
                                     QStringLiteral("\\s[^:]*:"),
                                 QRegularExpression::CaseInsensitiveOption);
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next())
        if (pattern.match(b.text()).hasMatch())
            return true;
    return false;
}

// One combo box per component: "?" (unscored) or a score with its meaning.
class TemplateScoreDialog : public QDialog {
public:
    TemplateScoreDialog(const ScoringTemplate& scoring, QWidget* parent) : QDialog(parent) {
        setWindowTitle(QString::fromStdString(scoring.name));
        auto* form = new QFormLayout(this);
        for (const TemplateComponent& c : scoring.components) {
            auto* box = new QComboBox(this);
            box->addItem(QStringLiteral("? (not scored yet)"), QStringLiteral("?"));
            for (const ScoreLevel& level : c.levels)
                box->addItem(QString::number(level.score) + QStringLiteral(" - ") +
                                 QString::fromStdString(level.meaning),
                             QString::number(level.score));
            box->setToolTip(QString::fromStdString(c.description));
            form->addRow(QString::fromStdString(c.name), box);
            boxes_.push_back(box);
        }
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        form->addRow(buttons);
    }
    QString value(size_t i) const { return boxes_[i]->currentData().toString(); }

private:
    std::vector<QComboBox*> boxes_;
};

// Where header lines go: after the last "$" or "+" line before the first
// utterance, else at the top.
QTextCursor headerInsertPoint(QTextDocument& doc) {
    QTextBlock after;
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        const QString text = b.text();
        if (text.startsWith(QLatin1Char('$')) || text.startsWith(QLatin1Char('+')))
            after = b;
        else if (!text.trimmed().isEmpty() && text.front().isLetter())
            break; // the first utterance
    }
    QTextCursor cursor(&doc);
    if (after.isValid()) {
        cursor.setPosition(after.position() + after.length() - 1);
        cursor.insertText(QStringLiteral("\n"));
    } else {
        cursor.movePosition(QTextCursor::Start);
    }
    return cursor;
}

} // namespace

void CMainFrame::insertTemplate(std::string_view key) {
    CTAVIFrame* frame = activeTranscriptFrame();
    if (!frame)
        return;
    const TemplateSet templates = loadTemplateFolder(app_.settings().folders.templates, nullptr);
    const ScoringTemplate* scoring = templates.find(key);
    if (!scoring) {
        QMessageBox::information(
            this, QStringLiteral("TAVI"),
            QStringLiteral("No template %1 was found in %2")
                .arg(QString::fromUtf8(key.data(), key.size()),
                     QString::fromStdString(app_.settings().folders.templates)));
        return;
    }
    TemplateScoreDialog dialog(*scoring, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString lines;
    for (size_t i = 0; i < scoring->components.size(); ++i)
        lines += QStringLiteral("+ ") +
                 QString::fromStdString(scoring->keyword(scoring->components[i])) +
                 QStringLiteral(": ") + dialog.value(i) +
                 (i + 1 < scoring->components.size() ? QStringLiteral("\n") : QString());
    QTextDocument& doc = *frame->doc().document();
    QTextCursor cursor = headerInsertPoint(doc);
    cursor.beginEditBlock();
    cursor.insertText(lines + (cursor.atStart() ? QStringLiteral("\n") : QString()));
    cursor.endEditBlock();
    updateCommands();
}

void CMainFrame::insertSiCodes() {
    CTAVIFrame* frame = activeTranscriptFrame();
    if (!frame)
        return;
    CTAVIDoc& doc = frame->doc();
    std::optional<TranscriptAnalysis> analysis =
        checkedAnalysis(doc, app_.settings().siCodeSpeaker);
    if (!analysis)
        return;
    const AnalysisContext context = app_.analysisContext();
    VerbList verbs;
    VerbList::loadFile(app_.settings().folders.sharedData + "verbs.txt", verbs);
    const QString before = doc.document()->toPlainText();
    SiInsertion inserted =
        tavi::insertSiCodes(before.toStdString(), analysis->check.segmented,
                            analysis->result.selection.speakers[analysis->speaker].analysisSet,
                            verbs, context.measures.dictionary, context.measures.siCodePrefix);
    if (inserted.coded > 0) {
        QString after = QString::fromStdString(inserted.text);
        if (!before.endsWith(QLatin1Char('\n')) && after.endsWith(QLatin1Char('\n')))
            after.chop(1);
        QTextCursor cursor(doc.document());
        cursor.beginEditBlock();
        cursor.select(QTextCursor::Document);
        cursor.insertText(after);
        cursor.endEditBlock();
    }
    QMessageBox::information(
        this, QStringLiteral("TAVI"),
        QStringLiteral("%1 utterances were given a suggested SI code, marked \"?\" for review: "
                       "check each count and remove the \"?\" to have it counted.")
            .arg(inserted.coded));
    updateCommands();
}

void CMainFrame::siCodeSettings() {
    const QStringList speakers{QStringLiteral("1st Speaker"), QStringLiteral("2nd Speaker")};
    bool ok = false;
    const QString chosen = QInputDialog::getItem(
        this, QStringLiteral("SI Code Settings"),
        QStringLiteral("Insert SI Codes codes the analysis-set utterances of:"), speakers,
        app_.settings().siCodeSpeaker, false, &ok);
    if (!ok)
        return;
    Settings& settings = app_.settings();
    settings.siCodeSpeaker = std::max(0, static_cast<int>(speakers.indexOf(chosen)));
    saveSection({settings.userSettingsFile(),
                 "SICODESET",
                 siCodeSetLines(settings.siCodeSpeaker),
                 kSaveSettingsQuestion,
                 kSettingsSavedIn,
                 settings.canSaveDefaults(),
                 {}},
                app_.prompter());
}

void CMainFrame::registerMacroCommands() {
    using enum CommandId;
    struct Item {
        CommandId analyze, database;
        const char* key;    // the template; empty: SI codes
        const char* kind;   // the report
        const char* dbKind; // the report against a database
    };
    const Item items[] = {
        {ID_ANAL_NSS, ID_DB_NSS, "NSS", "nss", "db-nss"},
        {ID_ANAL_ESS, ID_DB_ESS, "ESS", "ess", "db-ess"},
        {ID_ANAL_PSS, ID_DB_PSS, "PSS", "pss", "db-pss"},
        {ID_ANAL_CQ, ID_DB_CQ, "CQ", "questions", "db-questions"},
        {ID_ANAL_ONQ, ID_DB_ONQ, "ONQ", "onq", "db-onq"},
        {ID_ANAL_SI, ID_DB_SI, "", "si", "db-si"},
    };
    auto transcript = [this] { return activeTranscriptFrame() != nullptr; };
    for (const Item& item : items) {
        const QString stem = QString::fromLatin1(item.key);
        const std::string_view kind = item.kind, dbKind = item.dbKind;
        on(
            item.analyze, [this, kind] { analyzeReport(kind); },
            [this, stem] {
                CTAVIFrame* frame = activeTranscriptFrame();
                return frame && holdsMacroLines(*frame->doc().document(), stem);
            });
        on(
            item.database, [this, dbKind] { databaseReport(dbKind); },
            [this, stem] {
                CTAVIDoc* doc = databaseTarget();
                return doc && doc->peers().ready() && holdsMacroLines(*doc->document(), stem);
            });
    }
    const std::pair<CommandId, const char*> inserts[] = {
        {ID_TEMPLATE_NSS, "NSS"}, {ID_TEMPLATE_ESS, "ESS"}, {ID_TEMPLATE_PSS, "PSS"},
        {ID_TEMPLATE_CQ, "CQ"},   {ID_TEMPLATE_FCB, "FCB"}, {ID_TEMPLATE_ONQ, "ONQ"},
        {ID_TEMPLATE_ONC, "ONC"}};
    for (const auto& [id, key] : inserts)
        on(
            id, [this, key] { insertTemplate(key); }, transcript);
    on(
        ID_EDIT_INSERT_SI, [this] { insertSiCodes(); }, transcript);
    on(ID_EDSET_SI, [this] { siCodeSettings(); });
}

} // namespace tavi::app
