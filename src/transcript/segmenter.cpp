// Utterance segmentation. The line is copied once, as its bytes when it is all
// ASCII (positions are then byte offsets) and else decoded into code points,
// and then worked on in place, in the notation's order: comments and codes, terminator,
// parenthetical remarks and separators, mazes and overlaps, pauses and stray
// characters, word links, words. Every faulty part is blanked after it is
// reported, so later steps never report it again.
//
// One pass over the line's bytes first tells a line of plain words (cut
// straight from its bytes, never faulty) from the rest, and for an all-ASCII
// line ending in its terminator gives the kinds of characters it holds, so
// the steps with nothing to do are skipped. On bytes each step passes over the
// characters it has no rule for; on code points every character is looked at
// (the tests hold the two to the same results). When the line is only
// checked, nothing is kept: words are checked, not built. When kept, a word
// of bytes that is not plain is split once per segmenter: met again, it is
// rebuilt from the offsets of its pieces (SplitCache).
#include "transcript/segmenter.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <deque>
#include <optional>
#include <string>
#include <type_traits>

#include "base/text.h"
#include "base/text_index.h"
#include "transcript/char_class.h"
#include "transcript/code_points.h"
#include "transcript/comments_and_codes.h"
#include "transcript/word_split.h"

namespace tavi {

namespace {

using Span = std::pair<size_t, size_t>; // [first, last] positions, both inclusive

constexpr size_t kMaxPauseRun = 20;

// Kinds of characters a line may hold before its terminator, one bit each:
// a step of the cut that only such characters concern is skipped without them.
enum Presence : std::uint8_t {
    kCodeOrComment = 1,
    kParenOrQuote = 2,
    kMazeOrOverlap = 4,
    kPauseOrStray = 8,
    kLink = 16,
    kControl = 32, // a control character other than the spacing ones
    kNonAscii = 64,
};

// The kinds of each ASCII character.
struct PresenceTable {
    std::uint8_t kinds[128] = {};
    constexpr PresenceTable() {
        mark("{}[]", kCodeOrComment);
        mark("(),\"\x1C\x1D", kParenOrQuote);
        mark("()<>", kMazeOrOverlap);
        mark(":.!?~^=;-$@", kPauseOrStray);
        mark("_", kLink);
        for (int c = 0; c < 32; ++c)
            if (!(c >= 9 && c <= 13) && c != 0x1C && c != 0x1D)
                kinds[c] |= kControl;
        kinds[0x7F] |= kControl;
    }
    constexpr void mark(const char* chars, Presence kind) {
        for (; *chars; ++chars)
            kinds[static_cast<unsigned char>(*chars)] |= kind;
    }
};
constexpr PresenceTable kPresence;

// What a character is to the word pass, one bit each: white space, a word
// character or not, a letter or digit (a word of word characters only, with a
// letter or digit, is plain), and whether a word may end at it (white space, a
// terminator, the character past the end of a string). A byte from 128 (never
// in a line cut from its bytes) is no word character.
enum WordKind : std::uint8_t {
    kSpace = 1,
    kWordChar = 2,
    kAlnum = 4,
    kNotWordChar = 8,
    kMayEndWord = 16
};

struct WordKindTable {
    std::uint8_t kinds[256] = {};
    constexpr WordKindTable() {
        for (char32_t c = 0; c < 128; ++c)
            kinds[c] = static_cast<std::uint8_t>(
                (cls::isSpace(c) ? kSpace : 0) | (cls::isWordChar(c) ? kWordChar : kNotWordChar) |
                (cls::isAlnum(c) ? kAlnum : 0) |
                (cls::isSpace(c) || cls::isTerminator(c) || c == 0 ? kMayEndWord : 0));
        for (int c = 128; c < 256; ++c)
            kinds[c] = kNotWordChar;
    }
};
constexpr WordKindTable kWordKinds;

// The characters each step of the cut has a rule for, one bit per step; a
// step passes over the others. Every byte from 128 concerns every step.
enum StepKind : std::uint8_t { kParenStep = 1, kMazeStep = 2, kPauseStep = 4 };

struct StepTable {
    std::uint8_t kinds[256] = {};
    constexpr StepTable() {
        for (char32_t c = 0; c < 128; ++c) {
            // A blank, a separator, is blanked: it stays what it is.
            if (c == U'(' || c == U')' || (cls::isSeparator(c) && c != U' '))
                kinds[c] |= kParenStep;
            if (c == U'(' || c == U')' || c == U'<' || c == U'>')
                kinds[c] |= kMazeStep;
            if (c == U':' || cls::isTerminator(c) || (cls::isLineIdentifier(c) && c != U'+') ||
                cls::isControl(c))
                kinds[c] |= kPauseStep;
        }
        for (int c = 128; c < 256; ++c)
            kinds[c] = kParenStep | kMazeStep | kPauseStep;
    }
};
constexpr StepTable kSteps;

// Eight bytes at a time: a bit 0x80 in each byte that may concern a step. A
// byte from 128 always may; the tests on the low seven bits cannot carry from
// one byte into the next.
constexpr std::uint64_t kOnes = 0x0101010101010101u;
constexpr std::uint64_t kHighBits = 0x8080808080808080u;
// The bytes of `low` (each below 128) that are below `n` (at most 128).
constexpr std::uint64_t bytesBelow(std::uint64_t low, unsigned n) {
    return ~(low + (0x80u - n) * kOnes) & kHighBits;
}
constexpr std::uint64_t bytesEqual(std::uint64_t low, unsigned c) {
    return bytesBelow(low ^ (c * kOnes), 1);
}
// More bytes than the step has a rule for may be marked (control characters,
// ":" to "@"): the byte loop that follows decides.
template <std::uint8_t step> std::uint64_t mayConcern(std::uint64_t eight) {
    const std::uint64_t low = eight & ~kHighBits;
    std::uint64_t marked = eight & kHighBits;
    if constexpr (step == kParenStep) {
        // "(" ")", "," "\"", other white space and quotation marks below 0x20.
        marked |= bytesEqual(low | kOnes, ')') | bytesEqual(low, ',') | bytesEqual(low, '"') |
                  bytesBelow(low, 0x20);
    } else if constexpr (step == kMazeStep) {
        marked |= bytesEqual(low | kOnes, ')') | bytesEqual(low | 2 * kOnes, '>');
    } else {
        // Control characters, ":" to "@", "!" "$", "," to "/", "^" "~" and 0x7F.
        marked |= bytesBelow(low, 0x20) | (bytesBelow(low, 0x41) & ~bytesBelow(low, 0x3A)) |
                  bytesEqual(low, '!') | bytesEqual(low, '$') | bytesEqual(low | 3 * kOnes, '/') |
                  bytesEqual(low | 0x20 * kOnes, '~') | bytesEqual(low, 0x7F);
    }
    return marked;
}

// The first position from `i` (up to `end`) of a character that concerns
// `step`. Only bytes are passed over, eight at a time where none may concern
// it: the code-point cut, which the tests compare the byte cut with, looks at
// every character.
template <std::uint8_t step, class C> size_t nextFor(const C* b, size_t i, size_t end) {
    if constexpr (std::is_same_v<C, char>) {
        auto concerns = [b](size_t k) {
            return (kSteps.kinds[static_cast<unsigned char>(b[k])] & step) != 0;
        };
        for (; i + 8 <= end; i += 8) {
            std::uint64_t eight;
            std::memcpy(&eight, b + i, 8);
            std::uint64_t marked = mayConcern<step>(eight);
            if constexpr (std::endian::native == std::endian::little) {
                // The lowest marked byte is the first one.
                for (; marked != 0; marked &= marked - 1)
                    if (const size_t k = i + std::countr_zero(marked) / 8; concerns(k))
                        return k;
            } else if (marked != 0) {
                for (size_t k = i; k < i + 8; ++k)
                    if (concerns(k))
                        return k;
            }
        }
        while (i < end && !concerns(i))
            ++i;
    }
    return i;
}

// A byte of an ASCII line, or a code point.
inline std::uint8_t wordKind(char c) {
    return kWordKinds.kinds[static_cast<unsigned char>(c)];
}
inline std::uint8_t wordKind(char32_t c) {
    if (c < 128)
        return kWordKinds.kinds[c];
    return static_cast<std::uint8_t>((cls::isWordChar(c) ? kWordChar : kNotWordChar) |
                                     (cls::isAlnum(c) ? kAlnum : 0) |
                                     (cls::isTerminator(c) ? kMayEndWord : 0));
}

} // namespace

// The copies of a line being cut, as bytes (C = char) or code points.
template <class C> struct LineBuffers {
    std::basic_string<C> buf;
    std::basic_string<C> link;
    std::basic_string<C> joined; // a word with the codes written inside it taken out
};

// How the words of bytes split before were split, found by their text: a
// word's split depends on its text alone, so a word met again is rebuilt
// from the offsets of its pieces instead of split anew. Only splits that
// found no fault are kept (a word met again must report its faults again).
// Each entry also remembers the record last kept for it and in which store:
// met again while cutting into that store, the word is that record again (a
// record kept from the same text and pieces is the same record).
class SplitCache {
    static constexpr std::uint32_t kNull = ~std::uint32_t{0}; // a view with no data
    struct Piece {
        std::uint32_t from = kNull; // offset in the word's text
        std::uint32_t size = 0;
    };

public:
    // A word split before: where its pieces lie in its text.
    struct Entry {
        Word flags;
        Piece root, rootIdentification;
        size_t firstPiece = 0;
        std::array<std::uint8_t, 5> counts{};
        bool omittedRoot = false;
        Word kept;                // the record last kept for the word,
        std::uint64_t keptIn = 0; // in the store of this serial (0: none)
    };

