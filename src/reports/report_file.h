// Every saved report and grid goes to disk the same way: its folder made when
// missing, the bytes written through a temporary file, and the two messages a
// person sees when that fails.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavi {

// Writes `bytes` to `path`; "" on success, else "cannot open file" or
// "cannot write to file".
std::string saveReportBytes(const std::filesystem::path& path, std::string_view bytes);

} // namespace tavi
