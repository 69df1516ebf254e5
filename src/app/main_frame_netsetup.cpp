// Language Settings, and Setup > Network or Lab Setup: the client options, the
// PDF printer, the folders and the fonts for every user of this computer,
// written to the program-level settings file (TAVI_SYS.ini) instead of the
// user's own. Help > TAVI Reference Book is here too.
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/book_window.h"
#include "app/font_setting.h"
#include "app/help_window.h"
#include "app/language_dialog.h"
#include "app/main_frame.h"
#include "app/tavi_app.h"
#include "settings/program_save.h"
#include "settings/section_lines.h"

namespace tavi::app {
namespace {

struct NetFolder {
    CommandId command;
    const char* keyword;
    const char* title;
    std::string SettingsFolders::*folder; // null: the user-level setup folder (INIDIR)
};

constexpr NetFolder kNetFolders[] = {
    {CommandId::ID_NETLOC_TRAN, "TRANDIR", "Transcripts", &SettingsFolders::transcript},
    {CommandId::ID_NETLOC_REPT, "REPORTDIR", "Reports", &SettingsFolders::report},
    {CommandId::ID_NETLOC_DB, "DBASEDIR", "Built-in Reference Databases",
     &SettingsFolders::database},
    {CommandId::ID_NETLOC_ALTDB, "ALTDBASEDIR", "External Reference Databases",
     &SettingsFolders::altDatabase},
    {CommandId::ID_NETLOC_LIST, "LISTDIR", "Word and Code Lists", &SettingsFolders::list},
    {CommandId::ID_NETLOC_RIF, "HASHFILEDIR", "Root Identification Files", &SettingsFolders::rif},
    {CommandId::ID_NETLOC_BATCH, "BATCHDIR", "Rectangular Data File Selections",
     &SettingsFolders::batch},
    {CommandId::ID_NETLOC_BACKUP, "BACKUPDIR", "Automatic Backups", &SettingsFolders::backup},
    {CommandId::ID_NETLOC_INIDIR, "INIDIR", "User Setup File", nullptr},
};

QString withSlash(QString folder) {
    if (!folder.isEmpty() && !folder.endsWith(QLatin1Char('/')))
        folder += QLatin1Char('/');
    return folder;
}

} // namespace

void CMainFrame::registerNetSetupCommands() {
    using enum CommandId;
    on(ID_SETUP_LANGUAGE, [this] { setupLanguage(); });
    on(ID_NET_CLIENT, [this] { netClientOptions(); });
    on(ID_NET_PDF, [this] { netPdfPrinter(); });
    for (const NetFolder& kind : kNetFolders) {
        const char* keyword = kind.keyword;
        on(kind.command, [this, keyword] { netFolder(keyword); });
    }
    on(ID_NETFONT_DISPTRAN, [this] { netFont(0); });
    on(ID_NETFONT_DISPREPT, [this] { netFont(1); });
    on(ID_NETFONT_PRT, [this] { netFont(2); });
    on(ID_HELP_BOOK, [this] { showReferenceBook(); });
}

void CMainFrame::setupLanguage() {
    CLanguageDialog dialog(app_, this);
    dialog.exec();
}

bool CMainFrame::saveProgramDefaults(const std::vector<std::string>& keywords,
                                     const std::vector<std::string>& lines) {
    const ProgramSaveRequest request{app_.settings().programSettingsFile, keywords, lines};
    return saveProgramSection(request, app_.prompter()) == SaveOutcome::Saved;
}

// The client options: whether users may save their own defaults, and the
// folder of their settings files (empty: each user's own data folder).
void CMainFrame::netClientOptions() {
    Settings& settings = app_.settings();
    QDialog dialog(this);
    dialog.setObjectName(QStringLiteral("CNetClientDialog"));
    dialog.setWindowTitle(QStringLiteral("Client Options"));
    auto* customize = new QCheckBox(QStringLiteral("&Users may save their own program defaults"));
    customize->setObjectName(QStringLiteral("customizePrompt"));
    customize->setChecked(settings.customizeAllowed);
    auto* iniDir = new QLineEdit;
    iniDir->setObjectName(QStringLiteral("iniDir"));
    iniDir->setPlaceholderText(QStringLiteral("each user's own settings folder"));
    auto* browse = new QPushButton(QStringLiteral("&Browse..."));
    connect(browse, &QPushButton::clicked, &dialog, [&dialog, iniDir] {
        const QString chosen = QFileDialog::getExistingDirectory(
            &dialog, QStringLiteral("User Setup File"), iniDir->text());
        if (!chosen.isEmpty())
            iniDir->setText(withSlash(chosen));
    });
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(
        QStringLiteral("These settings hold for every user of this computer. They are saved in\n%1")
            .arg(QString::fromStdString(settings.programSettingsFile))));
    layout->addWidget(customize);
    auto* folderRow = new QHBoxLayout;
    folderRow->addWidget(new QLabel(QStringLiteral("Folder of the users' settings files:")));
    folderRow->addWidget(iniDir, 1);
    folderRow->addWidget(browse);
    layout->addLayout(folderRow);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::vector<std::string> lines = {customize->isChecked() ? "CUSTOMIZEPROMPT YES"
                                                             : "CUSTOMIZEPROMPT NO"};
    const QString folder = withSlash(iniDir->text().trimmed());
    if (!folder.isEmpty())
        lines.push_back("INIDIR " + folder.toStdString());
    if (saveProgramDefaults({"CUSTOMIZEPROMPT", "INIDIR"}, lines))
        settings.customizeAllowed = customize->isChecked();
}