    // The entry of `text` when it was split before, else null.
    Entry* find(std::string_view text) {
        if (text.size() > kMaxText)
            return nullptr;
        const std::optional<std::uint32_t> id = index_.find(text);
        return id ? &entries_[*id] : nullptr;
    }
    // The record kept for `e` in the store numbered `store`, if any.
    static const Word* keptIn(const Entry& e, std::uint64_t store) {
        return e.keptIn == store ? &e.kept : nullptr;
    }
    static void noteKept(Entry& e, const Word& kept, std::uint64_t store) {
        e.kept = kept;
        e.keptIn = store;
    }
    // Fills `draft` (views into `text`, the entry's text where it lies now).
    void fill(const Entry& e, std::string_view text, WordDraft& draft) const {
        // Every field of the draft is set.
        draft.text = text;
        draft.root = viewOf(text, e.root);
        draft.rootIdentification = viewOf(text, e.rootIdentification);
        draft.omittedRoot = e.omittedRoot;
        size_t at = e.firstPiece;
        for (size_t k = 0; k < e.counts.size(); ++k) {
            draft.pieces[k].clear();
            for (size_t n = 0; n < e.counts[k]; ++n)
                draft.pieces[k].push_back(viewOf(text, pieces_[at++]));
        }
        draft.flags = e.flags;
    }
    // Keeps the split of `draft`, whose text is `text`; null when it is not
    // kept (a view lies outside the text, or the cache is full).
    Entry* add(std::string_view text, const WordDraft& draft) {
        if (entries_.size() >= kMaxEntries || text.size() > kMaxText ||
            draft.text.data() != text.data() || draft.text.size() != text.size())
            return nullptr;
        Entry e;
        e.firstPiece = pieces_.size();
        bool ok = pieceOf(text, draft.root, e.root) &&
                  pieceOf(text, draft.rootIdentification, e.rootIdentification);
        for (size_t k = 0; ok && k < draft.pieces.size(); ++k) {
            if (draft.pieces[k].size() > 0xFF)
                ok = false;
            e.counts[k] = static_cast<std::uint8_t>(draft.pieces[k].size());
            for (size_t n = 0; ok && n < draft.pieces[k].size(); ++n) {
                Piece piece;
                ok = pieceOf(text, draft.pieces[k][n], piece);
                pieces_.push_back(piece);
            }
        }
        if (!ok) {
            pieces_.resize(e.firstPiece);
            return nullptr;
        }
        e.omittedRoot = draft.omittedRoot;
        e.flags = draft.flags;
        index_.insert(keys_.emplace_back(text)); // numbered as entries_ is
        entries_.push_back(e);
        return &entries_.back();
    }

private:
    static constexpr size_t kMaxEntries = 1 << 14;
    static constexpr size_t kMaxText = 64;
    static std::string_view viewOf(std::string_view text, Piece p) {
        return p.from == kNull ? std::string_view()
                               : std::string_view(text.data() + p.from, p.size);
    }
    static bool pieceOf(std::string_view text, std::string_view view, Piece& p) {
        if (view.data() == nullptr) {
            p = Piece{kNull, 0};
            return view.empty();
        }
        if (view.data() < text.data() || view.data() + view.size() > text.data() + text.size())
            return false;
        p = Piece{static_cast<std::uint32_t>(view.data() - text.data()),
                  static_cast<std::uint32_t>(view.size())};
        return true;
    }
    TextIndex index_;              // the words' texts, numbered as entries_
    std::deque<std::string> keys_; // the texts the index views (never moved)
    std::vector<Entry> entries_;
    std::vector<Piece> pieces_;
};

// Counts the problems reported through it, passing them on to `to` (if any).
struct CountingSink : ProblemSink {
    ProblemSink* to = nullptr;
    int problems = 0;
    explicit CountingSink(ProblemSink* sink) : to(sink) {}
    void problem(Problem id, std::string message) override {
        ++problems;
        if (to)
            to->problem(id, std::move(message));
    }
    void pause(const Pause& p) override {
        if (to)
            to->pause(p);
    }
};

// The lists of the utterance being cut, reused from line to line.
struct UtteranceSegmenter::Scratch {
    LineBuffers<char> bytes;
    LineBuffers<char32_t> codePoints;
    bool codePointsOnly = false;
    template <class C> LineBuffers<C>& buffers() {
        if constexpr (std::is_same_v<C, char>)
            return bytes;
        else
            return codePoints;
    }
    std::string spare;
    WordDraft word;
    SplitCache splits;
    std::vector<Word> words;
    std::vector<size_t> positions; // of each word in the line
    std::vector<Code> codes;
    // The words in mazes, in order, and the maze each lies in (mazes do not
    // nest and words come in line order, so each maze's words are a run).
    std::vector<int> mazeWords;
    std::vector<size_t> mazeOfWord;
    std::vector<Maze> mazes;
    std::vector<std::string_view> parentheticals;
    std::vector<Pause> pauses;
    std::vector<Word> parentheticalWords;
    // Where the pieces found lie in the line.
    std::vector<size_t> codePositions;
    std::vector<size_t> codeCloses;
    std::vector<bool> codeAttached;
    std::vector<Span> mazeSpans;
    std::vector<Span> overlapSpans;
    std::vector<size_t> remarkOpens;
    std::vector<size_t> remarkWordsBefore;

