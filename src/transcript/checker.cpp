// The transcript checker: classifies each line by its first character and
// runs that kind's checks, gathering the speaker table, timing list and pause
// tallies on the way; the header checks run at the end.
#include "transcript/checker.h"

#include "base/text.h"
#include "transcript/case_folding.h"
#include "transcript/char_class.h"
#include "transcript/comments_and_codes.h"
#include "transcript/err_list.h"
#include "transcript/header_checks.h"
#include "transcript/header_line.h"
#include "transcript/line_kind.h"
#include "transcript/segmenter.h"
#include "transcript/speaker_line.h"
#include "transcript/time_value.h"

namespace tavi {

int CheckResult::errorCount() const {
    int n = 0;
    for (const err& e : problems)
        n += e.isError() ? 1 : 0;
    return n;
}

int CheckResult::warningCount() const {
    return static_cast<int>(problems.size()) - errorCount();
}

namespace {

// Characters shown in messages: control characters in caret notation.
std::string shown(char32_t c) {
    if (c < 0x20)
        return std::string("^") + static_cast<char>(c + 64);
    if (c == 0x7F)
        return "^?";
    return toUtf8(c);
}

char32_t firstChar(std::string_view text) {
    if (text.empty())
        return 0;
    if (static_cast<unsigned char>(text[0]) < 0x80)
        return static_cast<unsigned char>(text[0]);
    size_t pos = 0;
    return nextCodePoint(text, pos);
}

} // namespace

struct Checker::State final : ProblemSink {
    CheckOptions options;
    ErrList list;
    CheckResult result;
    UtteranceSegmenter segmenter;
    int line = 0;
    bool tallyLine = false; // within-utterance pauses of this line are tallied
    int mainSpeaker = -1;   // 0 or 1 for an utterance of a main speaker
    bool speakerLineSeen = false;
    bool codeOnSpeakerLine = false;
    bool sectionOpen = false;
    bool unmatchedEndUsed = false;
    bool seenUtteranceOrPause = false;
    int firstUtteranceLine = 0;
    std::array<int, 128> asciiGroup{}; // identifier -> group + 1, for ASCII letters

    void problem(Problem id, std::string message) override {
        list.report(errCode(id), line, options.transcriptIndex, std::move(message));
    }
    void pause(const Pause& p) override;

