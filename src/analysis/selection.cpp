// Response types, the analysis-set test and the transcript cut.
#include "analysis/selection.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "analysis/code_lists.h"
#include "analysis/word_forms.h"
#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

// The main-body words of an utterance, walked in order without a copy.
class MainBodyWalk {
public:
    explicit MainBodyWalk(const Utterance& u) : at_(u.words.data()), end_(at_ + u.words.size()) {
        skipOthers();
    }
    bool done() const { return at_ == end_; }
    const Word& word() const { return *at_; }
    void next() {
        ++at_;
        skipOthers();
    }

private:
    void skipOthers() {
        while (at_ != end_ && !at_->isMainBodyWord())
            ++at_;
    }
    const Word* at_;
    const Word* end_;
};

// A word whose surface form is its text in lower case: no parts, not a
// part word, no bound prefix mark.
bool formIsLowerText(const Word& w) {
    if (w.parts() || w.incomplete)
        return false;
    return w.text().find('\\') == std::string_view::npos;
}

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

// One word compared with others by surface form (as surfaceForm gives it).
// Most words are told apart by their first letter, which the root shows; the
// word's own form is found only when that does not decide, and once.
class SameForm {
public:
    explicit SameForm(const Word& w) : word_(w), first_(firstLetter(w)) {
        if (first_ == kUnknown)
            first_ = form().empty() ? kNoLetter : lowerAscii(form()[0]);
    }
    SameForm(const SameForm&) = delete; // the form may lie in built_
    SameForm& operator=(const SameForm&) = delete;

    bool operator()(const Word& other) {
        const int first = firstLetter(other);
        if (first != kUnknown && first != first_)
            return sameSpelling(other);
        return surfaceIs(other, form()) || sameSpelling(other);
    }
    // Moves `words` on to its first word of this form; false when none is left.
    bool findIn(MainBodyWalk& words) {
        for (; !words.done(); words.next())
            if ((*this)(words.word()))
                return true;
        return false;
    }

private:
    static constexpr int kUnknown = 256, kNoLetter = 257; // no char has these values

    // A root of two letters or more begins the form with its first letter,
    // unless that is a "\\".
    static int firstLetter(const Word& w) {
        std::string_view r = w.root();
        return r.size() < 2 || r[0] == '\\' ? kUnknown : lowerAscii(r[0]);
    }
    // One spelling: one form.
    bool sameSpelling(const Word& other) const {
        std::string_view a = word_.text(), b = other.text();
        // Most texts of one size differ in their first byte: no call then.
        return word_.linked == other.linked && a.size() == b.size() &&
               (a.empty() || (a[0] == b[0] && a == b));
    }
    // A word whose form is its lower-case text needs none built.
    std::string_view form() {
        if (!formFound_) {
            form_ = formIsLowerText(word_) ? word_.text()
                                           : built_.emplace(InlineForm::surface(word_)).view();
            formFound_ = true;
        }
        return form_;
    }

    const Word& word_;
    int first_; // the form's first letter
    bool formFound_ = false;
    std::string_view form_;
    std::optional<InlineForm> built_;
};

// `mineCount` and `theirsCount`: the main-body words of `u` and of `prev`.
// An exact imitation has the same surface forms in the same order; a reduced
// one fewer of them, some left out, order kept.
void classifyImitation(const Utterance& u, int mineCount, const Utterance& prev, int theirsCount,
                       ResponseType& r) {
    if (mineCount == 0)
        return;
    if (mineCount > theirsCount) {
        // Longer than the utterance before: neither an exact nor a reduced imitation.
        r.exactImitation = r.reducedImitation = r.imitation = false;
        return;
    }
    MainBodyWalk mine(u), theirs(prev);
    if (mineCount == theirsCount) {
        bool same = true;
        for (; !mine.done() && same; mine.next(), theirs.next())
            same = SameForm(mine.word())(theirs.word());
        r.exactImitation = same;
        r.reducedImitation = false;
    } else {
        r.exactImitation = false;
        bool subset = true;
        for (; !mine.done(); mine.next()) {
            if (!SameForm(mine.word()).findIn(theirs)) {
                subset = false;
                break;
            }
            theirs.next();
        }
        r.reducedImitation = subset;
    }
    r.imitation = r.exactImitation || r.reducedImitation;
}

