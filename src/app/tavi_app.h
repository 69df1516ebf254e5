// The application object: what lives for the whole run of the desktop
// program (settings, the prompter, recent files, the report save state) and
// is handed to the frame, documents and dialogs that need it.
#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>

#include "analysis/analysis_set.h"
#include "analysis/transcript_cut.h"
#include "analysis/word_base.h"
#include "app/qt_prompter.h"
#include "reports/labels.h"
#include "reports/standard_measures_report.h"
#include "settings/label_table.h"

namespace tavi::app {

// Program-wide state of saving reports: the last chosen format (negative: not
// chosen yet), "Display report after saving", and the open PDF batch.
struct ReportSaveState {
    int lastFormat = -1;
    bool displayAfterSaving = false;
    int pdfBatchCount = 0;
    QString pdfBatchPath;
    QStringList pdfBatchPages; // the reports of the open batch, as rich text
};

class CTAVIApp {
public:
    CTAVIApp();

    QtPrompter& prompter() { return prompter_; }

    // Folders; each ends without a separator.
    std::filesystem::path userDataDir() const { return userDir_; }
    std::filesystem::path sharedDataDir() const { return sharedDir_; }
    QString transcriptDir() const;
    QString reportDir() const;
    QString backupDir() const;

    // Settings of the run.
    AnalysisSet analysisSet;
    WordBase wordBase;
    TranscriptCut transcriptCut;
    int movingAverageWindow = 100;
    int backupInterval = 0; // edits between automatic backups; 0: no backups
    bool canSaveDefaults = true;

    ReportSaveState reportSave;

    // Report labels and report choices.
    LabelTable labels;
    LabelSource labelSource() const;
    SmrVariables smrVariables = SmrVariables::defaults();
    int reportSpeaker = 0; // 0 the 1st speaker, 1 the 2nd

    // Recent transcripts, most recent first, kept in the user data folder.
    QStringList recentFiles() const { return recent_; }
    void addRecentFile(const QString& path);

private:
    void loadRecentFiles();
    void saveRecentFiles() const;

    QtPrompter prompter_;
    std::filesystem::path userDir_;
    std::filesystem::path sharedDir_;
    QStringList recent_;
};

} // namespace tavi::app
