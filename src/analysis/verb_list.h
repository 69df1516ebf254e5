// The verb file ("verbs.txt" in the data folder): one verb form a line, base
// and inflected forms alike ("go", "goes", "went"). The grammatical-category
// count takes a word the dictionary lacks as a verb when its root is here,
// before guessing from the word's form.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace tavi {

class VerbList {
public:
    // One form a line; blank lines are skipped, forms kept in lower case.
    static VerbList parse(std::string_view text);
    // Reads a verb file (any encoding the transcripts may have); false, with
    // the list left empty, when it cannot be read.
    static bool loadFile(const std::string& path, VerbList& list);
    // Whether a word (lower case) is a verb form of the list.
    bool contains(std::string_view word) const { return forms_.contains(std::string(word)); }
    size_t size() const { return forms_.size(); }
    bool empty() const { return forms_.empty(); }
    void add(std::string form) { forms_.insert(std::move(form)); }

private:
    std::unordered_set<std::string> forms_;
};

} // namespace tavi
