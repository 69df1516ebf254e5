// Whole-file reading and writing. A file the user owns is never left half
// written: writes go to a temporary file beside it that is renamed over it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavi {

// Reads the whole file; false when it cannot be opened or read.
bool readFile(const std::filesystem::path& path, std::string& bytes);

enum class WriteStatus {
    Ok,
    CannotOpen,  // the file (or its temporary) could not be created
    WriteFailed, // creating worked, writing or renaming did not
};

// Writes `bytes` to `path` through a temporary file in the same folder and a
// rename, so the old file stays whole until the new one is complete.
WriteStatus writeFileAtomic(const std::filesystem::path& path, std::string_view bytes);

} // namespace tavi
