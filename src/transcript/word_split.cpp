// The word rules: marks, omissions, idiosyncratic forms, bound prefixes,
// bound morphemes, clitics and root identifications.
#include "transcript/word_split.h"

#include <algorithm>
#include <type_traits>

#include "base/text.h"
#include "transcript/char_class.h"
#include "transcript/code_points.h"

namespace tavi {

namespace {

// True when `bytes` is `text` written in ASCII: only then do the word's views
// point into the bytes (a joined linked word is not a piece of its line).
template <class C> bool sameText(std::string_view bytes, std::basic_string_view<C> text) {
    if (bytes.size() != text.size())
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (codePoint(bytes[i]) != codePoint(text[i]))
            return false;
    return true;
}

// Searches of a word's few characters: a plain loop beats a library call.
template <class C> size_t findIn(std::basic_string_view<C> s, C c, size_t from = 0) {
    for (size_t i = from; i < s.size(); ++i)
        if (s[i] == c)
            return i;
    return std::basic_string_view<C>::npos;
}

// The first "/" or "+", the marks that begin a word's endings.
template <class C> size_t findEndingMark(std::basic_string_view<C> s) {
    for (size_t i = 0; i < s.size(); ++i)
        if (s[i] == C('/') || s[i] == C('+'))
            return i;
    return std::basic_string_view<C>::npos;
}

// The marks a word of bytes holds, one bit each: "|" 1, "*" 2, "%" 4, "\\" 8,
// "/" or "+" 16.
unsigned marksOf(std::string_view w) {
    unsigned marks = 0;
    for (char c : w) {
        switch (c) {
        case '|':
            marks |= 1;
            break;
        case '*':
            marks |= 2;
            break;
        case '%':
            marks |= 4;
            break;
        case '\\':
            marks |= 8;
            break;
        case '/':
        case '+':
            marks |= 16;
            break;
        default:
            break;
        }
    }
    return marks;
}

// The word is cut from a line of code points (C = char32_t) or, for an all-ASCII
// line, straight from its bytes (C = char): the same rules either way.
template <class C> class WordSplitter {
public:
    using View = std::basic_string_view<C>;
    // Without `keep` the word is only checked: its problems are reported and
    // no text or piece of the record is filled in.
    WordSplitter(View text, bool linked, WordDraft& word, ProblemSink* sink, std::string_view bytes,
                 std::string& spare, bool keep, bool notPlain)
        : w_(text), bytes_(keep && sameText(bytes, text) ? bytes : std::string_view()),
          linked_(linked), keep_(keep), notPlain_(notPlain), word_(word), flags_(word.flags),
          sink_(sink), spare_(spare) {}
    bool run();

private:
    template <class... A> void report(ProblemRef<A...> p, const A&... args) {
        if (sink_)
            sink_->report(p, args...);
    }
    bool plainWord();
    void checkRootIdentification();
    void checkMarks();
    void splitStem(View stem, char32_t nextMark);
    void splitEndings(View rest);
    bool legalEnding(View ending) const;
    bool legalRoot(View root) const;

    // The UTF-8 view of w_[from, to).
    std::string_view view(size_t from, size_t to) const;
    std::string_view view(View part) const {
        size_t from = static_cast<size_t>(part.data() - w_.data());
        return view(from, from + part.size());
    }

    View w_;
    std::string_view bytes_; // w_ as UTF-8 (all ASCII), or empty
    std::string_view text_;  // w_ as UTF-8, the word's text
    bool linked_;
    bool keep_;
    bool notPlain_; // the caller found the word is not plain
    // The marks the word holds (as marksOf gives them): the steps about marks
    // it lacks are skipped.
    enum : unsigned { kBar = 1, kStar = 2, kPercent = 4, kBackslash = 8, kEnding = 16 };
    unsigned marks_ = 0;
    WordDraft& word_;
    Word& flags_;
    ProblemSink* sink_;
    std::string& spare_;
};

// Offset in UTF-8 bytes of w_[k].
template <class C> size_t utf8Offset(std::basic_string_view<C> w, size_t k) {
    size_t n = 0;
    for (size_t i = 0; i < k; ++i) {
        char32_t c = codePoint(w[i]);
        n += c < 0x80 ? 1 : c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    }
    return n;
}

template <class C> std::string_view WordSplitter<C>::view(size_t from, size_t to) const {
    if (text_.size() == w_.size())
        return text_.substr(from, to - from);
    size_t a = utf8Offset(w_, from);
    return text_.substr(a, utf8Offset(w_, to) - a);
}

template <class C> bool WordSplitter<C>::run() {
    if (!notPlain_ && plainWord())
        return true;
    if (w_.starts_with(C('+'))) {
        report(Problem::UnboundCliticMark);
        w_.remove_prefix(1);
        if (!bytes_.empty())
            bytes_.remove_prefix(1);
        if (w_.empty())
            return false;
    }
    if (keep_) {
        if (!bytes_.empty()) {
            text_ = bytes_;
        } else {
            assignUtf8(spare_, w_);
            text_ = spare_;
        }
        word_.text = text_;
    }
    // Bytes only: a word of code points goes through every step, the way the
    // tests compare the two.
    if constexpr (std::is_same_v<C, char>)
        marks_ = marksOf(w_);
    else
        marks_ = ~0u;
    checkRootIdentification();
    checkMarks();
    size_t mark = marks_ & kEnding ? findEndingMark(w_) : View::npos;
    View stem = w_.substr(0, mark);
    splitStem(stem, mark == View::npos ? 0 : codePoint(w_[mark]));
    if (mark != View::npos)
        splitEndings(w_.substr(mark));
    return true;
}

// The common case: only word characters, at least one letter or digit. Root
// and text are the word itself; no rule can apply.
template <class C> bool WordSplitter<C>::plainWord() {
    if (!isPlainWord(w_))
        return false;
    if (!keep_)
        return true;
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
template <class C> void WordSplitter<C>::checkRootIdentification() {
    if (!(marks_ & kBar))
        return;
    size_t bar = findIn(w_, C('|'));
    if (bar == View::npos ||
        (w_.size() >= 2 && w_.ends_with(C('|')) && w_[w_.size() - 2] == C('|')))
        return;
    bool bad = bar == 0 || w_.back() == C('|') || findIn(w_, C('|'), bar + 1) != View::npos;
    if (!bad) {
        View root = w_.substr(bar + 1);
        root = root.substr(0, findEndingMark(root));
        bad = root.empty() || !std::all_of(root.begin(), root.end(), [](C c) {
                  return cls::isWordChar(codePoint(c)) || (c == C('%'));
              });
        if (!bad && root.starts_with(C('%')))
            root.remove_prefix(1);
        if (keep_)
            word_.rootIdentification = view(root);
    }
    if (bad)
        report(Problem::RootIdentificationFormat);
}

// "*" and "%" after the first character.
template <class C> void WordSplitter<C>::checkMarks() {
    if (!(marks_ & (kStar | kPercent)))
        return;
    for (size_t i = 1; i < w_.size(); ++i) {
        char32_t c = codePoint(w_[i]);
        char32_t before = codePoint(w_[i - 1]);
        if (c == U'*' && before != U'/' && before != U'+') {
            char32_t after = i + 1 < w_.size() ? codePoint(w_[i + 1]) : 0;
            if (after == U'/')
                report(Problem::OmittedBoundMorphemeForm);
            else if (after == U'+')
                report(Problem::OmittedBoundCliticForm);
            else if (w_[0] == C('*'))
                report(Problem::IncompleteWordStar);
            else if (after == 0)
                flags_.incomplete = true;
        } else if (c == U'%' && before != U'|') {
            report(Problem::MisplacedPercent);
        }
    }
}

template <class C> void WordSplitter<C>::splitStem(View stem, char32_t nextMark) {
    if (stem.empty()) {
        report(Problem::MissingRoot);
        return;
    }
    if (stem.starts_with(C('*'))) {
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
    if (stem.starts_with(C('%'))) {
        flags_.idiosyncratic = true;
        stem.remove_prefix(1);
        if (stem.empty()) {
            report(Problem::IdiosyncraticWithoutWord);
            return;
        }
    }
    if (marks_ & kBar)
        stem = stem.substr(0, findIn(stem, C('|')));
    size_t slash = marks_ & kBackslash ? stem.rfind(C('\\')) : View::npos;
    if (slash != View::npos) {
        View prefixes = stem.substr(0, slash);
        while (true) {
            size_t cut = findIn(prefixes, C('\\'));
            View prefix = prefixes.substr(0, cut);
            if (prefix.empty())
                report(Problem::MissingPrefix);
            else if (!legalEnding(prefix))
                report(Problem::IllegalPrefix);
            else if (keep_)
                word_.pieces[0].push_back(view(prefix));
            if (cut == View::npos)
                break;
            prefixes.remove_prefix(cut + 1);
        }
        if (slash + 1 == stem.size())
            report(Problem::MissingRoot);
    }
    if (keep_)
        word_.root = view(stem);
    View root = slash == View::npos ? stem : stem.substr(slash + 1);
    if (!root.empty() && !legalRoot(root))
        report(Problem::IllegalWord);
    flags_.unintelligible = !flags_.omitted && isUnintelligibleMark(root);
}

// Each "/" ending and "+" clitic; "/*" and "+*" mark omitted ones.
template <class C> void WordSplitter<C>::splitEndings(View rest) {
    while (!rest.empty()) {
        char32_t mark = codePoint(rest[0]);
        rest.remove_prefix(1);
        size_t next = findEndingMark(rest);
        View ending = rest.substr(0, next);
        rest = next == View::npos ? View() : rest.substr(next);
        bool bound = mark == U'/';
        bool omitted = ending.starts_with(C('*'));
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
        if (keep_)
            word_.pieces[bound ? (omitted ? 2 : 1) : (omitted ? 4 : 3)].push_back(view(ending));
        if (omitted && bound)
            flags_.omittedBoundMorpheme = true;
        else if (omitted)
            flags_.omittedClitic = true;
    }
}

// Endings and prefixes: word characters with at least one letter or digit.
template <class C> bool WordSplitter<C>::legalEnding(View ending) const {
    bool alnum = false;
    for (C ch : ending) {
        char32_t c = codePoint(ch);
        if (!cls::isWordChar(c) && !cls::isAmpersandOrHash(c))
            return false;
        alnum = alnum || cls::isAlnum(c);
    }
    return alnum;
}

// A root: at least one letter or digit; word characters, "&" and "#", "_" in a
// linked word, "%" (reported on its own) and a final "*" (a part word).
template <class C> bool WordSplitter<C>::legalRoot(View root) const {
    bool alnum = false;
    for (size_t i = 0; i < root.size(); ++i) {
        char32_t c = codePoint(root[i]);
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

template <class C> bool isPlainWord(std::basic_string_view<C> text) {
    bool alnum = false;
    for (C ch : text) {
        char32_t c = codePoint(ch);
        if (!cls::isWordChar(c))
            return false;
        alnum = alnum || cls::isAlnum(c);
    }
    return alnum;
}

template <class C>
bool splitWord(std::basic_string_view<C> text, bool linked, WordDraft& word, ProblemSink* sink,
               std::string_view bytes, std::string& spare, bool notPlain) {
    return WordSplitter<C>(text, linked, word, sink, bytes, spare, true, notPlain).run();
}

template <class C>
void checkWord(std::basic_string_view<C> text, bool linked, WordDraft& scratch, std::string& spare,
               ProblemSink* sink, bool notPlain) {
    WordSplitter<C>(text, linked, scratch, sink, {}, spare, false, notPlain).run();
}

template <class C>
void splitRemarkWords(std::basic_string_view<C> inner, TranscriptStore& store,
                      std::vector<Word>& out) {
    WordDraft draft;
    std::string spare;
    size_t i = 0;
    while (i < inner.size()) {
        auto isBreak = [](C ch) {
            char32_t c = codePoint(ch);
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

template bool isPlainWord(std::basic_string_view<char>);
template bool splitWord(std::basic_string_view<char>, bool, WordDraft&, ProblemSink*,
                        std::string_view, std::string&, bool);
template void checkWord(std::basic_string_view<char>, bool, WordDraft&, std::string&, ProblemSink*,
                        bool);
template void splitRemarkWords(std::basic_string_view<char>, TranscriptStore&, std::vector<Word>&);
template bool isPlainWord(std::basic_string_view<char32_t>);
template bool splitWord(std::basic_string_view<char32_t>, bool, WordDraft&, ProblemSink*,
                        std::string_view, std::string&, bool);
template void checkWord(std::basic_string_view<char32_t>, bool, WordDraft&, std::string&,
                        ProblemSink*, bool);
template void splitRemarkWords(std::basic_string_view<char32_t>, TranscriptStore&,
                               std::vector<Word>&);

} // namespace tavi
