// Every saved report and grid goes to disk the same way: its folder made when
// missing, the bytes written through a temporary file, and the two messages a
// person sees when that fails.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavi {

// Writes `bytes` to `path`; "" on success, else "cannot open file" or
// "cannot write to file".
std::string saveReportBytes(const std::filesystem::path& path, std::string_view bytes);

// Writes files that belong together (a data file and its key) as a pair: on
// a failure neither is replaced. "" or one of the two messages.
std::string
saveReportFiles(const std::vector<std::pair<std::filesystem::path, std::string>>& files);

} // namespace tavi
