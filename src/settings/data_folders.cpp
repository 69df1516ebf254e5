// Data folder discovery and the "My TAVI Data" start-up step.
#include "settings/data_folders.h"

#include <cstdlib>
#include <filesystem>

#include "settings/folder_resolution.h"

namespace tavi {

namespace {

bool isFolder(const std::filesystem::path& folder) {
    std::error_code ec;
    return std::filesystem::is_directory(folder, ec);
}

bool present(const std::optional<std::string>& value) {
    return value && !value->empty();
}

// A folder text for a path that may be relative to the current folder.
std::string absoluteFolder(const std::filesystem::path& path, const StartupEnvironment& env) {
    std::filesystem::path absolute = path;
    if (absolute.is_relative() && !env.currentDir.empty())
        absolute = env.currentDir / absolute;
    return folderText(absolute.lexically_normal().generic_string());
}

std::optional<std::string> getenvValue(const char* name) {
    const char* value = std::getenv(name);
    if (!value)
        return std::nullopt;
    return std::string(value);
}

} // namespace

StartupEnvironment StartupEnvironment::fromProcess() {
    StartupEnvironment env;
    env.dataGroup = getenvValue("TAVI_DATA_GROUP");
    env.dataUser = getenvValue("TAVI_DATA_USER");
    env.xdgConfigHome = getenvValue("XDG_CONFIG_HOME");
    env.xdgDocumentsDir = getenvValue("XDG_DOCUMENTS_DIR");
    env.home = getenvValue("HOME");
    std::error_code ec;
    env.currentDir = std::filesystem::current_path(ec);
    env.executable = std::filesystem::read_symlink("/proc/self/exe", ec);
    return env;
}

std::optional<std::string> findSharedDataFolder(const StartupEnvironment& env) {
    if (present(env.dataGroup))
        return absoluteFolder(*env.dataGroup, env);
    std::vector<std::filesystem::path> candidates;
    if (!env.executable.empty())
        candidates.push_back(env.executable.parent_path().parent_path() / "share" / "tavi");
    candidates.emplace_back(env.sourceDataDir);
    candidates.emplace_back(env.installDataDir);
    for (const std::filesystem::path& candidate : candidates) {
        if (!candidate.empty() && isFolder(candidate))
            return absoluteFolder(candidate, env);
    }
    return std::nullopt;
}

std::optional<std::string> installedConfigFolder(const StartupEnvironment& env,
                                                 const std::string& sharedData) {
    if (present(env.dataGroup) || env.executable.empty())
        return std::nullopt;
    const std::filesystem::path bin = env.executable.lexically_normal().parent_path();
    if (bin.filename() != "bin")
        return std::nullopt;
    const std::filesystem::path prefix = bin.parent_path();
    if (absoluteFolder(prefix / "share" / "tavi", env) != sharedData)
        return std::nullopt;
    if (prefix == "/usr")
        return std::string("/etc/tavi/");
    return absoluteFolder(prefix / "etc" / "tavi", env);
}

std::vector<std::string> programSettingsFiles(const StartupEnvironment& env,
                                              const std::string& sharedData) {
    std::vector<std::string> files;
    if (std::optional<std::string> config = installedConfigFolder(env, sharedData))
        files.push_back(*config + "TAVI_SYS.ini");
    files.push_back(sharedData + "TAVI_SYS.ini");
    return files;
}

std::string findUserDataFolder(const StartupEnvironment& env) {
    if (env.settingsDir)
        return absoluteFolder(*env.settingsDir, env);
    if (present(env.dataUser))
        return absoluteFolder(*env.dataUser, env);
    if (present(env.xdgConfigHome))
        return absoluteFolder(std::filesystem::path(*env.xdgConfigHome) / "tavi", env);
    if (present(env.home))
        return absoluteFolder(std::filesystem::path(*env.home) / ".config" / "tavi", env);
    return absoluteFolder(std::filesystem::path(".config") / "tavi", env);
}

std::string findDocumentsFolder(const StartupEnvironment& env) {
    if (present(env.xdgDocumentsDir))
        return absoluteFolder(*env.xdgDocumentsDir, env);
    if (present(env.home)) {
        std::filesystem::path documents = std::filesystem::path(*env.home) / "Documents";
        if (isFolder(documents))
            return absoluteFolder(documents, env);
        return absoluteFolder(*env.home, env);
    }
    return absoluteFolder(env.currentDir, env);
}

bool prepareMyTaviData(const std::string& documents, Prompter& prompter) {
    const std::string myData = documents + std::string(kMyTaviData);
    if (isFolder(myData))
        return false;
    if (isFolder(documents + "TAVI")) {
        std::error_code ec;
        std::filesystem::rename(documents + "TAVI", myData, ec);
        if (!ec) {
            prompter.inform("The folder\n" + documents + "TAVI\nhas been renamed to\n" + documents +
                            "My TAVI Data\nto be compatible with this release.");
        }
        return false;
    }
    Answer answer = prompter.ask(
        "Would you like to create the folder\n" + documents +
        "My TAVI Data\nfor easier access to TAVI data files? You should respond 'Yes' unless "
        "you are on a public computer.");
    if (answer == Answer::Yes) {
        std::error_code ec;
        std::filesystem::create_directories(myData, ec);
        if (ec)
            prompter.inform("Error creating folder " + myData + "/");
    }
    return answer == Answer::No;
}

} // namespace tavi
