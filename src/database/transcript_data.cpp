// Encoding of a sample's transcript after its record.
#include "database/transcript_data.h"

#include "base/text.h"
#include "database/db_fields.h"

namespace tavi::db {

std::string encodeTranscriptData(std::string_view utf8Text) {
    std::u16string units = toUtf16(utf8Text);
    std::string out(4 + 2 * units.size(), '\0');
    putU32(out, 0, static_cast<std::uint32_t>(units.size()));
    for (std::size_t i = 0; i < units.size(); ++i)
        putU16(out, 4 + 2 * i, units[i]);
    return out;
}

std::optional<std::string> decodeTranscriptData(std::string_view bytes) {
    if (bytes.size() < 4)
        return std::nullopt;
    std::uint64_t units = getU32(bytes, 0);
    if (bytes.size() - 4 != 2 * units)
        return std::nullopt;
    std::u16string text(static_cast<std::size_t>(units), u'\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char16_t>(getU16(bytes, 4 + 2 * i));
    return fromUtf16(text);
}

} // namespace tavi::db
