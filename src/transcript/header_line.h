// "+ keyword: value" header lines.
#pragma once

#include <optional>
#include <string_view>

#include "transcript/segmented_transcript.h"

namespace tavi {

// The keyword (between "+" and the first ":") and the value (after it), both
// trimmed. A "+" line without ":" has its whole text as keyword and no value.
// Empty when the line does not begin with "+".
std::optional<HeaderLine> parseHeaderLine(std::string_view text, int line);

} // namespace tavi
