// A stored sample's transcript, as it follows its record in the file: a
// 32-bit little-endian count of UTF-16 code units, then the transcript text
// as UTF-16LE, line ends included, so the text reads back exactly as added.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavi::db {

std::string encodeTranscriptData(std::string_view utf8Text);
// The text of exactly the data block's bytes; nullopt when they do not form one.
std::optional<std::string> decodeTranscriptData(std::string_view bytes);

} // namespace tavi::db
