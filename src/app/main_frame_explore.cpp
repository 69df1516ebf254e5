// The Explore menu on the active transcript and Tools > Explore Multiple
// Transcripts: the criteria dialog, the list of found utterances as a report,
// stepping through them in the transcript view, inserting and deleting codes,
// and saving the found utterances as separate transcripts.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>

#include "app/doc_template.h"
#include "app/explore_dialog.h"
#include "app/main_frame.h"
#include "app/report_runner.h"
#include "app/rept_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "base/file_io.h"
#include "base/format.h"
#include "base/text.h"
#include "explore/explore_edit.h"
#include "settings/keyword_file.h"
#include "settings/section_save.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

namespace {

const char* sectionOf(bool multiple) {
    return multiple ? "EMULT" : "YOL";
}

QString transcriptFiles() {
    return QString::fromLatin1(kTranscriptFilter) + QStringLiteral(";;All Files (*)");
}

// One section of the list report: each found utterance and what was found.
ReportSection listSection(const std::string& title, const ExploreResult& r) {
    ReportSection section;
    section.title = title;
    for (const std::string& line : exploreListLines(r.matches))
        section.items.emplace_back(TextLine{line});
    section.items.emplace_back(TextLine{
        format("%d of %d utterances found.", static_cast<int>(r.matches.size()), r.searched)});
    return section;
}

// What the criteria ask for, for the report header.
std::string describe(const ExploreCriteria& c) {
    std::string text;
    auto add = [&](const std::string& part) {
        text += (text.empty() ? "" : c.all ? " AND " : " OR ") + part;
    };
    for (ExploreType t : c.types)
        add(std::string(exploreTypeName(t)));
    if (c.hasLength())
        add(format("length %d-%s %s", c.lengthFrom,
                   c.lengthTo > 0 ? std::to_string(c.lengthTo).c_str() : "",
                   c.lengthInMorphemes ? "morphemes" : "words"));
    std::string items;
    for (const std::string& item : c.items)
        items += (items.empty() ? "" : ", ") + item;
    if (!items.empty())
        add(items);
    if (text.empty())
        text = "every utterance";
    return c.negate ? "NOT (" + text + ")" : text;
}

} // namespace

std::optional<ExploreCriteria> CMainFrame::exploreCriteria(bool multiple) {
    const std::string keyword = sectionOf(multiple);
    const std::string listKeyword = exploreListKeyword(keyword);
    Settings& settings = app_.settings();
    ExploreCriteria saved;
    for (const KeywordLine& line : settings.sectionLines(keyword))
        applyExploreCriteriaLine(line, saved);
    for (const KeywordLine& line : settings.sectionLines(listKeyword))
        applyExploreItemLine(line, saved);
    CExploreDialog dialog(saved,
                          multiple ? QStringLiteral("Explore Multiple Transcripts")
                                   : QStringLiteral("Explore"),
                          app_.listDir(), this);
    // The criteria as the program default: the criteria section through the
    // one save procedure, then its item list beside it.
    dialog.offerSavingDefaults([this, keyword, listKeyword](const ExploreCriteria& c) {
        Settings& s = app_.settings();
        const SaveOutcome saved = saveSection({s.userSettingsFile(),
                                               keyword,
                                               exploreCriteriaLines(keyword, c),
                                               kSaveCriteriaQuestion,
                                               kSettingsSavedIn,
                                               s.canSaveDefaults(),
                                               {}},
                                              app_.prompter());
        if (saved != SaveOutcome::Saved)
            return;
        std::string present;
        readFile(s.userSettingsFile(), present);
        if (writeKeywordFile(
                s.userSettingsFile(),
                mergedSectionLines(present, listKeyword, exploreItemLines(listKeyword, c))) !=
            WriteStatus::Ok)
            app_.prompter().inform("Cannot write to " + s.userSettingsFile() + " (not saved)");
    });
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const ExploreCriteria chosen = dialog.criteria();
    settings.replaceSectionLines(keyword, exploreCriteriaLines(keyword, chosen));
    settings.replaceSectionLines(listKeyword, exploreItemLines(listKeyword, chosen));
    return chosen;
}

