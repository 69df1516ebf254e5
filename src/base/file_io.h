// Whole-file reading and writing. A file the user owns is never left half
// written: writes go to a temporary file beside it that is renamed over it,
// keeping the file's permissions, following a symbolic link to the file it
// names, and refusing a file the user may not write.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavi {

// Reads the whole file; false when it cannot be opened or read.
bool readFile(const std::filesystem::path& path, std::string& bytes);

enum class WriteStatus {
    Ok,
    CannotOpen,  // the file (or its temporary) could not be created, or is read-only
    WriteFailed, // creating worked, writing or renaming did not
};

// Writes `bytes` to `path` through a temporary file in the same folder and a
// rename, so the old file stays whole until the new one is complete.
WriteStatus writeFileAtomic(const std::filesystem::path& path, std::string_view bytes);

// Writes files that belong together (a data file and its key): every
// temporary is written first, and only when all are complete are they
// renamed; on a failure no file is replaced.
WriteStatus
writeFilesAtomic(const std::vector<std::pair<std::filesystem::path, std::string_view>>& files);

} // namespace tavi
