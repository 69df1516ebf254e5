// The application object: what lives for the whole run of the desktop
// program (the settings loaded at start-up, the prompter, recent files, the
// report save state) and is handed to the frame, documents and dialogs.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include <memory>

#include "app/qt_prompter.h"
#include "reports/labels.h"
#include "reports/report.h"
#include "reports/save_state.h"
#include "reports/standard_measures_report.h"
#include "session/analysis_session.h"
#include "settings/settings.h"
#include "settings/startup_environment.h"

namespace tavi::app {

class CTAVIApp {
public:
    // Loads the settings of this machine (start-up messages go to the
    // prompter); `ok()` is false when the program cannot run.
    explicit CTAVIApp(StartupEnvironment env = desktopEnvironment());

    static StartupEnvironment desktopEnvironment();
    bool ok() const { return ok_; }

    QtPrompter& prompter() { return prompter_; }
    Settings& settings() { return settings_; }
    const Settings& settings() const { return settings_; }

    QString transcriptDir() const { return folder(settings_.folders.transcript); }
    QString reportDir() const { return folder(settings_.folders.report); }
    QString backupDir() const { return folder(settings_.folders.backup); }
    QString listDir() const { return folder(settings_.folders.list); }
    QString sharedDataDir() const { return folder(settings_.folders.sharedData); }
    QString setupDir() const { return folder(settings_.folders.setup); }

    // Saving reports: the last format and the PDF batch, for the whole run.
    ReportSaveState reportSave;
    LabelSource labelSource() const;
    // What an analysis reads under the settings in force; the word lists and
    // dictionary are loaded at the first analysis and kept.
    AnalysisContext analysisContext();
    // Drops the loaded word lists and dictionary, so the next analysis reads
    // them again (after the word lists were edited).
    void reloadMeasureResources() { resources_.reset(); }
    SmrVariables smrVariables = SmrVariables::defaults();
    int reportSpeaker = 0; // 0 the 1st speaker, 1 the 2nd

    // Recent transcripts, most recent first, kept in the user-level setup folder.
    QStringList recentFiles() const { return recent_; }
    void addRecentFile(const QString& path);
    void removeRecentFile(const QString& path);
    // Drops the files that no longer exist; true when any was dropped.
    bool dropMissingRecentFiles();

private:
    static QString folder(const std::string& path);
    void loadRecentFiles();
    void saveRecentFiles() const;

    QtPrompter prompter_;
    Settings settings_;
    bool ok_ = false;
    std::shared_ptr<const MeasureResources> resources_;
    QStringList recent_;
};

} // namespace tavi::app
