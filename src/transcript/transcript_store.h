// Where a segmented transcript keeps its pieces: the utterance lines' text,
// the word records, codes, mazes and parts of words, in large blocks that
// never move. Records hold views into the store; it lives as long as the
// segmented transcript that owns it (shared by its copies).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "base/text_index.h"
#include "transcript/utterance.h"

namespace tavi {

// A word before it is kept: views of its text and pieces (the pieces and root
// inside `text`), and its flags in `flags`.
struct WordDraft {
    std::string_view text;
    std::string_view root; // inside `text`; ignored when omittedRoot
    std::string_view rootIdentification;
    std::array<std::vector<std::string_view>, 5> pieces; // the WordParts order
    bool omittedRoot = false;
    Word flags; // only its flags are read

    void clear();
};

class TranscriptStore {
public:
    TranscriptStore();
    TranscriptStore(const TranscriptStore&) = delete;
    TranscriptStore& operator=(const TranscriptStore&) = delete;

    // A copy of `text` that lives as long as the store; `text` itself when it
    // lies inside the adopted text.
    std::string_view keepText(std::string_view text);

    // Keeps `text` (once per store): views into it need no copy.
    std::string_view adoptText(std::string text);

    // A copy of `items` that lives as long as the store.
    template <class T> std::span<const T> keep(std::span<const T> items) {
        static_assert(std::is_trivially_destructible_v<T>);
        if (items.empty())
            return {};
        T* out = static_cast<T*>(allocate(items.size_bytes(), alignof(T)));
        std::uninitialized_copy(items.begin(), items.end(), out);
        return {out, items.size()};
    }
    template <class T> std::span<const T> keep(const std::vector<T>& items) {
        return keep(std::span<const T>(items));
    }
    template <class T> const T* keepOne(const T& item) {
        return keep(std::span<const T>(&item, 1)).data();
    }

    // An extras record with its pieces right after it (null when all are empty).
    const UtteranceExtras* keepExtras(std::span<const Code> codes, std::span<const Maze> mazes,
                                      std::span<const std::string_view> parentheticals,
                                      std::span<const Word> parentheticalWords,
                                      std::span<const Pause> pauses);

    // The word record of `draft`. Views inside `stable` (text the caller keeps
    // alive as long as the store) are kept as they are; others are copied.
    // A word with parts whose text and parts equal those of a word kept
    // before shares that word's text and parts record.
    Word keepWord(const WordDraft& draft, std::string_view stable = {});

    // Frees what keepWord uses to find the words kept before; words kept
    // afterwards are not shared with earlier ones.
    void endSharing();

    // Bytes held by the store's blocks and adopted text.
    size_t bytes() const { return held_ + adopted_.capacity(); }

    // A number no other store of this run of the program has: what a cache
    // of kept records that outlives one store checks before reusing them.
    std::uint64_t serial() const { return serial_; }

private:
    void* allocate(size_t bytes, size_t align);

    // The text of each word with parts kept, found by its text (at most kMaxShared).
    static constexpr size_t kMaxShared = size_t{1} << 20;
    TextIndex shared_;
    std::string adopted_;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::byte* next_ = nullptr;
    size_t left_ = 0;
    size_t blockSize_ = 16 << 10;
    size_t held_ = 0;
    std::uint64_t serial_;
};

} // namespace tavi
