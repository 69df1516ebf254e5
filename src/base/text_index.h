// Numbers texts as they are first met, for the tables asked once for every
// word of a transcript (the store's shared words, the measures' spellings):
// an open-addressing table keyed by the text's bytes, cheaper there than a
// general hash map. Finding is inline: it is asked once for every word.
#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

namespace tavi {

class TextIndex {
public:
    // The number of `text` with `tag` (the same text under two tags is two
    // entries), or nothing when it was never inserted.
    [[gnu::always_inline]] std::optional<std::uint32_t> find(std::string_view text,
                                                             bool tag = false) const {
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
    // Adds `text` (not yet in the index) under the next number, from 0. The
    // index keeps a view: the text must outlive it.
    std::uint32_t insert(std::string_view text, bool tag = false);

    std::string_view text(std::uint32_t id) const { return {keys_[id].data, keys_[id].size}; }
    size_t size() const { return keys_.size(); }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t id = kEmpty;
    };
    struct Key {
        const char* data = nullptr;
        std::uint64_t packed = 0; // the text itself when 8 bytes or fewer
        std::uint32_t size = 0;
        bool tag = false;
    };
    static constexpr std::uint32_t kEmpty = ~std::uint32_t{0};
    void place(Slot slot);

    // A number made of a text's bytes: the whole text when it has 8 bytes or
    // fewer (two overlapping loads of 4, or three single bytes, which together
    // with the length tell such a text from every other), else its first and
    // last 8 bytes.
    static std::uint64_t packText(const char* p, size_t n) {
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
    static std::uint32_t hashOf(std::uint64_t packed, size_t n, bool tag) {
        std::uint64_t h =
            (packed ^ (std::uint64_t{n} << 57) ^ (tag ? 1u : 0u)) * 0x9E3779B97F4A7C15ull;
        h ^= h >> 32;
        h *= 0xC4CEB9FE1A85EC53ull;
        return static_cast<std::uint32_t>(h >> 32);
    }

    std::vector<Slot> slots_ = std::vector<Slot>(64); // a power of two, at most half full
    std::vector<Key> keys_;                           // by number
};

} // namespace tavi
