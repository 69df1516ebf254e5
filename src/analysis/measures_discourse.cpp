// Discourse: responses to the other speaker's questions and prompts,
// imitations, spontaneous utterances, turns, overlaps and interruptions.
#include <algorithm>
#include <array>

#include "analysis/measure_context.h"

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

// A turn: the speaker's utterances with no other utterance of the cut
// between them. The utterances of the cut are numbered without a gap (they
// are numbered in the order of the transcript's entries), so the speaker's
// utterance `i` goes on a turn when the speaker's one before it is `i - 1`.
void fillTurns(const SpeakerView& v, SpeakerMeasures& m) {
    const CountTally& utts = v.tally().turnUtterances;
    const CountTally& words = v.tally().turnWords;
    const double turns = static_cast<double>(utts.size());
    m[Id::MeanTurnUt] = Value::ratio(static_cast<double>(utts.sum()), turns);
    m[Id::MeanTurnWd] = Value::ratio(static_cast<double>(words.sum()), turns);
    if (utts.size() > 0) {
        m[Id::MedTurnUt] = Value::real(utts.median());
        m[Id::MedTurnWd] = Value::real(words.median());
    }
    static_assert(isNumberedFamily(Id::TurnByTLUt1, "TurnByTLUt", 1, 6));
    static_assert(isNumberedFamily(Id::TurnByTLWd0, "TurnByTLWd", 0, 15));
    for (int k = 1; k <= 6; ++k)
        m[measureIdAfter(Id::TurnByTLUt1, k - 1)] = Value::count(utts.howMany(k, k == 6));
    m[Id::TurnByTLUtTot] = Value::count(utts.size());
    for (int k = 0; k <= 15; ++k)
        m[measureIdAfter(Id::TurnByTLWd0, k)] = Value::count(words.howMany(k, k == 15));
    m[Id::TurnByTLWdTot] = Value::count(utts.size());
}

} // namespace

int CountTally::howMany(int x, bool orMore) const {
    if (x < 0 && !orMore)
        return 0;
    int n = 0;
    for (size_t k = static_cast<size_t>(std::max(x, 0)); k < small_.size(); ++k) {
        n += small_[k];
        if (!orMore)
            break;
    }
    for (int big : large_)
        n += big == x || (orMore && big > x) ? 1 : 0;
    return n;
}

double CountTally::median() const {
    std::vector<int> large = large_;
    std::sort(large.begin(), large.end());
    // The k-th smallest count, from 0.
    auto nth = [&](size_t k) {
        size_t seen = 0;
        for (size_t x = 0; x < small_.size(); ++x) {
            seen += static_cast<size_t>(small_[x]);
            if (k < seen)
                return static_cast<int>(x);
        }
        return large[k - seen];
    };
    const auto n = static_cast<size_t>(size_);
    return n % 2 ? nth(n / 2) : (nth(n / 2 - 1) + nth(n / 2)) / 2.0;
}

void fillDiscourse(const SpeakerView& v, SpeakerMeasures& m) {
    const DiscourseCounts& d = v.tally();
    fillResponses(v, d, m);
    fillSpontaneous(d, m);
    fillOverlapsAndInterruptions(v, d, m);
    fillTurns(v, m);
}

} // namespace tavi