bool firstWordIsYesNo(const Utterance& u, const YesNoTest& yesNo) {
    for (const Word& w : u.words)
        if (w.isMainBodyWord())
            return yesNo(InlineForm::surface(w).view()) || yesNo(InlineForm::root(w).view());
    return false;
}

// The analysis set with its code lists parsed once.
class SetTest {
public:
    explicit SetTest(const AnalysisSet& set)
        : set_(set), exclude_(set.excludeCodes), include_(set.includeCodes) {}

    bool passes(const Utterance& u, const ResponseType& r) const {
        if (set_.excludeIncomplete &&
            (u.terminator == Terminator::Abandoned || u.terminator == Terminator::Interrupted))
            return false;
        if (set_.excludeUnintelligible && u.intelligibility != Intelligibility::Intelligible)
            return false;
        if (set_.excludeNonverbal && u.nonverbal)
            return false;
        if ((set_.excludeImitations && r.imitation) || (set_.excludeYesNoResponses && r.yesNo) ||
            (set_.excludeOneWord && r.oneWord) || (set_.excludeQuestionResponses && r.question) ||
            (set_.excludePromptResponses && r.prompt))
            return false;
        if (carries(u, exclude_))
            return false;
        return !set_.includeOnly || carries(u, include_);
    }

private:
    static bool carries(const Utterance& u, const CodeMatcher& m) {
        if (m.empty())
            return false;
        for (const Code& c : u.codes())
            if (m.matches(c.text))
                return true;
        return false;
    }
    const AnalysisSet& set_;
    CodeMatcher exclude_, include_;
};

bool entryCarriesCode(const SegmentedTranscript& t, const Entry& e, const std::string& item) {
    if (item.empty())
        return false;
    if (e.kind == EntryKind::Utterance) {
        for (const Code& c : t.utterances[e.utterance].codes())
            if (codeMatchesItem(c.text, item))
                return true;
        return false;
    }
    for (std::string_view c : e.codes)
        if (codeMatchesItem(c, item))
            return true;
    return false;
}

std::string cutCodeItem(const std::string& code) {
    std::vector<std::string> items = parseCodeItems(code);
    return items.empty() ? std::string() : items.front();
}

// Walks the entries once for one cut; counts are kept per speaker and base.
class CutWalker {
public:
    CutWalker(const SegmentedTranscript& t, const TranscriptCut& cut,
              const std::vector<bool>& inSet)
        : t_(t), cut_(cut), inSet_(inSet), startCode_(cutCodeItem(cut.startCode)),
          endCode_(cutCodeItem(cut.endCode)) {
        for (size_t i = 0; i < t.entries.size(); ++i)
            if (t.entries[i].kind == EntryKind::End) {
                limit_ = i;
                sawEnd_ = true;
                break;
            }
        if (!sawEnd_)
            limit_ = t.entries.size();
    }

    Selection run(Selection s) {
        if (cut_.endType == TranscriptCut::ToElapsedTime && !hasTiming()) {
            s.outcome = CutOutcome::NoTiming;
            return s;
        }
        std::optional<size_t> start = findStart();
        if (!start) {
            s.outcome = endMarkerExists() ? CutOutcome::BeginNotFound : CutOutcome::NoMarkers;
            return s;
        }
        s.firstEntry = *start;
        bool found = false;
        s.endEntry = findEnd(*start, found);
        if (!found && cut_.endType != TranscriptCut::ToEnd)
            s.outcome = sawEnd_ ? CutOutcome::EndBeforeFinal : CutOutcome::FinalNotFound;
        return s;
    }

private:
    bool counts(const Utterance& u, int speaker, int base) const {
        if (speaker != 2 && u.speakerGroup != speaker)
            return false;
        if (speaker == 2 && u.speakerGroup > 1)
            return false;
        return base == 1 || inSet_[static_cast<size_t>(&u - t_.utterances.data())];
    }

    bool hasTiming() const {
        for (size_t i = 0; i < limit_; ++i)
            if (t_.entries[i].kind == EntryKind::Timing && t_.entries[i].seconds >= 0)
                return true;
        return false;
    }

    const Utterance* utteranceAt(size_t i) const {
        const Entry& e = t_.entries[i];
        return e.kind == EntryKind::Utterance ? &t_.utterances[e.utterance] : nullptr;
    }

