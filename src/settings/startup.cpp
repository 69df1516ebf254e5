// The start-up order of the settings.
#include "settings/startup.h"

#include <filesystem>

#include "base/file_io.h"
#include "base/format.h"
#include "base/text.h"
#include "settings/data_folders.h"
#include "settings/keyword_file.h"

namespace tavi {

namespace {

bool isFolder(const std::string& folder) {
    std::error_code ec;
    return std::filesystem::is_directory(folder, ec);
}

FontSetting font(int height, std::string faceName) {
    FontSetting f;
    f.height = height;
    f.faceName = std::move(faceName);
    return f;
}

// Reads a plain list file into trimmed non-empty lines; false when missing.
bool readListFile(const std::string& path, std::vector<std::string>& lines) {
    std::string bytes;
    if (!readFile(path, bytes))
        return false;
    lines = keywordTextLines(bytes);
    return true;
}

void ensureUserDataFolder(const std::string& folder, Prompter& prompter) {
    if (isFolder(folder))
        return;
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (ec || !isFolder(folder))
        prompter.inform("Error creating folder " + folder);
}

} // namespace

Settings defaultSettings(const std::string& sharedData, const std::string& userData,
                         const std::string& documents, const PrinterCheck& printerExists) {
    Settings settings;
    SettingsFolders& folders = settings.folders;
    folders.sharedData = sharedData;
    folders.userData = userData;
    folders.documents = documents;
    folders.setup = userData;
    const std::string myData = documents + std::string(kMyTaviData) + "/";
    const std::string work = isFolder(myData) ? myData : documents;
    folders.backup = work;
    folders.transcript = work;
    folders.report = work;
    folders.list = work;
    folders.batch = work;
    folders.altDatabase = work;
    folders.database = isFolder(sharedData + "samples/") ? sharedData + "samples/" : sharedData;
    folders.rif = sharedData;
    folders.templates = sharedData + "templates/";
    settings.transcriptFont = font(11, "DejaVu Sans Mono");
    settings.reportFont = font(10, "DejaVu Sans");
    settings.printFont = font(10, "DejaVu Sans");
    if (printerExists && !printerExists(settings.pdfPrinterName))
        settings.pdfPrinterName.clear();
    return settings;
}

LoadedSettings loadSettings(const StartupEnvironment& env, Prompter& prompter) {
    LoadedSettings loaded;
    std::optional<std::string> shared = findSharedDataFolder(env);
    if (!shared) {
        prompter.inform(
            format("TAVI %s has not been installed and cannot be run from this executable.",
                   TAVI_VERSION));
        return loaded;
    }
    if (!isFolder(*shared))
        prompter.inform("Problem with program folder - " + *shared);
    const std::string userData = findUserDataFolder(env);
    ensureUserDataFolder(userData, prompter);
    const std::string documents = findDocumentsFolder(env);
    bool declined = env.prepareDocumentsFolder && prepareMyTaviData(documents, prompter);

    // 1. Reset to the built-in defaults and read the program's list files.
    Settings& settings = loaded.settings;
    settings = defaultSettings(*shared, userData, documents, env.printerExists);
    settings.dataFolderDeclined = declined;
    auto record = [&](std::string role, std::string path, FileStatus status) {
        loaded.files.push_back({std::move(role), std::move(path), status});
    };
    const std::string symbols = *shared + "TaviSymbols.txt";
    record("symbol list", symbols,
           readListFile(symbols, settings.symbolFileLines) ? FileStatus::Read
                                                           : FileStatus::Missing);
    const std::string wordList = *shared + "TaviSWL.txt";
    settings.standardWordListFound = readListFile(wordList, settings.standardWordListLines);
    record("standard word list", wordList,
           settings.standardWordListFound ? FileStatus::Read : FileStatus::Missing);

    // 2. The program-level file: the first found of the installed configuration
    // folder's and the shared data folder's.
    const std::vector<std::string> sysFiles = programSettingsFiles(env, *shared);
    std::string sysFile = sysFiles.front();
    std::optional<std::vector<KeywordLine>> sysLines;
    for (const std::string& candidate : sysFiles) {
        sysLines = readKeywordFile(candidate);
        if (sysLines) {
            sysFile = candidate;
            applyProgramLevelLines(*sysLines, sysFile, settings, prompter);
            break;
        }
    }
    record("program-level settings", sysFile, sysLines ? FileStatus::Read : FileStatus::Missing);
    settings.programSettingsFile = sysFile;
    if (env.settingsDir)
        settings.folders.setup = userData;

    // 3. The user-level file, unless the setup folder is the shared data folder.
    const std::string userFile = settings.userSettingsFile();
    if (equalsIgnoreCase(settings.folders.setup, *shared)) {
        record("user-level settings", userFile, FileStatus::Skipped);
    } else {
        std::optional<std::vector<KeywordLine>> userLines = readKeywordFile(userFile);
        if (userLines)
            applyUserLevelLines(*userLines, userFile, env.printerExists, settings, prompter);
        record("user-level settings", userFile, userLines ? FileStatus::Read : FileStatus::Missing);
    }

    // 4. The standard word list settings, then the label file.
    const std::string swlFile = settings.swlSettingsFile();
    record("standard word list settings", swlFile,
           readListFile(swlFile, settings.swlSettingsLines) ? FileStatus::Read
                                                            : FileStatus::Missing);
    const std::string labelFile = settings.labelFile();
    record("label file", labelFile,
           loadLabelFile(labelFile, settings.labels) ? FileStatus::Read : FileStatus::Missing);

    // 5. The automatic backup folder.
    if (!isFolder(settings.folders.backup))
        prompter.inform("Problem with automatic backup directory - " + settings.folders.backup);
    loaded.ok = true;
    return loaded;
}

} // namespace tavi
