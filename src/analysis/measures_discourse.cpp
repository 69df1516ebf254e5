// Discourse: responses to the other speaker's questions and prompts,
// imitations, spontaneous utterances, turns, overlaps and interruptions.
#include <algorithm>
#include <array>

#include "analysis/measure_context.h"
#include "base/format.h"

namespace tavi {

namespace {

using Id = MeasureId;

using DiscourseCounts = SpeakerTallies;

void fillResponses(const SpeakerView& v, const DiscourseCounts& d, SpeakerMeasures& m) {
    m[Id::RespToQues] = Value::count(d.question);
    m[Id::YNRespToQues] = Value::count(d.yesNo);
    m[Id::ReqClarRespToQues] = Value::count(d.clarification);
    m[Id::OthRespToQues] = Value::count(d.otherAnswer);
    m[Id::RespToIntPrmpt] = Value::count(d.prompt);
    m[Id::Imitations] = Value::count(d.imitation);
    m[Id::ExactImit] = Value::count(d.exact);
    m[Id::ReducedImit] = Value::count(d.reduced);
    m[Id::OneWdUt] = Value::count(d.oneWord);

    const auto& other = v.c.tallies[static_cast<size_t>(1 - v.speaker)].terms;
    const int otherQ = other[static_cast<size_t>(Terminator::Question)];
    const int otherP = other[static_cast<size_t>(Terminator::Prompt)];
    m[Id::OtherSpkQues] = Value::count(otherQ);
    m[Id::OtherSpkIntPrmpt] = Value::count(otherP);
    m[Id::PctRespQues] = m[Id::PctRespToQues] = Value::ratio(d.question, otherQ, 100);
    m[Id::PctRespPrmpt] = m[Id::PctRespToIntPrmpt] = Value::ratio(d.prompt, otherP, 100);
}

void fillSpontaneous(const DiscourseCounts& d, SpeakerMeasures& m) {
    m[Id::SponUt] = Value::count(d.spontaneous);
    const std::pair<Id, Terminator> rows[] = {
        {Id::SponStmt, Terminator::Statement}, {Id::SponExcl, Terminator::Exclamation},
        {Id::SponQues, Terminator::Question},  {Id::SponIntPrmpt, Terminator::Prompt},
        {Id::SponAban, Terminator::Abandoned}, {Id::SponInter, Terminator::Interrupted}};
    for (const auto& [id, terminator] : rows)
        m[id] = Value::count(d.spontaneousBy[static_cast<size_t>(terminator)]);
}

void fillOverlapsAndInterruptions(const SpeakerView& v, const DiscourseCounts& d,
                                  SpeakerMeasures& m) {
    const int total = static_cast<int>(v.total.size());
    m[Id::UtWOverlap] = Value::count(d.overlap);
    m[Id::PctUtWOverlap] = Value::ratio(d.overlap, total, 100);
    m[Id::IntrOthSpk] = Value::count(d.interrupts);
    m[Id::PctIntrOthSpk] = Value::ratio(d.interrupts, total, 100);
}

// The median of non-negative counts, the value a sort would give: found by
// counting them when they are small, else by partial ordering.
double medianOfCounts(const std::vector<int>& counts) {
    const size_t n = counts.size();
    const int top = *std::max_element(counts.begin(), counts.end());
    if (top > 65536 || *std::min_element(counts.begin(), counts.end()) < 0) {
        std::vector<int> values = counts;
        std::nth_element(values.begin(), values.begin() + n / 2, values.end());
        const int upper = values[n / 2];
        if (n % 2)
            return upper;
        const int lower = *std::max_element(values.begin(), values.begin() + n / 2);
        return (lower + upper) / 2.0;
    }
    std::vector<int> tally(static_cast<size_t>(top) + 1, 0);
    for (int x : counts)
        ++tally[static_cast<size_t>(x)];
    // The k-th smallest value, from 0.
    auto nth = [&](size_t k) {
        size_t seen = 0;
        int x = 0;
        for (; seen + static_cast<size_t>(tally[x]) <= k; ++x)
            seen += static_cast<size_t>(tally[x]);
        return x;
    };
    return n % 2 ? nth(n / 2) : (nth(n / 2 - 1) + nth(n / 2)) / 2.0;
}

// A turn: the speaker's utterances with no other utterance of the cut
// between them. The utterances of the cut are numbered without a gap (they
// are numbered in the order of the transcript's entries), so the speaker's
// utterance `i` goes on a turn when the speaker's one before it is `i - 1`.
void fillTurns(const SpeakerView& v, SpeakerMeasures& m) {
    const std::vector<int>& utts = v.tally().turnUtterances;
    const std::vector<int>& words = v.tally().turnWords;
    const double turns = static_cast<double>(utts.size());
    long uttSum = 0, wordSum = 0;
    std::array<int, 7> byUtts{};
    std::array<int, 16> byWords{};
    for (size_t k = 0; k < utts.size(); ++k) {
        uttSum += utts[k];
        wordSum += words[k];
        byUtts[std::min(6, utts[k])]++;
        byWords[std::min(15, words[k])]++;
    }
    m[Id::MeanTurnUt] = Value::ratio(static_cast<double>(uttSum), turns);
    m[Id::MeanTurnWd] = Value::ratio(static_cast<double>(wordSum), turns);
    if (!utts.empty()) {
        m[Id::MedTurnUt] = Value::real(medianOfCounts(utts));
        m[Id::MedTurnWd] = Value::real(medianOfCounts(words));
    }
    for (int k = 1; k <= 6; ++k)
        m[*measureIdByName(format("TurnByTLUt%d", k))] = Value::count(byUtts[k]);
    m[Id::TurnByTLUtTot] = Value::count(static_cast<int>(utts.size()));
    for (int k = 0; k <= 15; ++k)
        m[*measureIdByName(format("TurnByTLWd%d", k))] = Value::count(byWords[k]);
    m[Id::TurnByTLWdTot] = Value::count(static_cast<int>(utts.size()));
}

} // namespace

void fillDiscourse(const SpeakerView& v, SpeakerMeasures& m) {
    const DiscourseCounts& d = v.tally();
    fillResponses(v, d, m);
    fillSpontaneous(d, m);
    fillOverlapsAndInterruptions(v, d, m);
    fillTurns(v, m);
}

} // namespace tavi