// The active transcript searched, after the person accepted its errors.
std::optional<ExploreResult> CMainFrame::exploreActive(const ExploreCriteria& criteria,
                                                       bool editing) {
    CTAVIFrame* frame = activeTranscriptFrame();
    if (!frame)
        return std::nullopt;
    CTAVIDoc& doc = frame->doc();
    ExploreResult r = exploreText(doc.utf8Text(), app_.analysisContext(), criteria);
    if (editing) {
        doc.setProblems(r.analysis.check.problems);
        if (r.analysis.hasErrors() &&
            app_.prompter().ask(codeErrorsQuestion(doc.title().toStdString())) != Answer::Yes)
            return std::nullopt;
    } else if (!acceptErrors(*frame, r.analysis.check.problems)) {
        return std::nullopt;
    }
    return r;
}

QStringList CMainFrame::exploreFiles(const QString& title) {
    return QFileDialog::getOpenFileNames(this, title, app_.transcriptDir(), transcriptFiles());
}

void CMainFrame::exploreList(bool multiple) {
    std::optional<ExploreCriteria> criteria = exploreCriteria(multiple);
    if (!criteria)
        return;
    Report report;
    report.title = "Explore List";
    report.header.push_back({"", "Criteria", ":  ", describe(*criteria)});
    CTAVIDoc* source = nullptr;
    if (!multiple) {
        std::optional<ExploreResult> r = exploreActive(*criteria, false);
        if (!r)
            return;
        source = &activeTranscriptFrame()->doc();
        report.header.insert(report.header.begin(),
                             LabelledLine{"", "Transcript", ":  ", source->title().toStdString()});
        report.sections.push_back(listSection("", *r));
    } else {
        const QStringList files = exploreFiles(QStringLiteral("Explore Multiple Transcripts"));
        if (files.isEmpty())
            return;
        const AnalysisContext context = app_.analysisContext();
        for (const QString& path : files) {
            const std::string name = QFileInfo(path).fileName().toStdString();
            std::string text;
            if (!readTranscriptText(path.toStdString(), text,
                                    app_.settings().language.textEncoding)) {
                report.sections.push_back({name, {TextLine{"Cannot be read."}}});
                continue;
            }
            ExploreResult r = exploreText(text, context, *criteria);
            ReportSection section = listSection(name, r);
            if (r.analysis.hasErrors())
                section.items.insert(section.items.begin(),
                                     TextLine{"This transcript contains errors."});
            report.sections.push_back(std::move(section));
        }
    }
    ReportContent content = reportContent(std::move(report));
    showReport(std::move(content), source);
}

void CMainFrame::exploreFind(bool multiple) {
    if (multiple) {
        std::optional<ExploreCriteria> criteria = exploreCriteria(true);
        if (!criteria)
            return;
        const AnalysisContext context = app_.analysisContext();
        int opened = 0;
        for (const QString& path : exploreFiles(QStringLiteral("Explore Multiple Transcripts"))) {
            std::string text;
            if (!readTranscriptText(path.toStdString(), text,
                                    app_.settings().language.textEncoding))
                continue;
            ExploreResult r = exploreText(text, context, *criteria);
            if (r.matches.empty())
                continue;
            if (CTAVIFrame* frame = openTranscript(path)) {
                ++opened;
                findDoc_ = &frame->doc();
                findText_ = frame->doc().utf8Text();
                findLines_ = matchLines(r.matches);
                frame->view().goToLine(findLines_.front());
            }
        }
        if (opened == 0)
            app_.prompter().inform("No utterances found");
        return;
    }
    CTAVIFrame* frame = activeTranscriptFrame();
    CTAVIDoc& doc = frame->doc();
    // The same transcript, unchanged since the last search: the next match.
    if (findDoc_ != &doc || findText_ != doc.utf8Text() || findLines_.empty()) {
        std::optional<ExploreCriteria> criteria = exploreCriteria(false);
        if (!criteria)
            return;
        std::optional<ExploreResult> r = exploreActive(*criteria, false);
        if (!r)
            return;
        if (r->matches.empty()) {
            findLines_.clear();
            app_.prompter().inform("No utterances found");
            return;
        }
        findDoc_ = &doc;
        findText_ = doc.utf8Text();
        findLines_ = matchLines(r->matches);
    }
    const int current = frame->view().textCursor().blockNumber() + 1;
    auto next = std::upper_bound(findLines_.begin(), findLines_.end(), current);
    if (next == findLines_.end())
        next = findLines_.begin(); // from the top again
    frame->view().goToLine(*next);
    statusBar()->showMessage(QStringLiteral("Utterance %1 of %2 found")
                                 .arg(static_cast<int>(next - findLines_.begin()) + 1)
                                 .arg(static_cast<int>(findLines_.size())));
}

