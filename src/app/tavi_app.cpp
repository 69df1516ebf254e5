// Start-up of the application state: folders, settings, recent files.
#include "app/tavi_app.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "base/file_io.h"
#include "base/text.h"

namespace tavi::app {
namespace {

constexpr int kMaxRecent = 8;
constexpr const char* kRecentFileName = "TAVI_Recent.ini";

std::filesystem::path envFolder(const char* name) {
    const QByteArray value = qgetenv(name);
    return value.isEmpty() ? std::filesystem::path() : std::filesystem::path(value.toStdString());
}

std::filesystem::path findUserDir() {
    std::filesystem::path dir = envFolder("TAVI_DATA_USER");
    if (dir.empty()) {
        dir = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString();
        dir /= "tavi";
    }
    std::error_code ec;
    std::filesystem::create_directories(dir, ec);
    return dir;
}

std::filesystem::path findSharedDir() {
    std::filesystem::path dir = envFolder("TAVI_DATA_GROUP");
    if (!dir.empty())
        return dir;
    std::error_code ec;
    if (std::filesystem::is_directory(TAVI_INSTALL_DATA_DIR, ec))
        return TAVI_INSTALL_DATA_DIR;
    return TAVI_SOURCE_DATA_DIR;
}

QString documentsDataDir() {
    QString docs = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (docs.isEmpty())
        docs = QDir::homePath();
    return docs + QStringLiteral("/My TAVI Data");
}

} // namespace

CTAVIApp::CTAVIApp() : userDir_(findUserDir()), sharedDir_(findSharedDir()) {
    loadRecentFiles();
}

QString CTAVIApp::transcriptDir() const {
    return documentsDataDir();
}
QString CTAVIApp::reportDir() const {
    return documentsDataDir();
}
QString CTAVIApp::backupDir() const {
    return QString::fromStdString((userDir_ / "Backup").string());
}

LabelSource CTAVIApp::labelSource() const {
    return [this](std::string_view key) { return labels.get(LanguageSlot::Primary, key); };
}

void CTAVIApp::addRecentFile(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    recent_.removeAll(absolute);
    recent_.prepend(absolute);
    while (recent_.size() > kMaxRecent)
        recent_.removeLast();
    saveRecentFiles();
}

void CTAVIApp::loadRecentFiles() {
    std::string bytes;
    if (!readFile(userDir_ / kRecentFileName, bytes))
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
    writeFileAtomic(userDir_ / kRecentFileName, text);
}

} // namespace tavi::app
