// Numbers texts as they are first met, for the tables asked once for every
// word of a transcript (the store's shared words, the measures' spellings):
// an open-addressing table keyed by the text's bytes, cheaper there than a
// general hash map.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tavi {

class TextIndex {
public:
    // The number of `text` with `tag` (the same text under two tags is two
    // entries), or nothing when it was never inserted.
    std::optional<std::uint32_t> find(std::string_view text, bool tag = false) const;
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

    std::vector<Slot> slots_ = std::vector<Slot>(64); // a power of two, at most half full
    std::vector<Key> keys_;                           // by number
};

} // namespace tavi
