// Folder values in settings files are absolute or relative to the settings
// file; a missing one is refused with the caller's message and the folder in
// force stays. Folders are held as text ending in "/"; a "\" read from a file
// is taken as "/", so files written on other systems still work.
#pragma once

#include <string>
#include <string_view>

#include "base/prompter.h"

namespace tavi {

// A folder value as held: every "\" turned into "/", and a "/" appended when
// missing. An empty value stays empty.
std::string folderText(std::string_view value);

// A value is absolute when it begins with "/" or "\" or holds a ":" anywhere.
bool isAbsoluteFolderValue(std::string_view value);

struct FolderResolution {
    std::string folder;    // the folder to use (the current one when rejected)
    bool rejected = false; // the value could not be used; a message was shown
};

// Resolves one folder value:
// an empty value keeps `current`; an absolute value is taken when the folder
// exists, or created when `createMissingAbsolute` (failing with "Error creating
// folder "); a relative value is taken below `base`, else below `current`.
// A value that cannot be used shows `problemMessage` and keeps `current`.
FolderResolution resolveFolder(std::string_view value, const std::string& current,
                               const std::string& base, bool createMissingAbsolute,
                               std::string_view problemMessage, Prompter& prompter);

} // namespace tavi