    void check(std::string_view text);
    void codesAndComments(std::string& text, std::vector<std::string>* codes);
    void speakerLine(std::string& text);
    void utteranceLine(std::string_view text);
    int lookUpSpeaker(char32_t id);
    void timingLine(std::string_view text, const std::vector<std::string>& codes);
    void pauseLine(std::string_view text, int kind, const std::vector<std::string>& codes);
    void sectionLine(std::string_view text);
    void noteTimedPause(int seconds, PauseTally& tally);
    void noteUntimedPause(PauseTally& tally);
    void finish();
    Entry& addEntry(EntryKind kind);
    EntryCodes keepCodes(const std::vector<std::string>& codes);
};

EntryCodes Checker::State::keepCodes(const std::vector<std::string>& codes) {
    if (codes.empty())
        return {};
    std::vector<std::string_view> kept;
    for (const std::string& c : codes)
        kept.push_back(result.segmented.store->keepText(c));
    TranscriptStore& store = *result.segmented.store;
    return EntryCodes(store.keepOne(store.keep(kept)));
}

Entry& Checker::State::addEntry(EntryKind kind) {
    Entry e;
    e.kind = kind;
    e.line = line;
    result.segmented.entries.push_back(std::move(e));
    return result.segmented.entries.back();
}

void Checker::State::check(std::string_view text) {
    LineKind kind = classifyLine(text);
    if (kind == LineKind::Blank || kind == LineKind::Comment)
        return;
    if (kind == LineKind::Header) {
        if (auto header = parseHeaderLine(text, line))
            result.segmented.headers.push_back(std::move(*header));
        return;
    }
    if (kind == LineKind::Invalid) {
        report(Problem::InvalidLineIdentifier, shown(firstChar(text)));
        return;
    }
    if (kind == LineKind::Utterance) {
        utteranceLine(text);
        return;
    }
    std::string work(text);
    std::vector<std::string> codes;
    codesAndComments(work, kind == LineKind::SpeakerLabels ? nullptr : &codes);
    std::string_view rest = std::string_view(work).substr(1);
    switch (kind) {
    case LineKind::SpeakerLabels:
        speakerLine(work);
        break;
    case LineKind::Timing:
        timingLine(rest, codes);
        break;
    case LineKind::Pause:
        pauseLine(rest, work[0] == ':' ? 0 : 1, codes);
        break;
    case LineKind::Section:
        sectionLine(rest);
        break;
    default:
        break;
    }
}

// The comment and code check of identifier lines: comments and codes are
// blanked; codes are collected (or, on the "$" line, reported).
void Checker::State::codesAndComments(std::string& text, std::vector<std::string>* codes) {
    struct Visitor {
        State& state;
        std::string& text;
        std::vector<std::string>* codes;
        void problem(Problem id, std::string message) { state.problem(id, std::move(message)); }
        void comment(size_t, size_t) {}
        void code(size_t open, size_t close) {
            if (codes) {
                codes->push_back(text.substr(open + 1, close - open - 1));
            } else {
                state.report(Problem::CodeOnSpeakerLine);
                state.codeOnSpeakerLine = true;
            }
        }
    } visitor{*this, text, codes};
    scanCommentsAndCodes(text, text.size(), visitor);
}

void Checker::State::speakerLine(std::string& text) {
    if (speakerLineSeen) {
        report(Problem::SecondSpeakerLine);
        return;
    }
    speakerLineSeen = true;
    bool faulty = codeOnSpeakerLine;
    ParsedSpeakerLine parsed = parseSpeakerLine(std::string_view(text).substr(1));
    for (SpeakerLineProblem& p : parsed.problems)
        problem(p.id, std::move(p.message));
    faulty = faulty || !parsed.problems.empty();
    result.speakers = parsed.table;
    result.segmented.speakers = parsed.table;
    // A table that went bad before this line (an utterance came first) stays
    // bad: identifiers are not checked against a table read too late.
    if (faulty || result.speakerState == SpeakerTableState::Bad)
        result.speakerState = SpeakerTableState::Bad;
    else
        result.speakerState = SpeakerTableState::Good;
    asciiGroup.fill(0);
    for (int g = 2; g >= 0; --g)
        for (const std::string& label : parsed.table.groups[g].labels) {
            char32_t folded = foldCase(firstChar(label));
            if (folded < 128)
                asciiGroup[folded] = g + 1;
        }
}

int Checker::State::lookUpSpeaker(char32_t id) {
    if (id < 128) {
        int g = asciiGroup[foldCase(id)];
        return g - 1;
    }
    return speakerGroupOf(result.speakers, id);
}

void Checker::State::utteranceLine(std::string_view text) {
    if (firstUtteranceLine == 0)
        firstUtteranceLine = line;
    char32_t id = firstChar(text);
    int group = -1;
    if (result.speakerState == SpeakerTableState::NotYetSeen) {
        report(Problem::SpeakerLineMissing);
        result.speakerState = SpeakerTableState::Bad;
    } else {
        group = lookUpSpeaker(id);
        if (group < 0 && result.speakerState == SpeakerTableState::Good)
            report(Problem::UnknownSpeaker, shown(id));
    }
    if (group < 0)
        group = 2;
    mainSpeaker = group < 2 ? group : -1;
    tallyLine = mainSpeaker >= 0 && (!options.analysedLine || options.analysedLine(line));
    seenUtteranceOrPause = true;
    if (!options.keepSegmentation) {
        segmenter.check(text, line, group, *this);
        ++result.utteranceCount;
        return;
    }
    std::vector<Utterance>& utterances = result.segmented.utterances;
    addEntry(EntryKind::Utterance).utterance = static_cast<int>(utterances.size());
    Utterance& kept = utterances.emplace_back();
    TranscriptStore& store = *result.segmented.store;
    segmenter.segment(store.keepText(text), line, group, store, kept, this);
    kept.index = result.utteranceCount++;
}

void Checker::State::pause(const Pause& p) {
    if (!tallyLine)
        return;
    PauseTally& tally = result.pauses.withinUtterance[mainSpeaker];
    if (!p.timed) {
        noteUntimedPause(tally);
        return;
    }
    noteTimedPause(p.seconds, tally);
    if (p.seconds >= 61)
        report(Problem::LongUtterancePause);
}

void Checker::State::noteTimedPause(int seconds, PauseTally& tally) {
    ++tally.timed;
    tally.timedSeconds += seconds;
    if (result.pauses.firstTimedLine == 0)
        result.pauses.firstTimedLine = line;
}

void Checker::State::noteUntimedPause(PauseTally& tally) {
    ++tally.untimed;
    if (result.pauses.firstUntimedLine == 0)
        result.pauses.firstUntimedLine = line;
}

void Checker::State::timingLine(std::string_view text, const std::vector<std::string>& codes) {
    TimeValue t = readTimeValue(text);
    Entry* entry = options.keepSegmentation ? &addEntry(EntryKind::Timing) : nullptr;
    if (entry)
        entry->codes = keepCodes(codes);
    if (!t.valid) {
        report(Problem::IllegalTiming);
        return;
    }
    if (!t.given) {
        report(Problem::MissingTiming);
        return;
    }
    std::vector<TimingEntry>& timings = result.timings;
    if (timings.empty() && seenUtteranceOrPause) {
        report(Problem::NoStartingTime);
        timings.push_back({0, 0, 0});
    }
    int seconds = t.elapsed();
    if (!timings.empty()) {
        const TimingEntry& last = timings.back();
        if (seconds < last.seconds)
            report(Problem::TimeDecreasing);
        else if (seconds == last.seconds && result.utteranceCount > last.utterancesSeen)
            report(Problem::TimeNotIncreasing);
    }
    timings.push_back({seconds, result.utteranceCount, line});
    if (entry)
        entry->seconds = seconds;
}

void Checker::State::pauseLine(std::string_view text, int kind,
                               const std::vector<std::string>& codes) {
    seenUtteranceOrPause = true;
    TimeValue t = readTimeValue(text);
    Entry* entry = options.keepSegmentation ? &addEntry(EntryKind::Pause) : nullptr;
    if (entry) {
        entry->pauseKind = static_cast<std::int8_t>(kind);
        entry->codes = keepCodes(codes);
        entry->seconds = 0;
    }
    if (!t.valid) {
        report(Problem::IllegalPauseTime);
        return;
    }
    PauseTally& tally = result.pauses.pauseLines[kind];
    if (!t.given) {
        noteUntimedPause(tally);
    } else if (t.elapsed() > 0) {
        noteTimedPause(t.elapsed(), tally);
        if (entry)
            entry->seconds = t.elapsed();
    }
}

void Checker::State::sectionLine(std::string_view text) {
    std::string_view word = trim(text);
    std::vector<atbeginend>& sections = result.segmented.sections;
    if (equalsIgnoreCase(word, "begin")) {
        if (sectionOpen) {
            report(Problem::BeginWithoutEnd);
            return;
        }
        sectionOpen = true;
        sections.push_back({line, 0});
        if (options.keepSegmentation)
            addEntry(EntryKind::Begin);
    } else if (equalsIgnoreCase(word, "end")) {
        if (sectionOpen) {
            sectionOpen = false;
            sections.back().end = line;
        } else if (!unmatchedEndUsed) {
            unmatchedEndUsed = true;
            sections.push_back({firstUtteranceLine != 0 ? firstUtteranceLine : line, line});
        } else {
            report(Problem::EndWithoutBegin);
            return;
        }
        if (options.keepSegmentation)
            addEntry(EntryKind::End);
    } else {
        report(Problem::IllegalSectionLine);
    }
}

void Checker::State::finish() {
    line = 1;
    HeaderCheckOptions headerOptions{options.dateFormat, options.dobKeyword, options.doeKeyword,
                                     options.caKeyword, options.requiredHeader};
    result.ageMonths = checkHeaders(
        result.segmented.headers, headerOptions, [this](Problem id, int at, std::string message) {
            list.report(errCode(id), at, options.transcriptIndex, std::move(message));
        });
    if (options.templates)
        checkTemplateLines(*options.templates, result.segmented.headers,
                           [this](Problem id, int at, std::string message) {
                               list.report(errCode(id), at, options.transcriptIndex,
                                           std::move(message));
                           });
    const PauseTallies& p = result.pauses;
    if (p.firstTimedLine != 0 && p.firstUntimedLine != 0)
        report(Problem::MixedPauseTiming, p.firstTimedLine, p.firstUntimedLine);
    if (!result.timings.empty())
        result.elapsedSeconds = result.timings.back().seconds - result.timings.front().seconds;
    long long pauseSeconds = 0;
    for (const PauseTally& t : p.pauseLines)
        pauseSeconds += t.timedSeconds;
    for (const PauseTally& t : p.withinUtterance)
        pauseSeconds += t.timedSeconds;
    if (result.elapsedSeconds > 0 && pauseSeconds >= result.elapsedSeconds)
        report(Problem::PauseExceedsElapsed);
    result.hasErrors = list.hasErrors();
    result.hasWarnings = list.hasWarnings();
    result.problems = list.records();
}

Checker::Checker(CheckOptions options) : state_(std::make_unique<State>()) {
    state_->options = std::move(options);
}

Checker::~Checker() = default;

void Checker::reserve(size_t lines) {
    state_->result.segmented.utterances.reserve(lines);
    state_->result.segmented.entries.reserve(lines);
}

std::string_view Checker::adoptText(std::string text) {
    return state_->result.segmented.store->adoptText(std::move(text));
}

void Checker::checkLine(std::string_view text, int line) {
    state_->line = line;
    state_->check(text);
}

CheckResult Checker::finish() {
    state_->finish();
    state_->result.segmented.store->endSharing();
    CheckResult result = std::move(state_->result);
    CheckOptions options = std::move(state_->options);
    state_ = std::make_unique<State>();
    state_->options = std::move(options);
    return result;
}

CheckResult checkTranscript(const TranLines& lines, const CheckOptions& options) {
    Checker checker(options);
    if (options.keepSegmentation)
        checker.reserve(lines.size());
    for (const tranLine& l : lines)
        checker.checkLine(l.text, l.line);
    return checker.finish();
}

// Each line of `text` in turn (ended by LF, CR LF or CR), as splitLines cuts
// them, without a list of all the lines.
template <class F> void forEachLine(std::string_view text, F&& f) {
    // The next CR or LF from `from`, npos when none. The next CR and the next
    // LF are each searched for again only once passed, so a text without one
    // of them is searched for it once.
    size_t nextCr = text.find('\r'), nextLf = text.find('\n');
    auto lineEnd = [&](size_t from) {
        if (nextCr != std::string_view::npos && nextCr < from)
            nextCr = text.find('\r', from);
        if (nextLf != std::string_view::npos && nextLf < from)
            nextLf = text.find('\n', from);
        return std::min(nextCr, nextLf);
    };
    size_t start = 0;
    while (start < text.size()) {
        size_t end = lineEnd(start);
        if (end == std::string_view::npos) {
            f(text.substr(start));
            return;
        }
        f(text.substr(start, end - start));
        start = end + (text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n' ? 2 : 1);
    }
}

namespace {

CheckResult checkAll(Checker& checker, std::string_view text, const CheckOptions& options) {
    if (options.keepSegmentation) {
        size_t lines = 0;
        forEachLine(text, [&](std::string_view) { ++lines; });
        checker.reserve(lines);
    }
    int number = 0;
    forEachLine(text, [&](std::string_view l) { checker.checkLine(l, ++number); });
    return checker.finish();
}

} // namespace

CheckResult checkText(std::string_view text, const CheckOptions& options) {
    Checker checker(options);
    return checkAll(checker, text, options);
}

CheckResult checkOwnedText(std::string text, const CheckOptions& options) {
    Checker checker(options);
    if (!options.keepSegmentation)
        return checkAll(checker, text, options);
    const std::string_view kept = checker.adoptText(std::move(text));
    return checkAll(checker, kept, options);
}

Utterance segmentUtterance(std::string_view line, int lineNumber, const SpeakerTable& speakers,
                           TranscriptStore& store) {
    int group = line.empty() ? -1 : speakerGroupOf(speakers, firstChar(line));
    return segmentUtterance(line, lineNumber, group < 0 ? 2 : group, store);
}

SegmentedTranscript segmentTranscript(const TranLines& lines) {
    CheckOptions options;
    options.keepSegmentation = true;
    return checkTranscript(lines, options).segmented;
}

} // namespace tavi