    void clear() {
        codePositions.clear();
        codeCloses.clear();
        codeAttached.clear();
        mazeSpans.clear();
        overlapSpans.clear();
        remarkOpens.clear();
        remarkWordsBefore.clear();
        words.clear();
        positions.clear();
        codes.clear();
        mazeWords.clear();
        mazeOfWord.clear();
        parentheticals.clear();
        pauses.clear();
        parentheticalWords.clear();
    }
};

namespace {

using Scratch = UtteranceSegmenter::Scratch;

// One line being cut; lives for one call of UtteranceSegmenter::segment.
// With a store the pieces are kept; without, the line is only checked. The
// line is worked on as bytes (C = char, an all-ASCII line) or code points.
template <class C> class LineCutter {
public:
    using View = std::basic_string_view<C>;
    static constexpr C kBlank = C(' ');

    // `present`: the Presence kinds before the terminator when the caller has
    // found them (the line ends in its terminator), else -1.
    LineCutter(std::string_view line, Scratch& scratch, Utterance& out, ProblemSink* sink,
               TranscriptStore* store, int present = -1)
        : present_(present < 0 ? 0 : static_cast<std::uint8_t>(present)),
          presentKnown_(present >= 0),
          line_(line.size() == scratch.buffers<C>().buf.size() ? line : std::string_view()),
          stable_(line), buf_(scratch.buffers<C>().buf), b_(buf_.data()),
          scratch_(scratch.buffers<C>().link), s_(scratch), out_(out), sink_(sink), store_(store),
          codePositions_(scratch.codePositions), codeCloses_(scratch.codeCloses),
          codeAttached_(scratch.codeAttached), mazes_(scratch.mazeSpans),
          overlaps_(scratch.overlapSpans), remarkOpens_(scratch.remarkOpens),
          remarkWordsBefore_(scratch.remarkWordsBefore) {}

    void run();

private:
    template <class... A> void report(ProblemRef<A...> p, const A&... args) {
        if (sink_)
            sink_->report(p, args...);
    }
    char32_t at(size_t i) const { return codePoint(b_[i]); }
    void blank(size_t first, size_t last) {
        for (size_t i = first; i <= last && i < end_; ++i)
            b_[i] = kBlank;
    }
    bool findEnd();
    void dropFrom(size_t pos);
    void notePresentCharacters();
    bool anyPresent(std::uint8_t kinds) const { return (present_ & kinds) != 0; }
    // A piece of the line as UTF-8: a view of the line when it is all ASCII,
    // else a copy in the store (nothing when only checking).
    std::string_view textOf(size_t from, size_t size);
    void commentsAndCodes();
    void parentheticals();
    void closeParenthetical(size_t open, size_t close);
    void mazesAndOverlaps();
    void pausesAndCharacters();
    size_t readPause(size_t colon);
    void words();
    void loneWords();
    // `plain`: 1 or 0 when the caller knows whether isPlainWord(text) holds, else -1.
    void addWord(View text, size_t position, bool linked, bool malformed, bool contiguous = true,
                 int plain = -1);
    // The common case, an ASCII word of word characters only: no rule
    // applies, and the word is a view of its line.
    Word& keepPlainWord(size_t position, size_t size) {
        Word& kept = s_.words.emplace_back();
        kept.assignPlain(line_.substr(position, size));
        kept.unintelligible = isUnintelligibleMark(kept.text());
        return kept;
    }
    // Counts a kept word for the utterance's intelligibility (classify).
    void noteSpoken(const Word& w) {
        if (!w.inMaze && !w.omitted) {
            ++spoken_;
            marks_ += w.unintelligible ? 1 : 0;
        }
    }
    bool inCode(size_t pos);
    bool isAttachedCode(size_t open) const;
    void attachCodes();
    void classify();

    std::uint8_t present_ = 0; // the Presence kinds of the characters before the terminator
    bool presentKnown_ = false;
    std::string_view line_;   // the line's bytes when it is all ASCII, else empty
    std::string_view stable_; // the line, alive as long as the store
    std::basic_string<C>& buf_;
    C* b_; // buf_'s characters (blanked in place; the size never changes)
    std::basic_string<C>& scratch_;
    Scratch& s_;
    Utterance& out_;
    ProblemSink* sink_;
    TranscriptStore* store_; // null: the words are checked and not kept
    size_t end_ = 0;         // position of the terminator (or of the end of the text)
    bool missingTerminator_ = false;
    bool textAfterEnd_ = false;
    std::vector<size_t>& codePositions_;
    std::vector<size_t>& codeCloses_;
    std::vector<bool>& codeAttached_; // written right after a word, with no blank between
    size_t lastCodeEnd_ = 0;          // position of the last code's "]"
    size_t codeCursor_ = 0;           // the first code not wholly before the word pass
    std::vector<Span>& mazes_;
    std::vector<Span>& overlaps_;
    size_t mazeCursor_ = 0; // the first maze not wholly before the words reached
    size_t overlapCursor_ = 0;
    std::vector<size_t>& remarkOpens_;       // position of each remark's "(("
    std::vector<size_t>& remarkWordsBefore_; // remark words kept before each remark
    static constexpr size_t kNowhere = static_cast<size_t>(-1);
    size_t firstComment_ = kNowhere;
    size_t firstQuote_ = kNowhere;
    size_t cut_ = kNowhere; // an earlier terminator: the text from it on is dropped
    int spoken_ = 0;        // words kept outside mazes, not omitted
    int marks_ = 0;         // of them, unintelligible marks
};

template <class C> void LineCutter<C>::run() {
    if (buf_.size() < 2 || !(cls::isSpace(at(1)) || cls::isTerminator(at(1)))) {
        report(Problem::NoBlankAfterSpeaker);
        out_.hasTerminator = false;
        return;
    }
    findEnd();
    if (!presentKnown_)
        notePresentCharacters();
    if (anyPresent(kCodeOrComment))
        commentsAndCodes();
    if (missingTerminator_)
        report(Problem::MissingTerminator);
    else if (textAfterEnd_)
        report(Problem::TextAfterTerminator);
    if (anyPresent(kNonAscii | kParenOrQuote))
        parentheticals();
    if (anyPresent(kMazeOrOverlap))
        mazesAndOverlaps();
    if (anyPresent(kNonAscii | kControl | kPauseOrStray))
        pausesAndCharacters();
    words();
    attachCodes();
    out_.hasComment = firstComment_ < cut_;
    out_.hasQuotation = firstQuote_ < cut_;
    classify();
}

// The terminator is the last non-blank character; otherwise the first
// terminator outside a code or comment ends the utterance.
template <class C> bool LineCutter<C>::findEnd() {
    size_t n = buf_.size();
    while (n > 1 && cls::isSpace(at(n - 1)))
        --n;
    if (n > 1 && cls::isTerminator(at(n - 1))) {
        end_ = n - 1;
    } else {
        bool inCode = false, inComment = false;
        end_ = n;
        for (size_t i = 1; i < n; ++i) {
            char32_t c = at(i);
            if (inComment) {
                inComment = c != U'}';
            } else if (inCode) {
                inCode = c != U']';
            } else if (c == U'{') {
                inComment = true;
            } else if (c == U'[') {
                inCode = true;
            } else if (cls::isTerminator(c)) {
                end_ = i;
                break;
            }
        }
        if (end_ == n) {
            missingTerminator_ = true;
            out_.hasTerminator = false;
            return false;
        }
        textAfterEnd_ = true;
    }
    out_.setTerminator(at(end_));
    return true;
}

template <class C> void LineCutter<C>::notePresentCharacters() {
    const C* b = b_;
    const size_t end = end_;
    std::uint8_t present = 0;
    for (size_t i = 1; i < end; ++i) {
        char32_t c = codePoint(b[i]);
        if constexpr (std::is_same_v<C, char>)
            present |= kPresence.kinds[c];
        else
            present |= c < 128 ? kPresence.kinds[c] : std::uint8_t{kNonAscii};
    }
    present_ = present;
}

template <class C> void LineCutter<C>::commentsAndCodes() {
    struct Visitor {
        LineCutter& cut;
        void problem(Problem id, std::string message) {
            if (cut.sink_)
                cut.sink_->problem(id, std::move(message));
        }
        void comment(size_t open, size_t) { cut.firstComment_ = std::min(cut.firstComment_, open); }
        void code(size_t open, size_t close) {
            bool attached = cut.isAttachedCode(open);
            cut.s_.codes.push_back(Code{cut.textOf(open + 1, close - open - 1), -1, -1});
            cut.codePositions_.push_back(open);
            cut.codeCloses_.push_back(close);
            cut.codeAttached_.push_back(attached);
            cut.lastCodeEnd_ = close;
        }
    } visitor{*this};
    scanCommentsAndCodes(buf_, end_, visitor);
}

// "((" ... "))": the inner text is kept as a parenthetical remark and blanked
// (angle brackets excepted). Separators are blanked in the same scan.
template <class C> void LineCutter<C>::parentheticals() {
    size_t open = 0;
    bool isOpen = false;
    int inner = 0;     // single-bracket balance inside the open remark
    int mazeDepth = 0; // single-bracket depth outside remarks
    size_t i = 1;
    while ((i = nextFor<kParenStep>(b_, i, end_)) < end_) {
        char32_t c = at(i);
        bool pairNext = i + 1 < end_ && at(i + 1) == c;
        if (c == U'(' && pairNext) {
            if (isOpen) {
                report(Problem::NestedParenthetical);
                blank(i, i + 1);
            } else {
                isOpen = true;
                open = i;
                inner = 0;
            }
            i += 2;
            continue;
        }
        if (c == U')' && pairNext && !(isOpen && inner > 0)) {
            if (isOpen) {
                closeParenthetical(open, i + 1);
                isOpen = false;
                i += 2;
                continue;
            }
            if (mazeDepth == 0) {
                report(Problem::UnmatchedParenthetical);
                blank(i, i + 1);
                i += 2;
                continue;
            }
        }
        if (c == U'(') {
            isOpen ? ++inner : ++mazeDepth;
        } else if (c == U')') {
            if (!isOpen) {
                mazeDepth = std::max(0, mazeDepth - 1);
            } else if (inner > 0) {
                --inner;
            } else {
                report(Problem::MazeInParenthetical);
                b_[i] = kBlank;
            }
        } else if (cls::isSeparator(c)) {
            if (cls::isQuotationMark(c))
                firstQuote_ = std::min(firstQuote_, i);
            if (!isOpen)
                b_[i] = kBlank;
        }
        ++i;
    }
    if (isOpen) {
        report(Problem::UnmatchedParenthetical);
        blank(open, open + 1);
        for (size_t k = open + 2; k < end_; ++k)
            if (cls::isSeparator(at(k)))
                b_[k] = kBlank;
    }
}

template <class C> std::string_view LineCutter<C>::textOf(size_t from, size_t size) {
    if (!line_.empty())
        return line_.substr(from, size);
    if (!store_)
        return {};
    return store_->keepText(utf8(View(buf_).substr(from, size)));
}

template <class C> void LineCutter<C>::closeParenthetical(size_t open, size_t close) {
    remarkOpens_.push_back(open);
    remarkWordsBefore_.push_back(s_.parentheticalWords.size());
    if (store_) {
        View inner = View(buf_).substr(open + 2, close - open - 3);
        std::string_view text = trim(textOf(open + 2, close - open - 3));
        s_.parentheticals.push_back(text);
        splitRemarkWords(inner, *store_, s_.parentheticalWords);
    } else {
        s_.parentheticals.emplace_back();
    }
    for (size_t k = open; k <= close; ++k)
        if (at(k) != U'<' && at(k) != U'>')
            b_[k] = kBlank;
}

template <class C> void LineCutter<C>::mazesAndOverlaps() {
    size_t maze = 0, overlap = 0;
    bool mazeOpen = false, overlapOpen = false;
    for (size_t i = 1; (i = nextFor<kMazeStep>(b_, i, end_)) < end_; ++i) {
        switch (at(i)) {
        case U'(':
            if (mazeOpen) {
                report(Problem::NestedMaze);
                b_[i] = kBlank;
            } else {
                mazeOpen = true;
                maze = i;
            }
            break;
        case U')':
            if (!mazeOpen) {
                report(Problem::UnmatchedMaze);
            } else {
                mazes_.push_back({maze, i});
                b_[maze] = kBlank;
                mazeOpen = false;
            }
            b_[i] = kBlank;
            break;
        case U'<':
            if (overlapOpen) {
                report(Problem::NestedOverlap);
                b_[i] = kBlank;
            } else {
                overlapOpen = true;
                overlap = i;
            }
            break;
        case U'>':
            if (!overlapOpen) {
                report(Problem::UnmatchedOverlap);
            } else {
                overlaps_.push_back({overlap, i});
                b_[overlap] = kBlank;
                overlapOpen = false;
            }
            b_[i] = kBlank;
            break;
        default:
            break;
        }
    }
    if (mazeOpen) {
        report(Problem::UnmatchedMaze);
        b_[maze] = kBlank;
    }
    if (overlapOpen) {
        report(Problem::UnmatchedOverlap);
        b_[overlap] = kBlank;
    }
    out_.hasOverlap = !overlaps_.empty();
}

// A piece of a linked word has "_" only at its ends, and only its last piece
// carries bound morphemes or clitics.
template <class C>
bool wellFormedLinkPiece(std::basic_string_view<C> piece, bool first, bool last) {
    size_t from = first ? 0 : 1;
    size_t to = last ? piece.size() : piece.size() - 1;
    for (size_t k = from; k < to; ++k) {
        char32_t c = codePoint(piece[k]);
        if (c == U'_' || (!last && (c == U'/' || c == U'+')))
            return false;
    }
    return true;
}

// Characters shown in messages: control characters in caret notation.
std::string shown(char32_t c) {
    if (c < 0x20)
        return std::string("^") + static_cast<char>(c + 64);
    if (c == 0x7F)
        return "^?";
    return toUtf8(c);
}

template <class C> void LineCutter<C>::pausesAndCharacters() {
    for (size_t i = 1; (i = nextFor<kPauseStep>(b_, i, end_)) < end_; ++i) {
        char32_t c = at(i);
        if (c == U':') {
            i = readPause(i);
        } else if (cls::isTerminator(c)) {
            report(Problem::TerminatorInUtterance);
            dropFrom(i);
            return;
        } else if ((cls::isLineIdentifier(c) && c != U'+') || cls::isControl(c)) {
            report(Problem::InvalidCharacter, shown(c));
            b_[i] = kBlank;
        }
    }
}

// A terminator before the utterance's own ends it early: the text from it up
// to the final terminator is dropped, with the codes, remarks, mazes and
// overlaps that begin there. (Brackets were matched before, so a maze or
// remark the early terminator stands in keeps what came before it.)
template <class C> void LineCutter<C>::dropFrom(size_t pos) {
    blank(pos, end_ - 1);
    cut_ = pos;
    while (!codePositions_.empty() && codePositions_.back() > pos) {
        codePositions_.pop_back();
        codeCloses_.pop_back();
        codeAttached_.pop_back();
        s_.codes.pop_back();
    }
    while (!mazes_.empty() && mazes_.back().first > pos)
        mazes_.pop_back();
    while (!overlaps_.empty() && overlaps_.back().first > pos)
        overlaps_.pop_back();
    out_.hasOverlap = !overlaps_.empty();
    while (!remarkOpens_.empty() && remarkOpens_.back() > pos) {
        s_.parentheticalWords.resize(remarkWordsBefore_.back());
        s_.parentheticals.pop_back();
        remarkOpens_.pop_back();
        remarkWordsBefore_.pop_back();
    }
}

// Reads the pause around the ":" at `colon`, blanks it and returns the
// position of its last character.
template <class C> size_t LineCutter<C>::readPause(size_t colon) {
    size_t first = colon;
    while (first > 1 && cls::isDigit(at(first - 1)))
        --first;
    size_t last = colon + 1;
    while (last < end_ && (cls::isDigit(at(last)) || at(last) == U':'))
        ++last;
    Pause pause;
    bool legal = true;
    if (last - first > 1) {
        long long minutes = 0, seconds = 0;
        bool afterColon = false;
        for (size_t k = first; k < last; ++k) {
            if (k == colon) {
                afterColon = true;
            } else if (at(k) == U':') {
                legal = false;
            } else {
                long long& field = afterColon ? seconds : minutes;
                field = std::min<long long>(field * 10 + (at(k) - U'0'), 1000000000);
            }
        }
        long long total = minutes * 60 + seconds;
        legal = legal && last - first < kMaxPauseRun && total >= 1;
        pause.timed = true;
        pause.seconds = static_cast<int>(std::min<long long>(total, 1000000000));
    }
    if (legal) {
        s_.pauses.push_back(pause);
        if (sink_)
            sink_->pause(pause);
    } else {
        report(Problem::IllegalUtterancePause);
    }
    blank(first, last - 1);
    return last - 1;
}

// A line without codes or word links: each word stands alone, cut where the
// general word pass cuts it. When only checking, a plain word has nothing to
// check.
template <class C> void LineCutter<C>::loneWords() {
    const C* b = b_;
    const size_t end = end_;
    // Kept from an ASCII line without mazes or overlaps, a plain word is no
    // more than its record (no code needs its position).
    const bool bare = store_ && !line_.empty() && mazes_.empty() && overlaps_.empty();
    size_t i = 1;
    while (i < end) {
        std::uint8_t kind = wordKind(b[i]);
        if (kind & kSpace) {
            ++i;
            continue;
        }
        const size_t start = i;
        // The character at `end` (the terminator, a blank, or the one past the
        // string) may end a word: only there is the end looked for.
        std::uint8_t seen = 0;
        do {
            seen |= kind;
            kind = wordKind(b[++i]);
        } while (!(kind & kMayEndWord) || (i < end && !(kind & kSpace)));
        const bool plain = !(seen & kNotWordChar) && (seen & kAlnum);
        const View text(b + start, i - start);
        if (plain && bare)
            noteSpoken(keepPlainWord(start, text.size()));
        else if (store_)
            addWord(text, start, false, false, true, plain ? 1 : 0);
        else if (!plain)
            checkWord(text, false, s_.word, s_.spare, sink_, true);
    }
}

// Word links, then each word.
template <class C> void LineCutter<C>::words() {
    if (codeCloses_.empty() && !anyPresent(kLink)) {
        loneWords();
        return;
    }
    View text(buf_);
    scratch_.clear();
    size_t linkPosition = 0;
    bool linkOpen = false;
    bool linkMalformed = false;
    std::string linkShown; // the pieces as written, for messages
    auto closeLink = [&](bool complete) {
        if (!complete)
            report(Problem::UnmatchedWordLink, linkShown);
        if (!complete && !scratch_.empty() && scratch_.back() == U'_')
            scratch_.pop_back();
        addWord(View(scratch_), linkPosition, complete, linkMalformed);
        scratch_.clear();
        linkShown.clear();
        linkOpen = false;
    };
    // A blank inside a code does not end a word: the code was blanked, and a
    // word with a code written inside it ("go[EW:x]ing") stays one word.
    const bool codes = !codeCloses_.empty();
    size_t i = 1;
    while (i < end_) {
        if (at(i) <= U' ' && cls::isSpace(at(i)) && !(codes && inCode(i))) {
            ++i;
            continue;
        }
        size_t start = i;
        bool hasCode = false;
        // The plain-word test of the piece, made on the way.
        std::uint8_t all = kWordChar, any = 0;
        while (i < end_) {
            const std::uint8_t kind = wordKind(b_[i]);
            if (kind & kSpace) {
                if (!codes || !inCode(i))
                    break;
                hasCode = true;
            }
            all &= kind;
            any |= kind;
            ++i;
        }
        View piece = text.substr(start, i - start);
        if (hasCode) {
            std::basic_string<C>& joined = s_.buffers<C>().joined;
            joined.clear();
            for (C c : piece)
                if (!cls::isSpace(codePoint(c)))
                    joined.push_back(c);
            if (joined.empty())
                continue; // codes only
            if (cls::isSpace(codePoint(piece.front())))
                report(Problem::MissingRoot); // the word begins with "["
            piece = joined;
        }
        bool opens = piece.size() > 1 && piece.back() == U'_';
        bool continues = piece.size() > 1 && piece.front() == U'_';
        if (piece.size() == 1 && piece[0] == C('_')) {
            report(Problem::LoneWordLink);
            continue;
        }
        bool malformed = anyPresent(kLink) && !wellFormedLinkPiece(piece, !continues, !opens);
        if (continues && linkOpen) {
            linkMalformed = linkMalformed || malformed;
            scratch_.append(piece.substr(1));
            linkShown += " " + utf8(piece);
            if (!opens)
                closeLink(true);
            continue;
        }
        if (linkOpen)
            closeLink(false);
        if (continues) {
            if (sink_)
                report(Problem::UnmatchedWordLink, utf8(piece));
            piece.remove_prefix(1);
            ++start;
        }
        if (opens) {
            linkOpen = true;
            linkMalformed = malformed;
            linkPosition = start;
            scratch_.assign(piece);
            linkShown = utf8(piece);
            continue;
        }
        const int plain = hasCode || continues ? -1 : (all & kWordChar) && (any & kAlnum) ? 1 : 0;
        addWord(piece, start, false, malformed, !hasCode, plain);
    }
    if (linkOpen)
        closeLink(false);
}

// True when `pos` lies inside a code; asked with positions that never decrease.
template <class C> bool LineCutter<C>::inCode(size_t pos) {
    while (codeCursor_ < codeCloses_.size() && codeCloses_[codeCursor_] < pos)
        ++codeCursor_;
    return codeCursor_ < codeCloses_.size() && codePositions_[codeCursor_] <= pos;
}

template <class C>
void LineCutter<C>::addWord(View text, size_t position, bool linked, bool malformed,
                            bool contiguous, int plain) {
    if (malformed && sink_)
        report(Problem::MalformedLinkedWord, utf8(text));
    linked = linked || malformed;
    WordDraft& word = s_.word;
    if (!store_) {
        if (!linked) {
            if (plain < 0)
                plain = isPlainWord(text) ? 1 : 0;
            if (plain == 1)
                return;
        }
        checkWord(text, linked, word, s_.spare, sink_, plain == 0);
        return;
    }
    // The record is made in its place in the list: a record built aside and
    // copied in is put together again flag by flag.
    Word* kept = nullptr;
    if (plain < 0 && !linked && contiguous && !line_.empty())
        plain = isPlainWord(text) ? 1 : 0;
    if (!linked && contiguous && !line_.empty() && plain == 1) {
        kept = &keepPlainWord(position, text.size());
    } else {
        std::string_view bytes = linked || !contiguous || line_.empty()
                                     ? std::string_view()
                                     : line_.substr(position, text.size());
        // A word of the line's bytes as they stand may have been split before.
        bool cached = false;
        if constexpr (std::is_same_v<C, char>)
            cached = !bytes.empty() && bytes == text;
        SplitCache::Entry* known = cached ? s_.splits.find(bytes) : nullptr;
        if (const Word* again = known ? SplitCache::keptIn(*known, store_->serial()) : nullptr) {
            s_.words.push_back(*again);
        } else {
            if (known) {
                s_.splits.fill(*known, bytes, word);
            } else {
                word.clear();
                CountingSink counting(sink_);
                if (!splitWord(text, linked, word, cached ? &counting : sink_, bytes, s_.spare,
                               plain == 0))
                    return;
                word.flags.linked = linked;
                if (cached && counting.problems == 0)
                    known = s_.splits.add(bytes, word);
            }
            s_.words.push_back(store_->keepWord(word, stable_));
            if (known)
                SplitCache::noteKept(*known, s_.words.back(), store_->serial());
        }
        kept = &s_.words.back();
    }
    // Words come in line order and mazes and overlaps do not nest: one cursor
    // each finds the span a word may lie in.
    int index = static_cast<int>(s_.words.size()) - 1;
    while (mazeCursor_ < mazes_.size() && mazes_[mazeCursor_].second < position)
        ++mazeCursor_;
    if (mazeCursor_ < mazes_.size() && mazes_[mazeCursor_].first <= position) {
        kept->inMaze = true;
        s_.mazeWords.push_back(index);
        s_.mazeOfWord.push_back(mazeCursor_);
    }
    while (overlapCursor_ < overlaps_.size() && overlaps_[overlapCursor_].second < position)
        ++overlapCursor_;
    kept->inOverlap =
        overlapCursor_ < overlaps_.size() && overlaps_[overlapCursor_].first <= position;
    s_.positions.push_back(position);
    noteSpoken(*kept);
}

// A code touches the text before it when no blank stands between them; a code
// written right after another attached code ("went[EW:x][EO:y]") is attached too.
template <class C> bool LineCutter<C>::isAttachedCode(size_t open) const {
    if (!codePositions_.empty() && lastCodeEnd_ + 1 == open)
        return codeAttached_.back();
    return open > 1 && !cls::isSpace(at(open - 1));
}

// A code followed by more words belongs to the word before it. After the last
// word, a code written right after that word ("falled[EO:fell].") is still the
// word's; one set apart by a blank ("... today [EU].") belongs to the utterance.
template <class C> void LineCutter<C>::attachCodes() {
    const std::vector<size_t>& positions = s_.positions;
    size_t w = 0;
    for (size_t c = 0; c < s_.codes.size(); ++c) {
        size_t pos = codePositions_[c];
        while (w < positions.size() && positions[w] < pos)
            ++w;
        int before = static_cast<int>(w) - 1;
        s_.codes[c].precedingWord = before;
        bool atEnd = w == positions.size();
        bool onWord = before >= 0 && (!atEnd || codeAttached_[c]);
        s_.codes[c].word = onWord ? before : -1;
    }
}

// Unintelligible when every main-body word is an unintelligible mark, partly
// when some are; nonverbal when no word is spoken outside mazes but a comment
// is there.
template <class C> void LineCutter<C>::classify() {
    if (marks_ > 0)
        out_.intelligibility =
            marks_ == spoken_ ? Intelligibility::Unintelligible : Intelligibility::Partly;
    out_.nonverbal = spoken_ == 0 && out_.hasComment;
}

} // namespace

UtteranceSegmenter::UtteranceSegmenter() : scratch_(std::make_unique<Scratch>()) {}

UtteranceSegmenter::~UtteranceSegmenter() = default;

void UtteranceSegmenter::setCodePointsOnly(bool on) {
    scratch_->codePointsOnly = on;
}

namespace {

void startUtterance(Utterance& out, int lineNumber, int speakerGroup, char32_t speakerId) {
    out = Utterance();
    out.speakerGroup = static_cast<std::int8_t>(speakerGroup);
    out.line = lineNumber;
    out.speakerId = speakerId;
}

bool isAscii(std::string_view line) {
    std::uint64_t high = 0;
    size_t i = 0;
    for (; i + 8 <= line.size(); i += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, line.data() + i, 8);
        high |= eight;
    }
    for (; i < line.size(); ++i)
        high |= static_cast<unsigned char>(line[i]);
    return (high & 0x8080808080808080u) == 0;
}

// Cuts an all-ASCII line by the general rules, from its bytes; `present` as
// for LineCutter.
void cutAsciiLine(std::string_view line, int lineNumber, int speakerGroup, Scratch& s,
                  Utterance& out, ProblemSink* sink, TranscriptStore* store, int present) {
    s.bytes.buf.assign(line);
    startUtterance(out, lineNumber, speakerGroup, line.empty() ? 0 : codePoint(line[0]));
    LineCutter<char>(line, s, out, sink, store, present).run();
}

// Cuts a line by the general rules: from its bytes when it is all ASCII, else
// from its code points.
void cutLine(std::string_view line, int lineNumber, int speakerGroup, Scratch& s, Utterance& out,
             ProblemSink* sink, TranscriptStore* store) {
    if (!s.codePointsOnly && isAscii(line)) {
        cutAsciiLine(line, lineNumber, speakerGroup, s, out, sink, store, -1);
    } else {
        decodeCodePoints(line, s.codePoints.buf);
        const std::u32string& buf = s.codePoints.buf;
        startUtterance(out, lineNumber, speakerGroup, buf.empty() ? 0 : buf[0]);
        LineCutter<char32_t>(line, s, out, sink, store).run();
    }
}

// A line of plain words only: an ASCII identifier, a blank, words of ASCII
// letters, digits and apostrophes that each hold a letter or digit, blanks
// between them, and a terminator at the end (blanks after it allowed). No
// rule can find fault with such a line and its words need no splitting, so
// it is cut straight from its bytes (scanLine finds such lines).
// What a byte of a plain line may be: 0 none of these, 1 a blank, 2 a letter
// or digit, 3 an apostrophe.
struct PlainBytes {
    std::uint8_t kind[256] = {};
    constexpr PlainBytes() {
        kind[static_cast<unsigned char>(' ')] = kind[static_cast<unsigned char>('\t')] = 1;
        for (int c = '0'; c <= '9'; ++c)
            kind[c] = 2;
        for (int c = 'a'; c <= 'z'; ++c)
            kind[c] = kind[c - 'a' + 'A'] = 2;
        kind[static_cast<unsigned char>('\'')] = 3;
    }
};
constexpr PlainBytes kPlainBytes;

// True when line[2, end) holds plain words only.
bool plainWords(std::string_view line, size_t end) {
    // A word without a letter or digit: an apostrophe that follows a blank
    // and is not followed by a letter or digit before the next blank.
    bool inWord = false, alnum = false;
    for (size_t i = 2; i < end; ++i) {
        switch (kPlainBytes.kind[static_cast<unsigned char>(line[i])]) {
        case 0:
            return false;
        case 1:
            if (inWord && !alnum)
                return false;
            inWord = false;
            break;
        case 2:
            inWord = alnum = true;
            break;
        default:
            if (!inWord)
                alnum = false;
            inWord = true;
            break;
        }
    }
    return !(inWord && !alnum);
}

// The kinds of each byte for the one pass of lineScan: the Presence kinds
// (kNonAscii for every byte from 0x80), and whether the byte may stand in a
// plain line.
enum LineByte : std::uint16_t { kNotPlain = 0x100, kApostrophe = 0x200 };
struct LineBytes {
    std::uint16_t kind[256] = {};
    constexpr LineBytes() {
        for (int c = 0; c < 256; ++c) {
            kind[c] = c < 128 ? kPresence.kinds[c] : std::uint8_t{kNonAscii};
            if (kPlainBytes.kind[c] == 0)
                kind[c] |= kNotPlain;
            else if (kPlainBytes.kind[c] == 3)
                kind[c] |= kApostrophe;
        }
    }
};
constexpr LineBytes kLineBytes;

// One pass over a line: whether it is a plain line, else whether it can be
// cut from its bytes with its terminator last, and the kinds of the
// characters before the terminator.
struct LineScan {
    size_t plainEnd = 0; // the terminator's position for a plain line, else 0
    int present = -1;    // for an all-ASCII line ending in a terminator, else -1
};

LineScan scanLine(std::string_view line) {
    LineScan scan;
    // The terminator is the last non-blank character (as LineCutter::findEnd
    // finds it); plain lines have only blanks and tabs after it.
    size_t n = line.size();
    bool blanksAfter = true;
    while (n > 1 && cls::isSpace(static_cast<unsigned char>(line[n - 1]))) {
        blanksAfter = blanksAfter && (line[n - 1] == ' ' || line[n - 1] == '\t');
        --n;
    }
    if (n < 2 || static_cast<unsigned char>(line[0]) >= 0x80 ||
        !cls::isTerminator(static_cast<unsigned char>(line[n - 1])))
        return scan;
    const size_t end = n - 1;
    auto kindAt = [&](size_t i) { return kLineBytes.kind[static_cast<unsigned char>(line[i])]; };
    std::uint16_t k0 = 0, k1 = 0, k2 = 0, k3 = 0;
    size_t i = 1;
    for (; i + 4 <= end; i += 4) {
        k0 |= kindAt(i);
        k1 |= kindAt(i + 1);
        k2 |= kindAt(i + 2);
        k3 |= kindAt(i + 3);
    }
    for (; i < end; ++i)
        k0 |= kindAt(i);
    const std::uint16_t kinds = k0 | k1 | k2 | k3;
    if (kinds & kNonAscii)
        return scan;
    scan.present = kinds & 0x7F;
    if (blanksAfter && end >= 2 && kPlainBytes.kind[static_cast<unsigned char>(line[1])] == 1 &&
        !(kinds & kNotPlain) && (!(kinds & kApostrophe) || plainWords(line, end)))
        scan.plainEnd = end;
    return scan;
}

void cutPlainLine(std::string_view line, size_t end, std::vector<Word>& words, Utterance& out) {
    int marks = 0;
    size_t i = 1;
    while (i < end) {
        if (line[i] == ' ' || line[i] == '\t') {
            ++i;
            continue;
        }
        const size_t start = i;
        while (i < end && line[i] != ' ' && line[i] != '\t')
            ++i;
        words.push_back(Word());
        Word& w = words.back();
        w.assignPlain(line.substr(start, i - start));
        const bool mark = isUnintelligibleMark(w.text());
        w.unintelligible = mark;
        marks += mark ? 1 : 0;
    }
    out.setTerminator(static_cast<unsigned char>(line[end]));
    if (marks > 0)
        out.intelligibility = marks == static_cast<int>(words.size())
                                  ? Intelligibility::Unintelligible
                                  : Intelligibility::Partly;
}

} // namespace

