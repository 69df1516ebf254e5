// UTF-16LE fields and little-endian integers of the database file.
#include "database/db_fields.h"

#include <limits>

#include "base/format.h"
#include "base/text.h"

namespace tavi::db {

namespace {

std::string unitsToBytes(std::u16string_view units) {
    std::string out;
    out.reserve(units.size() * 2);
    for (char16_t u : units) {
        out.push_back(static_cast<char>(u & 0xFF));
        out.push_back(static_cast<char>(u >> 8));
    }
    return out;
}

char16_t unitAt(std::string_view bytes, std::size_t i) {
    return static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                 (static_cast<unsigned char>(bytes[2 * i + 1]) << 8));
}

bool isScanfSpace(char16_t u) {
    return u == u' ' || u == u'\t' || u == u'\n' || u == u'\r' || u == u'\v' || u == u'\f';
}

} // namespace

std::string encodeNumberField(std::int64_t value, int width) {
    std::string digits = format("%*lld", width, static_cast<long long>(value));
    std::u16string units(digits.begin(), digits.end());
    return unitsToBytes(units);
}

std::optional<std::int64_t> parseNumberField(std::string_view bytes) {
    std::size_t n = bytes.size() / 2;
    std::size_t i = 0;
    while (i < n && isScanfSpace(unitAt(bytes, i)))
        ++i;
    bool negative = false;
    if (i < n && (unitAt(bytes, i) == u'-' || unitAt(bytes, i) == u'+'))
        negative = unitAt(bytes, i++) == u'-';
    std::size_t firstDigit = i;
    std::uint64_t value = 0;
    constexpr auto limit = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    for (; i < n && unitAt(bytes, i) >= u'0' && unitAt(bytes, i) <= u'9'; ++i) {
        value = value * 10 + static_cast<std::uint64_t>(unitAt(bytes, i) - u'0');
        if (value > limit)
            return std::nullopt;
    }
    if (i == firstDigit)
        return std::nullopt;
    auto signedValue = static_cast<std::int64_t>(value);
    return negative ? -signedValue : signedValue;
}

std::string cutToUnits(std::string_view utf8, std::size_t maxUnits) {
    std::u16string units = toUtf16(utf8);
    if (units.size() <= maxUnits)
        return std::string(utf8);
    std::size_t keep = maxUnits;
    if (keep > 0 && units[keep - 1] >= 0xD800 && units[keep - 1] <= 0xDBFF)
        --keep; // never leave half a surrogate pair
    return fromUtf16(std::u16string_view(units).substr(0, keep));
}

std::string encodeFixedText(std::string_view utf8, std::size_t units) {
    std::u16string text = toUtf16(cutToUnits(utf8, units == 0 ? 0 : units - 1));
    text.resize(units, u'\0');
    return unitsToBytes(text);
}

std::string decodeFixedText(std::string_view bytes) {
    std::u16string text;
    for (std::size_t i = 0; i < bytes.size() / 2; ++i) {
        char16_t u = unitAt(bytes, i);
        if (u == 0)
            break;
        text.push_back(u);
    }
    return fromUtf16(text);
}

void putU16(std::string& buffer, std::size_t offset, std::uint16_t value) {
    buffer[offset] = static_cast<char>(value & 0xFF);
    buffer[offset + 1] = static_cast<char>(value >> 8);
}

void putU32(std::string& buffer, std::size_t offset, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        buffer[offset + i] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

void putI64(std::string& buffer, std::size_t offset, std::int64_t value) {
    auto bits = static_cast<std::uint64_t>(value);
    for (int i = 0; i < 8; ++i)
        buffer[offset + i] = static_cast<char>((bits >> (8 * i)) & 0xFF);
}

std::uint16_t getU16(std::string_view buffer, std::size_t offset) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(buffer[offset]) |
                                      (static_cast<unsigned char>(buffer[offset + 1]) << 8));
}

std::uint32_t getU32(std::string_view buffer, std::size_t offset) {
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i)
        value = (value << 8) | static_cast<unsigned char>(buffer[offset + i]);
    return value;
}

std::int64_t getI64(std::string_view buffer, std::size_t offset) {
    std::uint64_t value = 0;
    for (int i = 7; i >= 0; --i)
        value = (value << 8) | static_cast<unsigned char>(buffer[offset + i]);
    return static_cast<std::int64_t>(value);
}

} // namespace tavi::db
