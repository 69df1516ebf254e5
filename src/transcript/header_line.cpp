// Header line parsing.
#include "transcript/header_line.h"

#include "base/text.h"

namespace tavi {

std::optional<HeaderLine> parseHeaderLine(std::string_view text, int line) {
    if (!text.starts_with('+'))
        return std::nullopt;
    text.remove_prefix(1);
    HeaderLine header;
    header.line = line;
    size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        header.keyword = std::string(trim(text));
        return header;
    }
    header.keyword = std::string(trim(text.substr(0, colon)));
    header.value = std::string(trim(text.substr(colon + 1)));
    return header;
}

} // namespace tavi