void UtteranceSegmenter::segment(std::string_view line, int lineNumber, int speakerGroup,
                                 TranscriptStore& store, Utterance& out, ProblemSink* sink) {
    Scratch& s = *scratch_;
    s.clear();
    const LineScan scan = s.codePointsOnly ? LineScan() : scanLine(line);
    if (size_t end = scan.plainEnd) {
        out = Utterance();
        out.speakerGroup = static_cast<std::int8_t>(speakerGroup);
        out.line = lineNumber;
        out.speakerId = static_cast<unsigned char>(line[0]);
        cutPlainLine(line, end, s.words, out);
        out.words = store.keep(s.words);
        return;
    }
    if (scan.present >= 0)
        cutAsciiLine(line, lineNumber, speakerGroup, s, out, sink, &store, scan.present);
    else
        cutLine(line, lineNumber, speakerGroup, s, out, sink, &store);
    out.words = store.keep(s.words);
    s.mazes.clear();
    const size_t inMazes = s.mazeWords.size();
    for (size_t k = 0, w = 0; k < s.mazeSpans.size(); ++k) {
        const size_t from = w;
        while (w < inMazes && s.mazeOfWord[w] == k)
            ++w;
        s.mazes.push_back(
            Maze{store.keep(std::span<const int>(s.mazeWords.data() + from, w - from))});
    }
    out.extras =
        store.keepExtras(s.codes, s.mazes, s.parentheticals, s.parentheticalWords, s.pauses);
}

void UtteranceSegmenter::check(std::string_view line, int lineNumber, int speakerGroup,
                               ProblemSink& sink) {
    Scratch& s = *scratch_;
    const LineScan scan = s.codePointsOnly ? LineScan() : scanLine(line);
    if (scan.plainEnd != 0)
        return; // nothing in it can be faulty
    s.clear();
    Utterance out;
    if (scan.present >= 0)
        cutAsciiLine(line, lineNumber, speakerGroup, s, out, &sink, nullptr, scan.present);
    else
        cutLine(line, lineNumber, speakerGroup, s, out, &sink, nullptr);
}

Utterance segmentUtterance(std::string_view line, int lineNumber, int speakerGroup,
                           TranscriptStore& store, ProblemSink* sink) {
    UtteranceSegmenter segmenter;
    Utterance u;
    segmenter.segment(store.keepText(line), lineNumber, speakerGroup, store, u, sink);
    return u;
}

} // namespace tavi
