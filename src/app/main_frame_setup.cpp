// The Setup menu: the options dialogs, file locations, fonts and backups.
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QInputDialog>
#include <limits>

#include "app/anal_set_dialog.h"
#include "app/font_setting.h"
#include "app/main_frame.h"
#include "app/rept_frame.h"
#include "app/rept_view.h"
#include "app/sd_interval_dialog.h"
#include "app/tavi_app.h"
#include "app/tavi_frame.h"
#include "app/tavi_view.h"
#include "app/tran_cut_dialog.h"
#include "app/window_size_dialog.h"
#include "app/word_base_dialog.h"
#include "base/format.h"
#include "settings/section_lines.h"
#include "settings/section_save.h"

namespace tavi::app {
namespace {

struct FolderKind {
    const char* keyword;
    const char* title;
    std::string SettingsFolders::*folder;
};

constexpr FolderKind kFolders[] = {
    {"TRANDIR", "Transcripts", &SettingsFolders::transcript},
    {"REPORTDIR", "Reports", &SettingsFolders::report},
    {"DBASEDIR", "Built-in Reference Databases", &SettingsFolders::database},
    {"ALTDBASEDIR", "External Reference Databases", &SettingsFolders::altDatabase},
    {"LISTDIR", "Word and Code Lists", &SettingsFolders::list},
    {"HASHFILEDIR", "Root Identification Files", &SettingsFolders::rif},
    {"BATCHDIR", "Rectangular Data File Selections", &SettingsFolders::batch},
    {"BACKUPDIR", "Automatic Backups", &SettingsFolders::backup},
};

constexpr int kPixelsPerInch = 96;

// The family's style name that matches the font's weight and slant ("Book"
// rather than "Oblique"), so the font dialog opens on the style in use: with
// no style name it may select the first style of the family, and OK would
// then change the font.
QString matchingStyle(const QFont& font) {
    const QString family = QFontInfo(font).family();
    QString best;
    int bestDistance = std::numeric_limits<int>::max();
    for (const QString& style : QFontDatabase::styles(family)) {
        const int distance =
            std::abs(QFontDatabase::weight(family, style) - static_cast<int>(font.weight())) +
            (QFontDatabase::italic(family, style) != font.italic() ? 10000 : 0);
        if (distance < bestDistance) {
            best = style;
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace

QFont toQFont(const FontSetting& setting, const QFont& fallback) {
    QFont font = fallback;
    if (!setting.faceName.empty())
        font.setFamily(QString::fromStdString(setting.faceName));
    if (setting.height != 0)
        font.setPointSizeF(std::abs(setting.height) * 72.0 / kPixelsPerInch);
    font.setWeight(setting.weight >= 600 ? QFont::Bold : QFont::Normal);
    font.setItalic(setting.italic != 0);
    font.setStyleName(matchingStyle(font));
    return font;
}

FontSetting fromQFont(const QFont& font, FontSetting setting) {
    setting.faceName = font.family().left(31).toStdString();
    setting.height = -static_cast<int>(font.pointSizeF() * kPixelsPerInch / 72.0 + 0.5);
    setting.weight = font.bold() ? 700 : 400;
    setting.italic = font.italic() ? 1 : 0;
    return setting;
}

void CMainFrame::setupAnalysisSet() {
    CAnalSetDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::setupWordBase() {
    CWordBaseDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::setupTranscriptCut() {
    CTranCutDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::setupMovingAverage() {
    CWindowSizeDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::setupSdInterval() {
    CSdIntervalDialog dialog(app_, this);
    dialog.exec();
}

void CMainFrame::setupBackups() {
    Settings& settings = app_.settings();
    bool ok = false;
    const int n = QInputDialog::getInt(
        this, QStringLiteral("Automatic Backups"),
        QStringLiteral("Number of edits between automatic backups (50 to 5000, 0 for none):"),
        settings.backupInterval, 0, kBackupIntervalMax, 1, &ok);
    if (!ok)
        return;
    settings.backupInterval = (n >= kBackupIntervalMin && n <= kBackupIntervalMax) ? n : 0;
    saveSection({settings.userSettingsFile(),
                 "BACKUP",
                 {tavi::format("BACKUP %d", settings.backupInterval)},
                 kSaveSettingsQuestion,
                 kSettingsSavedIn,
                 settings.canSaveDefaults(),
                 {}},
                app_.prompter());
}

void CMainFrame::setupFolder(const QString& keyword) {
    Settings& settings = app_.settings();
    for (const FolderKind& kind : kFolders) {
        if (keyword != QLatin1String(kind.keyword))
            continue;
        std::string& folder = settings.folders.*kind.folder;
        QString chosen = QFileDialog::getExistingDirectory(this, QString::fromLatin1(kind.title),
                                                           QString::fromStdString(folder));
        if (chosen.isEmpty())
            return;
        if (!chosen.endsWith(QLatin1Char('/')))
            chosen += QLatin1Char('/');
        folder = chosen.toStdString();
        saveSection({settings.userSettingsFile(),
                     kind.keyword,
                     {std::string(kind.keyword) + " " + folder},
                     kSaveSettingsQuestion,
                     kSettingsSavedIn,
                     settings.canSaveDefaults(),
                     {}},
                    app_.prompter());
        return;
    }
}

// 0: transcripts displayed, 1: reports displayed, 2: transcripts and reports printed.
void CMainFrame::setupFont(int which) {
    Settings& settings = app_.settings();
    FontSetting* setting[] = {&settings.transcriptFont, &settings.reportFont, &settings.printFont};
    const char* keyword[] = {"DISPTRANFONT", "DISPREPTFONT", "PRTREPTFONT"};
    const char* title[] = {"Transcripts - Displayed", "Reports - Displayed",
                           "Transcripts & Reports - Printed"};
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, toQFont(*setting[which], this->font()), this,
                                            QString::fromLatin1(title[which]));
    if (!ok)
        return;
    *setting[which] = fromQFont(font, *setting[which]);
    applyFonts();
    saveSection({settings.userSettingsFile(),
                 keyword[which],
                 fontLines(keyword[which], *setting[which]),
                 kSaveSettingsQuestion,
                 kSettingsSavedIn,
                 settings.canSaveDefaults(),
                 {}},
                app_.prompter());
}

void CMainFrame::applyFonts() {
    const Settings& settings = app_.settings();
    for (CTAVIFrame* f : transcriptFrames())
        f->view().setFont(toQFont(settings.transcriptFont, f->view().font()));
    for (CReptFrame* f : reportFrames())
        f->view().setFont(toQFont(settings.reportFont, f->view().font()));
}

} // namespace tavi::app
