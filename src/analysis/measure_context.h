// Shared state of one measure computation: the transcript, the options, the
// selection and the facts of every utterance inside the cut. Internal to the
// analysis engine; the families of measures are filled by separate functions.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "analysis/macro_measures.h"
#include "analysis/maze_kind.h"
#include "analysis/measures.h"
#include "analysis/utterance_facts.h"

namespace tavi {

// Words mentioned first by one main speaker: the different roots the speaker
// said, and how many of them the speaker said before anyone else.
struct MentionedFirst {
    int first = 0;
    int different = 0;
};

// Pauses of one main speaker. Times are summed in 64 bits: a single pause
// may be written as 10^9 seconds.
struct PauseSums {
    int count = 0, timed = 0;
    std::int64_t seconds = 0;
    void add(bool isTimed, int secs) {
        ++count;
        if (isTimed) {
            ++timed;
            seconds += secs;
        }
    }
};

// What the measures read of an utterance after the walk over the cut: its
// counted words and remark roots, its endings and clitics, and the utterance
// lists it goes in. 24 bytes, as one is kept for every utterance of the cut
// (the rest of UtteranceFacts is counted by the walk and dropped).
struct KeptFacts {
    std::uint32_t wordsFrom = 0; // counted words: FactTables::words[wordsFrom, + counted)
    std::uint32_t counted = 0;   // counted main-body words
    std::uint32_t rare = 0;      // FactTables::rareFacts[rare]
    int boundMorphemes = 0, clitics = 0;
    std::array<std::uint8_t, 3> lists{}; // bit k: the utterance goes in utterance list k

    KeptFacts() = default;
    KeptFacts(const UtteranceFacts& f, const FactTables& t, std::uint32_t listBits)
        : wordsFrom(f.wordsFrom), counted(static_cast<std::uint32_t>(f.counted(t))), rare(f.rare),
          boundMorphemes(f.boundMorphemes),
          clitics(f.clitics), lists{static_cast<std::uint8_t>(listBits),
                                    static_cast<std::uint8_t>(listBits >> 8),
                                    static_cast<std::uint8_t>(listBits >> 16)} {}

    std::uint32_t listBits() const {
        return lists[0] | static_cast<std::uint32_t>(lists[1]) << 8 |
               static_cast<std::uint32_t>(lists[2]) << 16;
    }
    std::span<const CountedWord> words(const FactTables& t) const {
        return {t.words.data() + wordsFrom, counted};
    }
    std::span<const int> remarkRoots(const FactTables& t) const {
        const RareFacts& r = t.rareFacts[rare];
        return {t.remarkRoots.data() + r.remarksFrom, static_cast<size_t>(r.remarks)};
    }
};

static_assert(sizeof(KeptFacts) <= 24, "a record is kept for every utterance of the cut");

// Non-negative counts kept as how many times each value occurs, so that their
// number, sum and median need no record of each. Values above kSmall (rare)
// are kept one by one.
class CountTally {
public:
    static constexpr int kSmall = 65536;
    void add(int x) {
        ++size_;
        sum_ += x;
        if (x > kSmall) {
            large_.push_back(x);
            return;
        }
        if (static_cast<size_t>(x) >= small_.size())
            small_.resize(static_cast<size_t>(x) + 1, 0);
        ++small_[static_cast<size_t>(x)];
    }
    int size() const { return size_; }
    long sum() const { return sum_; }
    // How many counts are `x`, or `x` and more when `orMore`.
    int howMany(int x, bool orMore) const;
    // The median, the value a sort would give; size() must be above 0.
    double median() const;

private:
    std::vector<int> small_; // [x]: how many counts are x
    std::vector<int> large_;
    int size_ = 0;
    long sum_ = 0;
};

// What the utterance-level measures of one main speaker count, gathered for
// both speakers in one walk over the cut's utterances (walkUtterances) rather
// than one walk per family of measures.
struct SpeakerTallies {
    // Over the speaker's utterances of the cut (terminators are counted for
    // a speaker left unmeasured too: the other speaker's responses read them).
    std::array<int, 6> terms{};
    std::array<int, 3> intel{};
    int nonverbal = 0;
    int words = 0;     // counted words (UtteranceFacts::wordCount)
    int morphemes = 0; // and their morphemes
    int mazeWords = 0;
    int marks = 0; // unintelligible marks
    int withPause = 0, withOmission = 0, withRemark = 0, withQuotation = 0, withComment = 0;
    // Codes and omissions.
    CodeTally errors, fluency, nonmainstream, codeSwitch;
    int omittedWords = 0, omittedMorphemes = 0, omittedClitics = 0, errorWords = 0;
    int withWordCode = 0, withUtteranceCode = 0, withExcludeCode = 0, withCode = 0;
    int withError = 0, withFluency = 0, withNonmainstream = 0, withCodeSwitch = 0;
    int withErrorOrOmission = 0;
    // Over the analysis set.
    int setWords = 0, setMorphemes = 0, setWithNonmainstream = 0;
    SiSummary si;
    // Responses, imitations, spontaneous utterances, overlaps, interruptions.
    int question = 0, yesNo = 0, clarification = 0, otherAnswer = 0, prompt = 0;
    int imitation = 0, exact = 0, reduced = 0, oneWord = 0;
    int spontaneous = 0;
    std::array<int, 6> spontaneousBy{}; // by terminator
    int overlap = 0, interrupts = 0;
    // Turns: how many have each number of utterances and of words.
    CountTally turnUtterances, turnWords;
    int previous = -2;                             // the speaker's utterance walked last
    int turnOpenUtterances = 0, turnOpenWords = 0; // of the turn not yet added
    PauseSums within;                              // pauses within utterances
    // Mazes.
    int mazes = 0, withMaze = 0;
    std::array<int, kMazeKinds> mazeKinds{};
    std::array<int, 16> uttsByLength{}, mazeUttsByLength{}, mazesByUttLength{}, mazesByLength{};
    // Utterance-length distribution rows.
    std::array<int, 16> lengthRows{};
    // Utterances in each utterance list (the lists, by utterance, are in the
    // kept facts: KeptFacts::listBits).
    std::array<int, kUtteranceLists> listSizes{};
};

struct MeasureContext {
    const SegmentedTranscript& t;
    const MeasureOptions& options;
    const Selection& selection;
    // Per utterance of a main speaker inside the cut, from utterance keptFrom on.
    std::vector<KeptFacts> kept;
    int keptFrom = 0;
    CodeMatchers codes;
    FactTables tables;                              // the facts' words, roots, forms and endings
    std::array<MentionedFirst, 2> mentionedFirst{}; // by main speaker
    std::array<PauseSums, 2> pausesBetween{}; // pause lines before each main speaker's utterances
    std::array<SpeakerTallies, 2> tallies;    // by main speaker
    const RootIds& rootIds() const { return tables.roots; }
};

// Everything one speaker's measures read.
struct SpeakerView {
    const MeasureContext& c;
    int speaker;
    const std::vector<int>& total;       // utterance indices
    const std::vector<int>& analysisSet; // utterance indices