    std::optional<size_t> findStart() const {
        int number = 0;
        for (size_t i = 0; i < limit_; ++i) {
            const Entry& e = t_.entries[i];
            switch (cut_.startType) {
            case TranscriptCut::FromBeginning:
                return 0;
            case TranscriptCut::FromUtterance:
                if (const Utterance* u = utteranceAt(i);
                    u && counts(*u, cut_.startSpeaker, cut_.startBase) &&
                    ++number == cut_.startUtterance)
                    return i;
                break;
            case TranscriptCut::FromTiming:
                if (e.kind == EntryKind::Timing && e.seconds == cut_.startTime)
                    return i + 1;
                break;
            case TranscriptCut::FromCode:
                if (entryCarriesCode(t_, e, startCode_))
                    return i + 1;
                break;
            }
        }
        return std::nullopt;
    }

    // Whether the end point occurs anywhere before the transcript's end.
    bool endMarkerExists() const {
        bool found = false;
        findEndFrom(0, found);
        return found;
    }

    size_t findEnd(size_t start, bool& found) const { return findEndFrom(start, found); }

    size_t findEndFrom(size_t start, bool& found) const {
        found = false;
        if (cut_.endType == TranscriptCut::ToEnd) {
            found = true;
            return limit_;
        }
        int number = 0; // absolute utterance number, counted from the transcript's start
        for (size_t i = 0; i < start; ++i)
            if (const Utterance* u = utteranceAt(i); u && counts(*u, cut_.endSpeaker, cut_.endBase))
                ++number;
        long running = 0;
        std::optional<int> reference = timingBefore(start);
        for (size_t i = start; i < limit_; ++i) {
            const Entry& e = t_.entries[i];
            const Utterance* u = utteranceAt(i);
            switch (cut_.endType) {
            case TranscriptCut::ToUtterance:
                if (u && counts(*u, cut_.endSpeaker, cut_.endBase) && ++number == cut_.endValue)
                    return found = true, i + 1;
                break;
            case TranscriptCut::ToTiming:
                if (e.kind == EntryKind::Timing && e.seconds == cut_.endTime)
                    return found = true, i;
                break;
            case TranscriptCut::ToCode:
                if (entryCarriesCode(t_, e, endCode_))
                    return found = true, i;
                break;
            case TranscriptCut::ToWordCount:
                if (u && counts(*u, cut_.endSpeaker, cut_.endBase)) {
                    running += wordsFor(*u);
                    if (running >= cut_.endValue)
                        return found = true, i + 1;
                }
                break;
            case TranscriptCut::ToUtteranceCount:
                if (u && counts(*u, cut_.endSpeaker, cut_.endBase) && ++running >= cut_.endValue)
                    return found = true, i + 1;
                break;
            case TranscriptCut::ToElapsedTime:
                if (e.kind == EntryKind::Timing && e.seconds >= 0) {
                    if (!reference)
                        reference = 0;
                    if (e.seconds - *reference >= cut_.endTime)
                        return found = true, i;
                }
                break;
            }
        }
        return limit_;
    }

    // The timing value in force at `start`: the last timing line before the
    // first utterance from `start` on.
    std::optional<int> timingBefore(size_t start) const {
        size_t firstUtt = start;
        while (firstUtt < limit_ && t_.entries[firstUtt].kind != EntryKind::Utterance)
            ++firstUtt;
        for (size_t i = firstUtt; i-- > 0;)
            if (t_.entries[i].kind == EntryKind::Timing && t_.entries[i].seconds >= 0)
                return t_.entries[i].seconds;
        return std::nullopt;
    }

    int wordsFor(const Utterance& u) const {
        int n = 0;
        for (const Word& w : u.words)
            n += (w.isMainBodyWord() || (cut_.wordArea != 0 && isMazeWord(w))) ? 1 : 0;
        return n;
    }

    const SegmentedTranscript& t_;
    const TranscriptCut& cut_;
    const std::vector<bool>& inSet_;
    std::string startCode_, endCode_;
    size_t limit_ = 0;
    bool sawEnd_ = false;
};

