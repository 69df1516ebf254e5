// The word rules: marks, omissions, idiosyncratic forms, bound prefixes,
// bound morphemes, clitics and root identifications.
#include "transcript/word_split.h"

#include <algorithm>

#include "base/text.h"
#include "transcript/char_class.h"
#include "transcript/code_points.h"

namespace tavi {

namespace {

// True when `bytes` is `text` written in ASCII: only then do the word's views
// point into the bytes (a joined linked word is not a piece of its line).
bool sameText(std::string_view bytes, std::u32string_view text) {
    if (bytes.size() != text.size())
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (static_cast<unsigned char>(bytes[i]) != text[i])
            return false;
    return true;
}

class WordSplitter {
public:
    WordSplitter(std::u32string_view text, bool linked, WordDraft& word, ProblemSink* sink,
                 std::string_view bytes, std::string& spare)
        : w_(text), bytes_(sameText(bytes, text) ? bytes : std::string_view()), linked_(linked),
          word_(word), flags_(word.flags), sink_(sink), spare_(spare) {}
    bool run();

private:
    template <class... A> void report(ProblemRef<A...> p, const A&... args) {
        if (sink_)
            sink_->report(p, args...);
    }
    bool plainWord();
    void checkRootIdentification();
    void checkMarks();
    void splitStem(std::u32string_view stem, char32_t nextMark);
    void splitEndings(std::u32string_view rest);
    bool legalEnding(std::u32string_view ending) const;
    bool legalRoot(std::u32string_view root) const;

    // The UTF-8 view of w_[from, to).
    std::string_view view(size_t from, size_t to) const;
    std::string_view view(std::u32string_view part) const {
        size_t from = static_cast<size_t>(part.data() - w_.data());
        return view(from, from + part.size());
    }

