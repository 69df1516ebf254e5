// The open-addressing text index: linear probing over a power-of-two table.
#include "base/text_index.h"

#include <cstring>

namespace tavi {

namespace {

// A number made of a text's bytes: the whole text when it has 8 bytes or
// fewer (two overlapping loads of 4, or three single bytes, which together
// with the length tell such a text from every other), else its first and
// last 8 bytes.
std::uint64_t packText(const char* p, size_t n) {
    if (n > 8) {
        std::uint64_t first, last;
        std::memcpy(&first, p, 8);
        std::memcpy(&last, p + n - 8, 8);
        return first ^ (last * 0x9E3779B97F4A7C15ull);
    }
    if (n >= 4) {
        std::uint32_t first, last;
        std::memcpy(&first, p, 4);
        std::memcpy(&last, p + n - 4, 4);
        return (std::uint64_t{first} << 32) | last;
    }
    if (n == 0)
        return 0;
    const auto byte = [&](size_t k) { return std::uint64_t{static_cast<unsigned char>(p[k])}; };
    return (byte(0) << 16) | (byte(n / 2) << 8) | byte(n - 1);
}

std::uint32_t hashOf(std::uint64_t packed, size_t n, bool tag) {
    std::uint64_t h = (packed ^ (std::uint64_t{n} << 57) ^ (tag ? 1u : 0u)) * 0x9E3779B97F4A7C15ull;
    h ^= h >> 32;
    h *= 0xC4CEB9FE1A85EC53ull;
    return static_cast<std::uint32_t>(h >> 32);
}

} // namespace

std::optional<std::uint32_t> TextIndex::find(std::string_view text, bool tag) const {
    const std::uint64_t packed = packText(text.data(), text.size());
    const std::uint32_t hash = hashOf(packed, text.size(), tag);
    const size_t mask = slots_.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& s = slots_[at];
        if (s.id == kEmpty)
            return std::nullopt;
        if (s.hash != hash)
            continue;
        const Key& k = keys_[s.id];
        if (k.size == text.size() && k.tag == tag && k.packed == packed &&
            (text.size() <= 8 || std::memcmp(k.data, text.data(), text.size()) == 0))
            return s.id;
    }
}

std::uint32_t TextIndex::insert(std::string_view text, bool tag) {
    const std::uint64_t packed = packText(text.data(), text.size());
    const auto id = static_cast<std::uint32_t>(keys_.size());
    keys_.push_back({text.data(), packed, static_cast<std::uint32_t>(text.size()), tag});
    if (keys_.size() * 2 > slots_.size()) {
        std::vector<Slot> old = std::move(slots_);
        slots_.assign(old.size() * 2, Slot{});
        for (const Slot& s : old)
            if (s.id != kEmpty)
                place(s);
    }
    place({hashOf(packed, text.size(), tag), id});
    return id;
}

void TextIndex::place(Slot slot) {
    const size_t mask = slots_.size() - 1;
    size_t at = slot.hash & mask;
    while (slots_[at].id != kEmpty)
        at = (at + 1) & mask;
    slots_[at] = slot;
}

} // namespace tavi