// Elapsed time inside the cut: the last timing line up to the cut's end, less
// the timing line in force before its first utterance (none: 0), which is
// put in `start`.
std::optional<int> elapsedInCut(const SegmentedTranscript& t, size_t first, size_t end,
                                int& start) {
    size_t firstUtt = first;
    while (firstUtt < end && t.entries[firstUtt].kind != EntryKind::Utterance)
        ++firstUtt;
    if (firstUtt >= end)
        return std::nullopt;
    auto timingAt = [&](size_t i) {
        return t.entries[i].kind == EntryKind::Timing && t.entries[i].seconds >= 0;
    };
    int reference = 0;
    for (size_t i = firstUtt; i-- > 0;)
        if (timingAt(i)) {
            reference = t.entries[i].seconds;
            break;
        }
    start = reference;
    size_t last = std::min(end + 1, t.entries.size());
    for (size_t i = last; i-- > firstUtt;)
        if (timingAt(i))
            return std::max(0, t.entries[i].seconds - reference);
    return std::nullopt;
}

} // namespace

std::vector<ResponseType> classifyResponses(const SegmentedTranscript& t, const YesNoTest& yesNo) {
    std::vector<ResponseType> result(t.utterances.size());
    int wordsBefore = 0; // main-body words of the utterance before
    for (size_t i = 0; i < t.utterances.size(); ++i) {
        const Utterance& u = t.utterances[i];
        const int words = mainBodyWordCount(u);
        const int prevWords = std::exchange(wordsBefore, words);
        if (u.speakerGroup > 1)
            continue;
        ResponseType& r = result[i];
        r.oneWord = words == 1;
        if (i == 0 || t.utterances[i - 1].speakerGroup != 1 - u.speakerGroup)
            continue;
        const Utterance& prev = t.utterances[i - 1];
        r.question = prev.terminator == Terminator::Question;
        r.prompt = prev.terminator == Terminator::Prompt;
        r.yesNo = r.question && yesNo && firstWordIsYesNo(u, yesNo);
        classifyImitation(u, words, prev, prevWords, r);
    }
    return result;
}

bool inAnalysisSet(const Utterance& u, const ResponseType& r, const AnalysisSet& set) {
    return SetTest(set).passes(u, r);
}

std::string_view cutOutcomeMessage(CutOutcome outcome) {
    switch (outcome) {
    case CutOutcome::NoMarkers:
        return "No cut markers found - no utterances included";
    case CutOutcome::BeginNotFound:
        return "Beginning cut marker not found - no utterances included";
    case CutOutcome::NoTiming:
        return "Timing markers not found - no utterances included";
    case CutOutcome::EndBeforeFinal:
        return "@end encountered before final cut marker";
    case CutOutcome::FinalNotFound:
        return "Final cut marker not found - end of transcript used";
    case CutOutcome::Complete:
        break;
    }
    return {};
}

Selection selectUtterances(const SegmentedTranscript& t, const AnalysisSet& set,
                           const TranscriptCut& cut, const YesNoTest& yesNo) {
    Selection s;
    s.responses = classifyResponses(t, yesNo);
    SetTest test(set);
    s.analysisSetFlags.resize(t.utterances.size());
    for (size_t i = 0; i < t.utterances.size(); ++i)
        s.analysisSetFlags[i] =
            t.utterances[i].speakerGroup <= 1 && test.passes(t.utterances[i], s.responses[i]);

    const std::vector<bool> flags = s.analysisSetFlags;
    s = CutWalker(t, cut, flags).run(std::move(s));
    for (size_t i = s.firstEntry; i < s.endEntry; ++i) {
        const Entry& e = t.entries[i];
        if (e.kind != EntryKind::Utterance)
            continue;
        s.utterances.push_back(e.utterance);
        const Utterance& u = t.utterances[e.utterance];
        s.words += u.words.size();
        if (u.extras) {
            s.remarkWords += u.parentheticalWords().size();
            s.withCodes += u.codes().empty() ? 0 : 1;
        }
        int group = u.speakerGroup;
        if (group > 1)
            continue;
        s.speakers[group].total.push_back(e.utterance);
        if (s.analysisSetFlags[e.utterance])
            s.speakers[group].analysisSet.push_back(e.utterance);
    }
    s.elapsedSeconds = elapsedInCut(t, s.firstEntry, s.endEntry, s.elapsedStart);
    return s;
}

} // namespace tavi