    std::u32string_view w_;
    std::string_view bytes_; // w_ as UTF-8 (all ASCII), or empty
    std::string_view text_;  // w_ as UTF-8, the word's text
    bool linked_;
    WordDraft& word_;
    Word& flags_;
    ProblemSink* sink_;
    std::string& spare_;
};

// Offset in UTF-8 bytes of w_[k].
size_t utf8Offset(std::u32string_view w, size_t k) {
    size_t n = 0;
    for (size_t i = 0; i < k; ++i)
        n += w[i] < 0x80 ? 1 : w[i] < 0x800 ? 2 : w[i] < 0x10000 ? 3 : 4;
    return n;
}

std::string_view WordSplitter::view(size_t from, size_t to) const {
    if (text_.size() == w_.size())
        return text_.substr(from, to - from);
    size_t a = utf8Offset(w_, from);
    return text_.substr(a, utf8Offset(w_, to) - a);
}

bool WordSplitter::run() {
    if (plainWord())
        return true;
    if (w_.starts_with(U'+')) {
        report(Problem::UnboundCliticMark);
        w_.remove_prefix(1);
        if (!bytes_.empty())
            bytes_.remove_prefix(1);
        if (w_.empty())
            return false;
    }
    if (!bytes_.empty()) {
        text_ = bytes_;
    } else {
        assignUtf8(spare_, w_);
        text_ = spare_;
    }
    word_.text = text_;
    checkRootIdentification();
    checkMarks();
    size_t mark = w_.find_first_of(U"/+");
    std::u32string_view stem = w_.substr(0, mark);
    splitStem(stem, mark == std::u32string_view::npos ? 0 : w_[mark]);
    if (mark != std::u32string_view::npos)
        splitEndings(w_.substr(mark));
    return true;
}

// The common case: only word characters, at least one letter or digit. Root
// and text are the word itself; no rule can apply.
bool WordSplitter::plainWord() {
    if (!isPlainWord(w_))
        return false;
    if (!bytes_.empty()) {
        text_ = bytes_;
    } else {
        assignUtf8(spare_, w_);
        text_ = spare_;
    }
    word_.text = word_.root = text_;
    flags_.unintelligible = isUnintelligibleMark(w_);
    return true;
}

// "written|root": one "|", neither first nor last, the root of word
// characters. A word ending in "||" is accepted as it stands.
void WordSplitter::checkRootIdentification() {
    size_t bar = w_.find(U'|');
    if (bar == std::u32string_view::npos || w_.ends_with(U"||"))
        return;
    bool bad = bar == 0 || w_.back() == U'|' || w_.find(U'|', bar + 1) != std::u32string_view::npos;
    if (!bad) {
        std::u32string_view root = w_.substr(bar + 1);
        root = root.substr(0, root.find_first_of(U"/+"));
        bad = root.empty() || !std::all_of(root.begin(), root.end(), [](char32_t c) {
                  return cls::isWordChar(c) || (c == U'%');
              });
        if (!bad && root.starts_with(U'%'))
            root.remove_prefix(1);
        word_.rootIdentification = view(root);
    }
    if (bad)
        report(Problem::RootIdentificationFormat);
}

// "*" and "%" after the first character.
void WordSplitter::checkMarks() {
    for (size_t i = 1; i < w_.size(); ++i) {
        char32_t c = w_[i];
        char32_t before = w_[i - 1];
        if (c == U'*' && before != U'/' && before != U'+') {
            char32_t after = i + 1 < w_.size() ? w_[i + 1] : 0;
            if (after == U'/')
                report(Problem::OmittedBoundMorphemeForm);
            else if (after == U'+')
                report(Problem::OmittedBoundCliticForm);
            else if (w_[0] == U'*')
                report(Problem::IncompleteWordStar);
            else if (after == 0)
                flags_.incomplete = true;
        } else if (c == U'%' && before != U'|') {
            report(Problem::MisplacedPercent);
        }
    }
}

void WordSplitter::splitStem(std::u32string_view stem, char32_t nextMark) {
    if (stem.empty()) {
        report(Problem::MissingRoot);
        return;
    }
    if (stem.starts_with(U'*')) {
        flags_.omitted = true;
        stem.remove_prefix(1);
        if (stem.empty()) {
            if (nextMark == U'+')
                report(Problem::OmittedCliticForm);
            else
                report(Problem::OmittedWordForm);
            word_.omittedRoot = true;
            return;
        }
    }
    if (stem.starts_with(U'%')) {
        flags_.idiosyncratic = true;
        stem.remove_prefix(1);
        if (stem.empty()) {
            report(Problem::IdiosyncraticWithoutWord);
            return;
        }
    }
    stem = stem.substr(0, stem.find(U'|'));
    size_t slash = stem.rfind(U'\\');
    if (slash != std::u32string_view::npos) {
        std::u32string_view prefixes = stem.substr(0, slash);
        while (true) {
            size_t cut = prefixes.find(U'\\');
            std::u32string_view prefix = prefixes.substr(0, cut);
            if (prefix.empty())
                report(Problem::MissingPrefix);
            else if (!legalEnding(prefix))
                report(Problem::IllegalPrefix);
            else
                word_.pieces[0].push_back(view(prefix));
            if (cut == std::u32string_view::npos)
                break;
            prefixes.remove_prefix(cut + 1);
        }
        if (slash + 1 == stem.size())
            report(Problem::MissingRoot);
    }
    word_.root = view(stem);
    std::u32string_view root = slash == std::u32string_view::npos ? stem : stem.substr(slash + 1);
    if (!root.empty() && !legalRoot(root))
        report(Problem::IllegalWord);
    flags_.unintelligible = !flags_.omitted && isUnintelligibleMark(root);
}

// Each "/" ending and "+" clitic; "/*" and "+*" mark omitted ones.
void WordSplitter::splitEndings(std::u32string_view rest) {
    while (!rest.empty()) {
        char32_t mark = rest[0];
        rest.remove_prefix(1);
        size_t next = rest.find_first_of(U"/+");
        std::u32string_view ending = rest.substr(0, next);
        rest = next == std::u32string_view::npos ? std::u32string_view() : rest.substr(next);
        bool bound = mark == U'/';
        bool omitted = ending.starts_with(U'*');
        if (omitted)
            ending.remove_prefix(1);
        if (ending.empty()) {
            if (bound)
                report(Problem::MissingBoundMorpheme);
            else
                report(Problem::MissingClitic);
            continue;
        }
        if (!legalEnding(ending)) {
            if (bound)
                report(Problem::IllegalBoundMorpheme);
            else
                report(Problem::IllegalClitic);
            continue;
        }
        word_.pieces[bound ? (omitted ? 2 : 1) : (omitted ? 4 : 3)].push_back(view(ending));
        if (omitted && bound)
            flags_.omittedBoundMorpheme = true;
        else if (omitted)
            flags_.omittedClitic = true;
    }
}

// Endings and prefixes: word characters with at least one letter or digit.
bool WordSplitter::legalEnding(std::u32string_view ending) const {
    bool alnum = false;
    for (char32_t c : ending) {
        if (!cls::isWordChar(c) && !cls::isAmpersandOrHash(c))
            return false;
        alnum = alnum || cls::isAlnum(c);
    }
    return alnum;
}

// A root: at least one letter or digit; word characters, "&" and "#", "_" in a
// linked word, "%" (reported on its own) and a final "*" (a part word).
bool WordSplitter::legalRoot(std::u32string_view root) const {
    bool alnum = false;
    for (size_t i = 0; i < root.size(); ++i) {
        char32_t c = root[i];
        alnum = alnum || cls::isAlnum(c);
        if (cls::isWordChar(c) || cls::isAmpersandOrHash(c) || c == U'%' ||
            (c == U'_' && linked_) || (c == U'*' && i + 1 == root.size()))
            continue;
        if (c == U'*')
            continue; // reported by the mark checks
        return false;
    }
    return alnum;
}

} // namespace

bool isPlainWord(std::u32string_view text) {
    bool alnum = false;
    for (char32_t c : text) {
        if (!cls::isWordChar(c))
            return false;
        alnum = alnum || cls::isAlnum(c);
    }
    return alnum;
}

bool isUnintelligibleMark(std::u32string_view root) {
    if (root.empty() || root.size() > 3)
        return false;
    return std::all_of(root.begin(), root.end(), [](char32_t c) { return c == U'x' || c == U'X'; });
}

bool splitWord(std::u32string_view text, bool linked, WordDraft& word, ProblemSink* sink,
               std::string_view bytes, std::string& spare) {
    return WordSplitter(text, linked, word, sink, bytes, spare).run();
}

void splitRemarkWords(std::u32string_view inner, TranscriptStore& store, std::vector<Word>& out) {
    WordDraft draft;
    std::string spare;
    size_t i = 0;
    while (i < inner.size()) {
        auto isBreak = [](char32_t c) {
            return cls::isSeparator(c) || cls::isBracket(c) || cls::isTerminator(c);
        };
        while (i < inner.size() && isBreak(inner[i]))
            ++i;
        size_t start = i;
        while (i < inner.size() && !isBreak(inner[i]))
            ++i;
        if (i == start)
            continue;
        draft.clear();
        if (splitWord(inner.substr(start, i - start), false, draft, nullptr, {}, spare)) {
            draft.flags.inParenthetical = true;
            out.push_back(store.keepWord(draft));
        }
    }
}

} // namespace tavi
