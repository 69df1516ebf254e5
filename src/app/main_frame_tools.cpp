// The Tools menu: the rectangular data file, the list generators, checking
// many transcripts and building a reference database. Each runs the core's
// own procedure (the batch run, list generation, the batch error check, the
// database builder) over transcripts chosen from a folder.
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "app/batch_dialog.h"
#include "app/db_build_dialog.h"
#include "app/list_gen_dialog.h"
#include "app/main_frame.h"
#include "app/qt_prompter.h"
#include "app/report_runner.h"
#include "app/rept_frame.h"
#include "app/tavi_app.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app/transcript_picker.h"
#include "base/file_io.h"
#include "base/format.h"
#include "batch/batch_check.h"
#include "batch/list_generation.h"
#include "settings/section_save.h"
#include "transcript/check_listing.h"

namespace tavi::app {
namespace {

const char* listTitle(ListKind kind) {
    return kind == ListKind::Words            ? "Word List"
           : kind == ListKind::BoundMorphemes ? "Bound Morpheme List"
                                              : "Code List";
}

// The generated list as a report: the count of transcripts read and one
// table row per item with the chosen columns.
Report listReport(const GeneratedList& list, const ListOptions& options) {
    Report report;
    report.title = listTitle(list.kind);
    report.header.push_back({"", "Transcripts", ":  ", std::to_string(list.transcripts)});
    ReportTable table;
    table.labelHeading = list.kind == ListKind::Words            ? "Word"
                         : list.kind == ListKind::BoundMorphemes ? "Bound Morpheme"
                                                                 : "Code";
    if (options.countTotal)
        table.headings.push_back("Total");
    if (options.countTranscripts)
        table.headings.push_back("Transcripts");
    if (options.percentTranscripts)
        table.headings.push_back("% Transcripts");
    for (const ListEntry& e : list.entries) {
        ReportTable::Row row{e.item, {}};
        if (options.countTotal)
            row.cells.push_back(std::to_string(e.total));
        if (options.countTranscripts)
            row.cells.push_back(std::to_string(e.transcripts));
        if (options.percentTranscripts)
            row.cells.push_back(format(
                "%.1f", list.transcripts > 0 ? 100.0 * e.transcripts / list.transcripts : 0.0));
        table.rows.push_back(std::move(row));
    }
    report.sections.push_back({"", {table}});
    report.footnotes = list.messages;
    return report;
}

// The check of many transcripts: one section per transcript with its
// problems, then the summary table (file, errors, warnings).
Report checkReport(const BatchCheckResult& result) {
    Report report;
    report.title = "Check for Errors";
    report.header.push_back(
        {"", "Transcripts", ":  ", std::to_string(static_cast<int>(result.files.size()))});
    ReportTable summary;
    summary.labelHeading = "File";
    summary.headings = {"Errors", "Warnings"};
    for (const FileCheck& file : result.files) {
        ReportSection section{file.file.string(), {}};
        if (!file.read)
            section.items.push_back(TextLine{format("%s could not be opened", file.file.c_str())});
        for (const err& e : file.problems)
            section.items.push_back(TextLine{formatProblem(e)});
        if (file.read && file.problems.empty())
            section.items.push_back(TextLine{checkSummary(0, 0)});
        report.sections.push_back(std::move(section));
        summary.rows.push_back({file.file.string(),
                                {file.read ? std::to_string(file.errors) : "-",
                                 file.read ? std::to_string(file.warnings) : "-"}});
    }
    ReportSection last{"Summary",
                       {summary, TextLine{checkSummary(result.errors, result.warnings)}}};
    if (result.unreadable > 0)
        last.items.push_back(
            TextLine{format("%d transcripts could not be read.", result.unreadable)});
    report.sections.push_back(std::move(last));
    return report;
}

// A data grid as a report: its heading row over the columns, a row per line.
Report gridReport(const Grid& grid) {
    Report report;
    report.title = grid.title;
    ReportTable table;
    for (std::size_t c = 0; c < grid.columns.size(); ++c)
        (c == 0 ? table.labelHeading : table.headings.emplace_back()) = grid.columns[c].heading;
    for (const std::vector<std::string>& cells : grid.rows) {
        ReportTable::Row row;
        for (std::size_t c = 0; c < cells.size(); ++c)
            (c == 0 ? row.label : row.cells.emplace_back()) = cells[c];
        table.rows.push_back(std::move(row));
    }
    report.sections.push_back({"", {table}});
    return report;
}

} // namespace

void CMainFrame::registerToolCommands() {
    using enum CommandId;
    on(ID_TOOLS_RDF, [this] { toolsRectangularData(); });
    on(ID_TOOLS_GENVOC, [this] { toolsGenerateList(ListKind::Words); });
    on(ID_TOOLS_GENBM, [this] { toolsGenerateList(ListKind::BoundMorphemes); });
    on(ID_TOOLS_GENCODES, [this] { toolsGenerateList(ListKind::Codes); });
    on(ID_TOOLS_CHECK, [this] { toolsCheck(); });
    on(ID_TOOLS_BUILD_DB, [this] { toolsBuildDatabase(); });
}

void CMainFrame::toolsGenerateList(ListKind kind) {
    Settings& settings = app_.settings();
    const std::string keyword(listSectionKeyword(kind));
    CListGenDialog dialog(kind, listOptionsFromLines(settings.sectionLines(keyword)),
                          app_.transcriptDir(), this);
    connect(&dialog, &CListGenDialog::saveDefaultsWanted, this,
            [this, kind, keyword](const ListOptions& options) {
                Settings& s = app_.settings();
                const std::vector<std::string> lines = listOptionLines(kind, options);
                if (saveSection({s.userSettingsFile(),
                                 keyword,
                                 lines,
                                 kSaveSettingsQuestion,
                                 kSettingsSavedIn,
                                 s.canSaveDefaults(),
                                 {}},
                                app_.prompter()) == SaveOutcome::Saved)
                    s.replaceSectionLines(keyword, lines);
            });
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<std::filesystem::path> files = dialog.picker().files();
    if (files.empty()) {
        app_.prompter().inform("No transcripts selected");
        return;
    }
    const ListOptions options = dialog.options();
    QtProgress progress(this, true);
    GeneratedList list = generateList(kind, options, files, app_.analysisContext(),
                                      dialog.speaker(), false, progress);
    if (list.cancelled)
        return;
    if (!list.messages.empty()) {
        std::string text;
        for (const std::string& m : list.messages)
            text += (text.empty() ? "" : "\n") + m;
        app_.prompter().inform(text);
    }
    switch (dialog.output()) {
    case CListGenDialog::WordListFile: {
        const QString path = QFileDialog::getSaveFileName(
            this, listGenTitle(kind), QString::fromStdString(settings.folders.list),
            QStringLiteral("Word List (*.LST *.lst)"));
        if (path.isEmpty())
            return;
        if (writeFileAtomic(path.toStdString(), listFileText(list)) == WriteStatus::Ok)
            app_.prompter().inform("List saved in " + path.toStdString());
        else
            app_.prompter().inform("Cannot write to " + path.toStdString() + " (not saved)");
        return;
    }
    case CListGenDialog::Table:
        showReport(reportContent(listReport(list, options)), nullptr);
        return;
    case CListGenDialog::CurrentCodeList: {
        const std::string codes = codeListText(list);
        settings.insertCodeLists = {{0, codes}};
        settings.insertCodeListTitles = {{0, "Generated code list"}};
        saveSection({settings.userSettingsFile(),
                     "CURINSCODELIST",
                     {"CURINSCODELIST REMOVEALL", "CURINSCODELIST 0 " + codes},
                     kSaveListQuestion,
                     kListSavedIn,
                     settings.canSaveDefaults(),
                     {}},
                    app_.prompter());
        return;
    }
    }
}

void CMainFrame::toolsCheck() {
    QDialog dialog(this);
    dialog.setWindowTitle(QStringLiteral("Check for Errors"));
    auto* picker = new CTranscriptPicker(app_.transcriptDir(), &dialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(picker, 1);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<std::filesystem::path> files = picker->files();
    if (files.empty()) {
        app_.prompter().inform("No transcripts selected");
        return;
    }
    const BatchCheckResult result = checkTranscripts(files, app_.analysisContext().check);
    CReptFrame* report = showReport(reportContent(checkReport(result)), nullptr);
    QStringList paths;
    for (const FileCheck& file : result.files)
        paths << QString::fromStdString(file.file.string());
    // A double-click on a problem opens its transcript at the problem's line;
    // on a file's name, at the top.
    report->doc().lineActivated = [this, paths](const QStringList& texts) {
        static const QRegularExpression entry(QStringLiteral(" on entry (\\d+):"));
        const QRegularExpressionMatch match = entry.match(texts.front());
        const int line = match.hasMatch() ? match.captured(1).toInt() : 1;
        for (const QString& text : texts) {
            const QString name = text.trimmed();
            if (!paths.contains(name))
                continue;
            if (CTAVIFrame* frame = openTranscript(name))
                frame->view().goToLine(line);
            return;
        }
    };
}

void CMainFrame::toolsBuildDatabase() {
    CDBBuildDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::toolsRectangularData() {
    CBatchDialog dialog(app_, this);
    if (dialog.exec() != QDialog::Accepted || !dialog.result())
        return;
    showReport(reportContent(gridReport(dialog.result()->data)), nullptr);
}

} // namespace tavi::app
