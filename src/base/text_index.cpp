// The open-addressing text index: linear probing over a power-of-two table.
#include "base/text_index.h"

#include <cstring>

namespace tavi {

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
