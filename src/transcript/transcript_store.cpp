// Block storage of a segmented transcript's pieces.
#include "transcript/transcript_store.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <new>

namespace tavi {

void WordDraft::clear() {
    text = root = rootIdentification = {};
    for (auto& list : pieces)
        list.clear();
    omittedRoot = false;
    flags = Word();
}

namespace {

// The bytes from `at` to the next multiple of `align`, a power of two (an
// alignof): a mask, not a division, as this is asked for every line.
size_t padding(const std::byte* at, size_t align) {
    return (0 - reinterpret_cast<std::uintptr_t>(at)) & (align - 1);
}

} // namespace

void* TranscriptStore::allocate(size_t bytes, size_t align) {
    size_t pad = left_ == 0 ? 0 : padding(next_, align);
    if (left_ < bytes + pad) {
        // Blocks grow with the transcript, up to 1 MB; a larger piece gets its own.
        size_t size = std::max(bytes + align, blockSize_);
        blockSize_ = std::min<size_t>(blockSize_ * 2, 1 << 20);
        blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
        held_ += size;
        next_ = blocks_.back().get();
        left_ = size;
        pad = padding(next_, align);
    }
    void* out = next_ + pad;
    next_ += pad + bytes;
    left_ -= pad + bytes;
    return out;
}

const UtteranceExtras* TranscriptStore::keepExtras(std::span<const Code> codes,
                                                   std::span<const Maze> mazes,
                                                   std::span<const std::string_view> parentheticals,
                                                   std::span<const Word> parentheticalWords,
                                                   std::span<const Pause> pauses) {
    if (codes.empty() && mazes.empty() && parentheticals.empty() && parentheticalWords.empty() &&
        pauses.empty())
        return nullptr;
    UtteranceExtras header;
    header.counts = {static_cast<std::uint32_t>(codes.size()),
                     static_cast<std::uint32_t>(mazes.size()),
                     static_cast<std::uint32_t>(parentheticals.size()),
                     static_cast<std::uint32_t>(parentheticalWords.size()),
                     static_cast<std::uint32_t>(pauses.size())};
    auto* out = static_cast<std::byte*>(allocate(header.bytes(), alignof(UtteranceExtras)));
    auto* extras = new (out) UtteranceExtras(header);
    std::byte* next = out + sizeof(UtteranceExtras);
    auto put = [&next](auto items) {
        using T = typename decltype(items)::value_type;
        std::uninitialized_copy(items.begin(), items.end(), reinterpret_cast<T*>(next));
        next += items.size_bytes();
    };
    put(codes);
    put(mazes);
    put(parentheticals);
    put(parentheticalWords);
    put(pauses);
    return extras;
}

std::string_view TranscriptStore::adoptText(std::string text) {
    adopted_ = std::move(text);
    return adopted_;
}

std::string_view TranscriptStore::keepText(std::string_view text) {
    if (text.empty())
        return {};
    if (!adopted_.empty() && text.data() >= adopted_.data() &&
        text.data() + text.size() <= adopted_.data() + adopted_.size())
        return text;
    char* out = static_cast<char*>(allocate(text.size(), 1));
    std::memcpy(out, text.data(), text.size());
    return {out, text.size()};
}

namespace {

bool inside(std::string_view part, std::string_view whole) {
    return !whole.empty() && part.data() >= whole.data() &&
           part.data() + part.size() <= whole.data() + whole.size();
}

// Whether `p` (a kept parts record) holds the parts of `draft`, whose text
// equals the text after `p`.
bool sameParts(const WordParts& p, const WordDraft& draft) {
    if (p.omittedRoot != draft.omittedRoot ||
        p.hasRootIdentification == draft.rootIdentification.empty())
        return false;
    std::uint32_t rootStart = 0, rootSize = 0;
    if (!draft.omittedRoot && inside(draft.root, draft.text)) {
        rootStart = static_cast<std::uint32_t>(draft.root.data() - draft.text.data());
        rootSize = static_cast<std::uint32_t>(draft.root.size());
    }
    if (p.rootStart != rootStart || p.rootSize != rootSize)
        return false;
    size_t at = 0;
    for (size_t k = 0; k < draft.pieces.size(); ++k) {
        if (draft.pieces[k].size() > 0xFFFF || p.counts[k] != draft.pieces[k].size())
            return false;
        for (std::string_view piece : draft.pieces[k])
            if (p.pieces[at++] != piece)
                return false;
    }
    return draft.rootIdentification.empty() || p.pieces[at] == draft.rootIdentification;
}

} // namespace

TranscriptStore::TranscriptStore() {
    static std::atomic<std::uint64_t> stores{0};
    serial_ = ++stores;
}

void TranscriptStore::endSharing() {
    shared_ = TextIndex();
}

Word TranscriptStore::keepWord(const WordDraft& draft, std::string_view stable) {
    Word word = draft.flags;
    bool plain = !draft.omittedRoot && draft.rootIdentification.empty() &&
                 draft.root.data() == draft.text.data() && draft.root.size() == draft.text.size();
    for (const auto& list : draft.pieces)
        plain = plain && list.empty();
    if (plain) {
        word.assignPlain(inside(draft.text, stable) || draft.text.empty() ? draft.text
                                                                          : keepText(draft.text));
        return word;
    }
    bool known = false; // a word of the same text is kept already (with other parts)
    if (!draft.text.empty()) {
        if (std::optional<std::uint32_t> id = shared_.find(draft.text)) {
            const char* kept = shared_.text(*id).data();
            if (sameParts(*reinterpret_cast<const WordParts*>(kept - sizeof(WordParts)), draft)) {
                word.assignParted({kept, draft.text.size()});
                return word;
            }
            known = true;
        }
    }
    // The parts record, then the text right after it.
    auto* block = static_cast<std::byte*>(
        allocate(sizeof(WordParts) + draft.text.size(), alignof(WordParts)));
    char* textCopy = reinterpret_cast<char*>(block + sizeof(WordParts));
    if (!draft.text.empty())
        std::memcpy(textCopy, draft.text.data(), draft.text.size());
    const std::string_view text(textCopy, draft.text.size());
    // A view of the draft's text moved onto the kept text.
    auto rebase = [&](std::string_view part) {
        if (part.empty())
            return std::string_view();
        if (inside(part, draft.text))
            return text.substr(static_cast<size_t>(part.data() - draft.text.data()), part.size());
        return inside(part, stable) ? part : keepText(part);
    };
    WordParts parts;
    size_t count = 0;
    for (size_t k = 0; k < draft.pieces.size(); ++k) {
        parts.counts[k] =
            static_cast<std::uint16_t>(std::min<size_t>(draft.pieces[k].size(), 0xFFFF));
        count += parts.counts[k];
    }
    parts.hasRootIdentification = !draft.rootIdentification.empty();
    count += parts.hasRootIdentification ? 1 : 0;
    // The pieces are written straight into their place in the store.
    std::string_view* pieces = nullptr;
    if (count > 0) {
        pieces = static_cast<std::string_view*>(
            allocate(count * sizeof(std::string_view), alignof(std::string_view)));
        size_t at = 0;
        for (size_t k = 0; k < draft.pieces.size(); ++k)
            for (size_t i = 0; i < parts.counts[k]; ++i)
                new (pieces + at++) std::string_view(rebase(draft.pieces[k][i]));
        if (parts.hasRootIdentification)
            new (pieces + at) std::string_view(rebase(draft.rootIdentification));
    }
    parts.pieces = pieces;
    parts.omittedRoot = draft.omittedRoot;
    if (!draft.omittedRoot && inside(draft.root, draft.text)) {
        // The root lies inside the text (a draft whose root is elsewhere reads as empty).
        parts.rootStart = static_cast<std::uint32_t>(draft.root.data() - draft.text.data());
        parts.rootSize = static_cast<std::uint32_t>(draft.root.size());
    }
    new (block) WordParts(parts);
    word.assignParted(text);
    if (!text.empty() && !known && shared_.size() < kMaxShared)
        shared_.insert(text);
    return word;
}

} // namespace tavi