// Puts new text in place of the document's as one undoable edit, keeping the
// caret's line.
void CMainFrame::replaceTranscriptText(CTAVIFrame& frame, const std::string& text) {
    const int line = frame.view().textCursor().blockNumber() + 1;
    QTextCursor cursor(frame.doc().document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.insertText(QString::fromStdString(text));
    cursor.endEditBlock();
    frame.view().goToLine(line);
}

// Writes an edited transcript file, keeping its backup, and says what was done.
std::string CMainFrame::writeExploreEdit(const QString& path, const CodeEdit& edit) {
    const std::string name = QFileInfo(path).fileName().toStdString();
    if (edit.changed == 0)
        return name + ": no change";
    const std::string backup = app_.backupDir().toStdString();
    switch (writeEditedTranscript(path.toStdString(), edit.text, backup)) {
    case EditWriteStatus::Ok:
        return name + format(": %d codes changed", edit.changed);
    case EditWriteStatus::BackupFailed:
        return name + ": " + backupFailedMessage(backupPath(path.toStdString(), backup)) +
               " (not changed)";
    case EditWriteStatus::WriteFailed:
        break;
    }
    return name + ": cannot be written (not changed)";
}

// Explores each of the files, asks about one with errors (Yes goes on, No
// skips it, Cancel stops) and lets `visit` say what became of it; the
// outcome lines are returned in file order.
QStringList CMainFrame::forEachExploredFile(
    const QStringList& files, const ExploreCriteria& criteria,
    const std::function<std::string(const std::string&)>& question,
    const std::function<std::string(const QString&, const std::string&, const ExploreResult&)>&
        visit) {
    const AnalysisContext context = app_.analysisContext();
    QStringList outcome;
    for (const QString& path : files) {
        const std::string name = QFileInfo(path).fileName().toStdString();
        std::string text;
        if (!readTranscriptText(path.toStdString(), text, app_.settings().language.textEncoding)) {
            outcome << QString::fromStdString(name + " could not be opened");
            continue;
        }
        ExploreResult r = exploreText(text, context, criteria);
        if (r.analysis.hasErrors()) {
            Answer a = app_.prompter().ask(question(name));
            if (a == Answer::Cancel)
                break;
            if (a == Answer::No)
                continue;
        }
        outcome << QString::fromStdString(visit(path, text, r));
    }
    return outcome;
}

// Runs an edit over chosen files: each is searched, asked about when it has
// errors, edited and saved with its backup; one message tells the outcome.
void CMainFrame::editFiles(
    const ExploreCriteria& criteria, const std::function<std::string(const std::string&)>& question,
    const std::function<CodeEdit(const std::string&, const ExploreResult&)>& edit) {
    const QStringList files = exploreFiles(QStringLiteral("Explore Multiple Transcripts"));
    if (files.isEmpty())
        return;
    const QStringList outcome = forEachExploredFile(
        files, criteria, question,
        [&](const QString& path, const std::string& text, const ExploreResult& r) {
            return writeExploreEdit(path, edit(text, r));
        });
    if (!outcome.isEmpty())
        app_.prompter().inform(outcome.join(QLatin1Char('\n')).toStdString());
}

// The last code inserted or deleted, kept in "YOLINS"/"EMULTINS" and
// "YOLDEL"/"EMULTDEL" ("CODE text", "PLACE WORD" or "PLACE UTT").
QString CMainFrame::rememberedCode(const char* keyword, bool* onWords) const {
    QString code;
    for (const KeywordLine& line : app_.settings().sectionLines(keyword)) {
        if (equalsIgnoreCase(line.subKey, "CODE"))
            code = QString::fromStdString(line.rest);
        else if (onWords && equalsIgnoreCase(line.subKey, "PLACE"))
            *onWords = equalsIgnoreCase(line.rest, "WORD");
    }
    return code;
}

std::optional<std::pair<std::string, CodePlace>> CMainFrame::askCodeToInsert(bool multiple) {
    const char* keyword = multiple ? "EMULTINS" : "YOLINS";
    bool onWords = false;
    const QString last = rememberedCode(keyword, &onWords);
    bool ok = false;
    const QString code =
        QInputDialog::getText(this, QStringLiteral("Insert Code"),
                              QStringLiteral("Code to insert:"), QLineEdit::Normal, last, &ok)
            .trimmed();
    if (!ok || code.isEmpty())
        return std::nullopt;
    const QStringList places = {QStringLiteral("Each found utterance"),
                                QStringLiteral("Each found word")};
    const QString place = QInputDialog::getItem(this, QStringLiteral("Insert Code"),
                                                QStringLiteral("Insert the code after:"), places,
                                                onWords ? 1 : 0, false, &ok);
    if (!ok)
        return std::nullopt;
    const std::string k(keyword);
    app_.settings().replaceSectionLines(k,
                                        {k + " CODE " + code.toStdString(),
                                         k + (place == places[1] ? " PLACE WORD" : " PLACE UTT")});
    return std::make_pair(code.toStdString(),
                          place == places[1] ? CodePlace::Words : CodePlace::Utterance);
}

void CMainFrame::exploreInsertCode(bool multiple) {
    std::optional<ExploreCriteria> criteria = exploreCriteria(multiple);
    if (!criteria)
        return;
    std::optional<std::pair<std::string, CodePlace>> code = askCodeToInsert(multiple);
    if (!code)
        return;
    if (multiple) {
        editFiles(*criteria, codeErrorsQuestion,
                  [&](const std::string& text, const ExploreResult& r) {
                      return insertExploreCode(text, r.matches, code->first, code->second);
                  });
        return;
    }
    std::optional<ExploreResult> r = exploreActive(*criteria, true);
    if (!r)
        return;
    CTAVIFrame* frame = activeTranscriptFrame();
    CodeEdit edit =
        insertExploreCode(frame->doc().utf8Text(), r->matches, code->first, code->second);
    if (edit.changed > 0)
        replaceTranscriptText(*frame, edit.text);
    app_.prompter().inform(format("%d codes inserted", edit.changed));
}

void CMainFrame::exploreDeleteCode(bool multiple, bool fromExplore) {
    const char* keyword = multiple ? "EMULTDEL" : "YOLDEL";
    bool ok = false;
    const QString code = QInputDialog::getText(this, QStringLiteral("Delete Code"),
                                               QStringLiteral("Code to delete (EW, EW*):"),
                                               QLineEdit::Normal, rememberedCode(keyword), &ok)
                             .trimmed();
    if (!ok || code.isEmpty())
        return;
    app_.settings().replaceSectionLines(keyword,
                                        {std::string(keyword) + " CODE " + code.toStdString()});
    const std::string item = code.toStdString();
    // From the Explore menus the code goes from the found utterances or from
    // every utterance, as chosen; Edit > Delete Code takes it from every one.
    bool inMatches = false;
    if (fromExplore) {
        const QStringList where = {QStringLiteral("Every utterance"),
                                   QStringLiteral("The utterances found by the criteria")};
        const QString chosen =
            QInputDialog::getItem(this, QStringLiteral("Delete Code"),
                                  QStringLiteral("Delete the code from:"), where, 0, false, &ok);
        if (!ok)
            return;
        inMatches = chosen == where[1];
    }
    ExploreCriteria criteria;
    if (inMatches) {
        std::optional<ExploreCriteria> chosen = exploreCriteria(multiple);
        if (!chosen)
            return;
        criteria = *chosen;
    }
    auto lines = [inMatches](const ExploreResult& r) {
        return inMatches ? matchLines(r.matches) : utteranceLines(r.analysis.check.segmented);
    };
    if (multiple) {
        editFiles(criteria, decodeErrorsQuestion,
                  [&](const std::string& text, const ExploreResult& r) {
                      return deleteExploreCode(text, lines(r), item);
                  });
        return;
    }
    CTAVIFrame* frame = activeTranscriptFrame();
    ExploreResult r = exploreText(frame->doc().utf8Text(), app_.analysisContext(), criteria);
    if (r.analysis.hasErrors() && app_.prompter().ask(decodeErrorsQuestion(
                                      frame->doc().title().toStdString())) != Answer::Yes)
        return;
    CodeEdit edit = deleteExploreCode(frame->doc().utf8Text(), lines(r), item);
    if (edit.changed > 0)
        replaceTranscriptText(*frame, edit.text);
    app_.prompter().inform(format("%d codes deleted", edit.changed));
}

// What a separate transcript keeps besides the found utterances, asked with
// the choices of the last time ("YOLSAVE"/"EMULTSAVE").
bool CMainFrame::separateOptions(bool multiple, SeparateOptions& options) {
    const std::string keyword = multiple ? "EMULTSAVE" : "YOLSAVE";
    Settings& settings = app_.settings();
    for (const KeywordLine& line : settings.sectionLines(keyword))
        applySeparateOptionLine(line, options);
    QDialog dialog(this);
    dialog.setWindowTitle(multiple ? QStringLiteral("Save as Separate Transcripts")
                                   : QStringLiteral("Save as Separate Transcript"));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(
        new QLabel(QStringLiteral("Keep the \"$\" line, the found utterances and:"), &dialog));
    auto box = [&](const char* text, const char* name, bool on) {
        auto* b = new QCheckBox(QString::fromLatin1(text), &dialog);
        b->setObjectName(QString::fromLatin1(name));
        b->setChecked(on);
        layout->addWidget(b);
        return b;
    };
    QCheckBox* plus = box("Header lines (+)", "plusLines", options.plusLines);
    QCheckBox* timing = box("Timing lines (-)", "timing", options.timing);
    QCheckBox* pauses = box("Pause lines (: and ;)", "pauses", options.pauses);
    QCheckBox* comments = box("Comment lines (=)", "comments", options.comments);
    QLineEdit* prefix = nullptr;
    if (multiple) {
        auto* row = new QFormLayout;
        prefix = new QLineEdit(QString::fromStdString(options.prefix), &dialog);
        prefix->setObjectName(QStringLiteral("prefix"));
        row->addRow(QStringLiteral("File name prefix:"), prefix);
        layout->addLayout(row);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    options.plusLines = plus->isChecked();
    options.timing = timing->isChecked();
    options.pauses = pauses->isChecked();
    options.comments = comments->isChecked();
    if (prefix)
        options.prefix = prefix->text().trimmed().toStdString();
    settings.replaceSectionLines(keyword, separateOptionLines(keyword, options));
    return true;
}

void CMainFrame::exploreSave(bool multiple) {
    std::optional<ExploreCriteria> criteria = exploreCriteria(multiple);
    if (!criteria)
        return;
    SeparateOptions options;
    if (!separateOptions(multiple, options))
        return;
    if (!multiple) {
        std::optional<ExploreResult> r = exploreActive(*criteria, false);
        if (!r)
            return;
        CTAVIDoc& doc = activeTranscriptFrame()->doc();
        const QString path =
            QFileDialog::getSaveFileName(this, QStringLiteral("Save as Separate Transcript"),
                                         app_.transcriptDir(), transcriptFiles());
        if (path.isEmpty())
            return;
        const std::string text =
            separateTranscriptText(splitTranscriptLines(doc.utf8Text()), r->matches, options);
        if (saveTranscript(path.toStdString(), text) != WriteStatus::Ok) {
            app_.prompter().inform("Cannot write to " + path.toStdString());
            return;
        }
        openTranscript(path);
        return;
    }
    const QStringList files = exploreFiles(QStringLiteral("Explore Multiple Transcripts"));
    if (files.isEmpty())
        return;
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Save Separate Transcripts In"), app_.transcriptDir());
    if (folder.isEmpty())
        return;
    const QStringList outcome = forEachExploredFile(
        files, *criteria, separateErrorsQuestion,
        [&](const QString& path, const std::string& text, const ExploreResult& r) -> std::string {
            const std::string name = QFileInfo(path).fileName().toStdString();
            const QString target =
                QDir(folder).filePath(QString::fromStdString(options.prefix + name));
            if (QFileInfo(target).canonicalFilePath() == QFileInfo(path).canonicalFilePath())
                return name + ": not saved over itself";
            const std::string separate =
                separateTranscriptText(splitTranscriptLines(text), r.matches, options);
            if (saveTranscript(target.toStdString(), separate) != WriteStatus::Ok)
                return "Cannot write to " + target.toStdString();
            return format("%s: %d utterances saved", target.toStdString().c_str(),
                          static_cast<int>(r.matches.size()));
        });
    app_.prompter().inform(outcome.join(QLatin1Char('\n')).toStdString());
}

} // namespace tavi::app
