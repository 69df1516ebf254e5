// Root identification and grammatical-category coding: Edit > "Identify
// Roots" and "Insert Grammatical Category Codes", and Setup > Editor Settings
// > Root Identification Files (RIF) > "Edit RIF File Contents" and "RIF
// Settings". The work on the text is the core's; this file shows it.
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>

#include <map>

#include "app/main_frame.h"
#include "app/rif_dialogs.h"
#include "app/tavi_app.h"
#include "app/tavi_doc.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "base/format.h"
#include "base/text.h"
#include "explore/word_marking.h"
#include "settings/rif_settings.h"
#include "transcript/header_line.h"
#include "transcript/transcript_file.h"

namespace tavi::app {

namespace {

// The transcript's "+Language:" value, empty when it has none.
std::string transcriptLanguage(const TranLines& lines) {
    for (const tranLine& line : lines)
        if (std::optional<HeaderLine> h = parseHeaderLine(line.text, line.line);
            h && equalsIgnoreCase(h->keyword, "Language"))
            return h->value;
    return {};
}

// Selects the bytes [from, to) of a line in the editor, so the word asked
// about is seen in its place.
void selectInEditor(QPlainTextEdit& editor, const RootCandidate& c) {
    const QTextBlock block = editor.document()->findBlockByNumber(c.line - 1);
    if (!block.isValid())
        return;
    auto units = [&](size_t bytes) {
        return static_cast<int>(
            QString::fromUtf8(c.lineText.data(), static_cast<qsizetype>(bytes)).size());
    };
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + units(c.wordStart));
    cursor.setPosition(block.position() + units(c.wordEnd), QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor);
    editor.centerCursor();
}

} // namespace

void CMainFrame::identifyRoots() {
    CTAVIFrame* frame = activeTranscriptFrame();
    if (!frame)
        return;
    CTAVIDoc& doc = frame->doc();
    const std::string text = doc.utf8Text();
    const TranLines lines = splitTranscriptLines(text);
    const TranscriptAnalysis analysis = analyseTranscript(lines, app_.analysisContext());
    const Settings& settings = app_.settings();
    const RifSettings rif = rifSettings(settings);
    const LanguageSlot slot = rifSlotFor(transcriptLanguage(lines), rif);
    const std::filesystem::path path = rifFilePath(settings, rif, slot);
    if (path.empty()) {
        app_.prompter().inform("No root identification file is set for this language (see "
                               "Setup > Editor Settings > Root Identification Files)");
        return;
    }
    const std::optional<RifFileContents> file = readRifFile(path);
    if (!file) {
        app_.prompter().inform("Unable to open root identification file (" + path.string() + ")");
        return;
    }
    const std::vector<RootCandidate> candidates =
        rootCandidates(analysis.check.segmented, lines, file->words);
    if (candidates.empty()) {
        app_.prompter().inform("No words to identify: every word of the root identification "
                               "file already has its root");
        return;
    }
    std::vector<LineChange> changes;
    std::map<QString, int> remembered; // form (lower case) -> the choice for all of it
    for (size_t i = 0; i < candidates.size(); ++i) {
        const RootCandidate& c = candidates[i];
        const QString key = QString::fromStdString(c.form).toLower();
        if (auto it = remembered.find(key); it != remembered.end()) {
            if (static_cast<size_t>(it->second) < c.choices.size())
                changes.push_back(rootChange(c, c.choices[static_cast<size_t>(it->second)]));
            continue;
        }
        selectInEditor(frame->view(), c);
        CIdentifyRootsDialog dialog(c, rif.replaceAll, static_cast<int>(candidates.size() - i),
                                    this);
        const int outcome = dialog.exec();
        if (outcome == CIdentifyRootsDialog::Cancelled)
            break;
        if (outcome != CIdentifyRootsDialog::Replace)
            continue;
        changes.push_back(rootChange(c, c.choices[static_cast<size_t>(dialog.chosen())]));
        if (dialog.replaceAll())
            remembered[key] = dialog.chosen();
    }
    if (changes.empty())
        return;
    const int written = static_cast<int>(changes.size());
    std::string after = applyLineChanges(text, std::move(changes));
    replaceTranscriptText(*frame, after);
    app_.prompter().inform(
        tavi::format("%d words given a root identification or replaced", written));
    updateCommands();
}

void CMainFrame::editRifContents() {
    const Settings& settings = app_.settings();
    const RifSettings rif = rifSettings(settings);
    LanguageSlot slot = LanguageSlot::Primary;
    if (CTAVIFrame* frame = activeTranscriptFrame())
        slot = rifSlotFor(transcriptLanguage(frame->doc().lines()), rif);
    std::filesystem::path path = rifFilePath(settings, rif, slot);
    if (path.empty())
        path = std::filesystem::path(settings.folders.rif) / kDefaultRifFile;
    CRifEditorDialog dialog(app_, QString::fromStdString(path.string()), this);
    dialog.exec();
}

void CMainFrame::rifSettingsDialog() {
    CRifSettingsDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::insertGcCodes() {
    CTAVIFrame* frame = activeTranscriptFrame();
    if (!frame)
        return;
    CTAVIDoc& doc = frame->doc();
    CInsertGcDialog dialog(app_.settings().gcCodes, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const CategoryCodeOptions options = dialog.options();
    std::optional<TranscriptAnalysis> analysis = checkedAnalysis(doc, options.speaker == 1 ? 1 : 0);
    if (!analysis)
        return;
    const AnalysisContext context = app_.analysisContext();
    if (!context.measures.dictionary) {
        app_.prompter().inform("No grammatical category dictionary: no codes inserted");
        return;
    }
    const std::string text = doc.utf8Text();
    CodeEdit edit = insertCategoryCodes(text, *analysis, context.measures.dictionary, options);
    if (edit.changed > 0)
        replaceTranscriptText(*frame, edit.text);
    app_.prompter().inform(
        edit.changed > 0
            ? tavi::format("%d grammatical category codes inserted for review", edit.changed)
            : std::string("No grammatical category codes inserted"));
    updateCommands();
}

void CMainFrame::registerRifCommands() {
    using enum CommandId;
    auto transcript = [this] { return activeTranscriptFrame() != nullptr; };
    on(
        ID_EDIT_IDENTIFY_ROOTS, [this] { identifyRoots(); }, transcript);
    on(
        ID_EDIT_INSERT_GC, [this] { insertGcCodes(); }, transcript);
    on(ID_EDSET_RIF_EDIT, [this] { editRifContents(); });
    on(ID_EDSET_RIF_SETTINGS, [this] { rifSettingsDialog(); });
}

} // namespace tavi::app
