// Shared state of one measure computation: the transcript, the options, the
// selection and the facts of every utterance inside the cut. Internal to the
// analysis engine; the families of measures are filled by separate functions.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

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

struct MeasureContext {
    const SegmentedTranscript& t;
    const MeasureOptions& options;
    const Selection& selection;
    std::vector<UtteranceFacts> facts; // per utterance; filled for utterances inside the cut
    CodeMatchers codes;
    FactTables tables;                              // the facts' words, roots, forms and endings
    std::array<MentionedFirst, 2> mentionedFirst{}; // by main speaker
    std::array<PauseSums, 2> pausesBetween{}; // pause lines before each main speaker's utterances
    const RootIds& rootIds() const { return tables.roots; }
};

// Everything one speaker's measures read.
struct SpeakerView {
    const MeasureContext& c;
    int speaker;
    const std::vector<int>& total;       // utterance indices
    const std::vector<int>& analysisSet; // utterance indices

    const Utterance& utt(int i) const { return c.t.utterances[i]; }
    const UtteranceFacts& facts(int i) const { return c.facts[i]; }
    const CodeFacts& codes(int i) const { return c.facts[i].codeFacts(c.tables); }
    const SpellingFacts& spelling(const CountedWord& w) const { return c.tables.spelling(w); }
    // The counted main-body words of utterance `i`.
    std::span<const CountedWord> words(int i) const { return c.facts[i].words(c.tables); }
    const ResponseType& response(int i) const { return c.selection.responses[i]; }
    template <class Pred> int countIf(const std::vector<int>& utts, Pred&& pred) const {
        int n = 0;
        for (int i : utts)
            n += pred(i) ? 1 : 0;
        return n;
    }
};

// Fills MeasureContext::mentionedFirst, once for both speakers.
void countMentionedFirst(MeasureContext& c);
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