    const Utterance& utt(int i) const { return c.t.utterances[i]; }
    const KeptFacts& facts(int i) const { return c.kept[static_cast<size_t>(i - c.keptFrom)]; }
    // What the walk over the cut's utterances counted for this speaker.
    const SpeakerTallies& tally() const { return c.tallies[static_cast<size_t>(speaker)]; }
    const SpellingFacts& spelling(const CountedWord& w) const { return c.tables.spelling(w); }
    // The counted main-body words of utterance `i`.
    std::span<const CountedWord> words(int i) const { return facts(i).words(c.tables); }
    const ResponseType& response(int i) const { return c.selection.responses[i]; }
    template <class Pred> int countIf(const std::vector<int>& utts, Pred&& pred) const {
        int n = 0;
        for (int i : utts)
            n += pred(i) ? 1 : 0;
        return n;
    }
};

// Gathers the facts of every utterance of the cut and fills
// MeasureContext::mentionedFirst and the tallies of the speakers `measured`
// in one walk over the cut's utterances.
void walkUtterances(MeasureContext& c, const std::array<bool, 2>& measured);
// Fills MeasureContext::pausesBetween, once for both speakers.
void countPausesBetween(MeasureContext& c);

void fillUtteranceKinds(const SpeakerView& v, SpeakerMeasures& m);
void fillLengthAndVocabulary(const SpeakerView& v, SpeakerMeasures& m);
void fillDiscourse(const SpeakerView& v, SpeakerMeasures& m);
void fillTimingAndPauses(const SpeakerView& v, SpeakerMeasures& m);
void fillMazes(const SpeakerView& v, SpeakerMeasures& m);
void fillCodesAndErrors(const SpeakerView& v, SpeakerMeasures& m);
void fillDistributions(const SpeakerView& v, SpeakerMeasures& m);
void fillWordLists(const SpeakerView& v, SpeakerMeasures& m);
void fillCategoriesAndVerbs(const SpeakerView& v, SpeakerMeasures& m);
void fillUtteranceLists(const SpeakerView& v, SpeakerMeasures& m);
void fillMacroAnalysis(const SpeakerView& v, SpeakerMeasures& m);

} // namespace tavi