void CMainFrame::netPdfPrinter() {
    Settings& settings = app_.settings();
    bool ok = false;
    const QString name = QInputDialog::getText(
        this, QStringLiteral("PDF Printer"),
        QStringLiteral("Name of the printer that makes PDF files, for every user (N/A for none):"),
        QLineEdit::Normal, QString::fromStdString(settings.pdfPrinterName), &ok);
    if (!ok)
        return;
    const std::string chosen = name.trimmed().toStdString();
    if (saveProgramDefaults({"PDFPRINTERNAME"}, {"PDFPRINTERNAME " + chosen}))
        settings.pdfPrinterName = chosen == "N/A" ? std::string() : chosen;
}

void CMainFrame::netFolder(const char* keyword) {
    Settings& settings = app_.settings();
    for (const NetFolder& kind : kNetFolders) {
        if (std::string_view(keyword) != kind.keyword)
            continue;
        const std::string current =
            kind.folder ? settings.folders.*kind.folder : settings.folders.setup;
        const QString chosen = withSlash(QFileDialog::getExistingDirectory(
            this, QStringLiteral("%1 (every user)").arg(QString::fromLatin1(kind.title)),
            QString::fromStdString(current)));
        if (chosen.isEmpty())
            return;
        const std::string folder = chosen.toStdString();
        // The users' setup folder is used from the next start: this run keeps
        // saving where it read the settings from.
        if (saveProgramDefaults({kind.keyword}, {std::string(kind.keyword) + " " + folder}) &&
            kind.folder)
            settings.folders.*kind.folder = folder;
        return;
    }
}

// 0: transcripts displayed, 1: reports displayed, 2: transcripts and reports printed.
void CMainFrame::netFont(int which) {
    Settings& settings = app_.settings();
    FontSetting* setting[] = {&settings.transcriptFont, &settings.reportFont, &settings.printFont};
    const char* keyword[] = {"DISPTRANFONT", "DISPREPTFONT", "PRTREPTFONT"};
    const char* title[] = {"Transcripts - Displayed (every user)",
                           "Reports - Displayed (every user)",
                           "Transcripts & Reports - Printed (every user)"};
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, toQFont(*setting[which], this->font()), this,
                                            QString::fromLatin1(title[which]));
    if (!ok)
        return;
    const FontSetting chosen = fromQFont(font, *setting[which]);
    if (saveProgramDefaults({keyword[which]}, fontLines(keyword[which], chosen))) {
        *setting[which] = chosen;
        applyFonts();
    }
}

// The user documents in one book, in the documentation's own order.
void CMainFrame::showReferenceBook() {
    const QString index = findHelpDocument(app_, QStringLiteral("docs/index.md"));
    auto* book = new CBookWindow;
    if (index.isEmpty() || !book->showBook(QFileInfo(index).absolutePath())) {
        delete book;
        app_.prompter().inform("Cannot open the TAVI Reference Book: the documentation was not "
                               "found.");
        return;
    }
    QMdiSubWindow* frame = mdi_->addSubWindow(book);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setObjectName(QStringLiteral("CBookFrame"));
    frame->setWindowTitle(book->windowTitle());
    placeNewWindow(frame);
    frame->show();
    mdi_->setActiveSubWindow(frame);
}

} // namespace tavi::app
