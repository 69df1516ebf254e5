// Start-up of the application state: settings, recent files.
#include "app/tavi_app.h"

#include <QDir>
#include <QFileInfo>
#include <QPrinterInfo>

#include "base/file_io.h"
#include "base/text.h"
#include "reports/smr_settings.h"
#include "settings/startup.h"

namespace tavi::app {
namespace {

constexpr int kMaxRecent = 8;
constexpr const char* kRecentFileName = "TAVI_Recent.ini";

} // namespace

StartupEnvironment CTAVIApp::desktopEnvironment() {
    StartupEnvironment env = StartupEnvironment::fromProcess();
    env.prepareDocumentsFolder = true;
    env.printerExists = [](std::string_view name) {
        return QPrinterInfo::availablePrinterNames().contains(
            QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    };
    return env;
}

CTAVIApp::CTAVIApp(StartupEnvironment env) {
    LoadedSettings loaded = loadSettings(env, prompter_);
    ok_ = loaded.ok;
    settings_ = std::move(loaded.settings);
    smrVariables = smrVariablesFromSettings(settings_);
    loadRecentFiles();
}

QString CTAVIApp::folder(const std::string& path) {
    QString result = QString::fromStdString(path);
    while (result.size() > 1 && result.endsWith(QLatin1Char('/')))
        result.chop(1);
    return result;
}

LabelSource CTAVIApp::labelSource() const {
    return [this](std::string_view key) {
        return settings_.labels.get(settings_.language.reportSlot(), key);
    };
}

AnalysisContext CTAVIApp::analysisContext() {
    if (!resources_)
        resources_ =
            std::make_shared<const MeasureResources>(loadMeasureResources(settings_, prompter_));
    return tavi::analysisContext(settings_, resources_);
}

void CTAVIApp::addRecentFile(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    recent_.removeAll(absolute);
    recent_.prepend(absolute);
    while (recent_.size() > kMaxRecent)
        recent_.removeLast();
    saveRecentFiles();
}

void CTAVIApp::removeRecentFile(const QString& path) {
    if (recent_.removeAll(path) > 0)
        saveRecentFiles();
}

bool CTAVIApp::dropMissingRecentFiles() {
    const qsizetype before = recent_.size();
    recent_.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
    if (recent_.size() == before)
        return false;
    saveRecentFiles();
    return true;
}

void CTAVIApp::loadRecentFiles() {
    std::string bytes;
    if (!readFile(QDir(setupDir()).filePath(kRecentFileName).toStdString(), bytes))
        return;
    const std::string text = decodeText(bytes).utf8;
    for (std::string_view line : splitLines(text)) {
        line = trim(line);
        if (startsWithIgnoreCase(line, "FILE "))
            recent_.append(QString::fromUtf8(trim(line.substr(5))));
    }
}

void CTAVIApp::saveRecentFiles() const {
    std::string text(kUtf8Bom);
    for (const QString& file : recent_)
        text += "FILE " + file.toStdString() + "\n";
    writeFileAtomic(QDir(setupDir()).filePath(kRecentFileName).toStdString(), text);
}

} // namespace tavi::app
