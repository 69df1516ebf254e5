// The database file's building blocks: UTF-16LE fixed-width text and number
// fields, and little-endian integers at fixed offsets of a byte buffer.
// Records are always serialized field by field through these helpers, never by
// copying a struct, so the bytes do not depend on the compiler's layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavi::db {

// A number printed with "%*d" (right-aligned, space-padded) as UTF-16LE
// characters. A value wider than `width` is written wider, as printf would.
std::string encodeNumberField(std::int64_t value, int width);

// Reads a number the way "%d" reads it from UTF-16LE characters: leading
// white space, an optional sign, then at least one digit. Nullopt when there is
// no number or it does not fit in 64 bits.
std::optional<std::int64_t> parseNumberField(std::string_view utf16leBytes);

// UTF-16 text of `units` characters: cut to `units - 1` (never inside a
// surrogate pair), NUL-terminated and NUL-padded. Returns 2 * units bytes.
std::string encodeFixedText(std::string_view utf8, std::size_t units);

// The text of a fixed field up to its first NUL (or the whole field).
std::string decodeFixedText(std::string_view utf16leBytes);

// The text cut as a fixed field of `units` characters would cut it.
std::string cutToUnits(std::string_view utf8, std::size_t maxUnits);

// Little-endian integers in a byte buffer.
void putU16(std::string& buffer, std::size_t offset, std::uint16_t value);
void putU32(std::string& buffer, std::size_t offset, std::uint32_t value);
void putI64(std::string& buffer, std::size_t offset, std::int64_t value);
std::uint16_t getU16(std::string_view buffer, std::size_t offset);
std::uint32_t getU32(std::string_view buffer, std::size_t offset);
std::int64_t getI64(std::string_view buffer, std::size_t offset);

} // namespace tavi::db
