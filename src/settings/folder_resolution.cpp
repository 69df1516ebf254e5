// The folder resolution rule shared by every folder keyword.
#include "settings/folder_resolution.h"

#include <algorithm>
#include <filesystem>

#include "base/text.h"

namespace tavi {

namespace {

bool isFolder(const std::string& folder) {
    std::error_code ec;
    return std::filesystem::is_directory(folder, ec);
}

// "/a/b/./c/../d/" as "/a/b/d/", keeping the trailing "/".
std::string normalFolder(const std::string& folder) {
    std::string normal = std::filesystem::path(folder).lexically_normal().generic_string();
    if (!normal.empty() && normal.back() != '/')
        normal += '/';
    return normal;
}

} // namespace

std::string folderText(std::string_view value) {
    std::string folder(value);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    if (!folder.empty() && folder.back() != '/')
        folder += '/';
    return folder;
}

bool isAbsoluteFolderValue(std::string_view value) {
    return value.starts_with('/') || value.starts_with('\\') ||
           value.find(':') != std::string_view::npos;
}

FolderResolution resolveFolder(std::string_view value, const std::string& current,
                               const std::string& base, bool createMissingAbsolute,
                               std::string_view problemMessage, Prompter& prompter) {
    value = trim(value);
    if (value.empty())
        return {current, false};
    const std::string folder = folderText(value);
    if (isAbsoluteFolderValue(value)) {
        if (isFolder(folder))
            return {normalFolder(folder), false};
        if (createMissingAbsolute) {
            std::error_code ec;
            std::filesystem::create_directories(folder, ec);
            if (!ec && isFolder(folder))
                return {normalFolder(folder), false};
            prompter.inform("Error creating folder " + folder);
            return {current, true};
        }
    } else {
        if (isFolder(base + folder))
            return {normalFolder(base + folder), false};
        if (!current.empty() && isFolder(current + folder))
            return {normalFolder(current + folder), false};
    }
    prompter.inform(problemMessage);
    return {current, true};
}

} // namespace tavi
