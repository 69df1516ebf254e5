// The older three-file database layout, converted on opening and never
// written by the program: "%s.sd1" holds the fixed and descriptive header,
// "%s.sd2" the 1584-byte records one after another, and "%s.sd3" each
// sample's transcript data at the positions its record gives.
#pragma once

#include <filesystem>
#include <optional>

#include "base/prompter.h"

namespace tavi::db {

// Asks whether to convert, then writes "%s.tvidb" beside the chosen ".sd1"
// file. Returns the new file's path, or nullopt after the message (or when
// the answer was not Yes). An existing ".tvidb" is never overwritten.
std::optional<std::filesystem::path> convertOlderDatabase(const std::filesystem::path& sd1,
                                                          Prompter& prompter);

} // namespace tavi::db
