// The forms under which the analysis compares words: lower-case roots (NDW,
// words mentioned first), lower-case surface forms without marks (word lists,
// imitations, yes/no words), and morpheme counts.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "transcript/utterance.h"

namespace tavi {

// The root in lower case, without the "*" of a part word and the "\\" of a
// bound prefix: "Dog/s" -> "dog", "re\do" -> "redo".
std::string rootKey(const Word& w);
// The word as said, in lower case, marks and omitted parts dropped:
// "do/n't" -> "don't", "dog/s" -> "dogs", "he+'s" -> "he's".
std::string surfaceForm(const Word& w);
// The same, built on the word's rootKey when the caller already has it.
std::string surfaceForm(const Word& w, std::string_view rootKey);
// The same two into `out`, whose memory is reused.
void rootKeyInto(const Word& w, std::string& out);
void surfaceFormInto(const Word& w, std::string_view rootKey, std::string& out);
// A word's root key or surface form held in a small buffer of its own, so
// that comparing words costs no heap memory; only unusually long words are
// kept in a string.
class InlineForm {
public:
    static InlineForm root(const Word& w);
    static InlineForm surface(const Word& w);
    std::string_view view() const {
        return long_.empty() ? std::string_view(buf_.data(), size_) : std::string_view(long_);
    }

private:
    InlineForm() = default;
    bool add(char c);
    bool addLower(std::string_view s);
    bool addRoot(const Word& w);

    std::array<char, 48> buf_;
    std::size_t size_ = 0;
    std::string long_;
};
// Whether the surface form of `w` is `text` in lower case; found without
// building the form.
bool surfaceIs(const Word& w, std::string_view text);
// One for the word plus one for each bound morpheme present (endings and
// bound prefixes); clitics add nothing.
inline int morphemeCount(const Word& w) {
    return 1 + static_cast<int>(w.boundMorphemes().size() + w.prefixes().size());
}
// A word of a maze that counts as a maze word: not omitted, not an unintelligible mark.
inline bool isMazeWord(const Word& w) {
    return w.inMaze && !w.omitted && !w.unintelligible;
}
// The number of main-body words of an utterance.
int mainBodyWordCount(const Utterance& u);

} // namespace tavi
