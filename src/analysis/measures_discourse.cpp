// Discourse: responses to the other speaker's questions and prompts,
// imitations, spontaneous utterances, turns, overlaps and interruptions.
#include <algorithm>
#include <array>

#include "analysis/measure_context.h"
#include "base/format.h"

namespace tavi {

namespace {

using Id = MeasureId;

void fillResponses(const SpeakerView& v, SpeakerMeasures& m) {
    const auto& T = v.total;
    auto count = [&](auto pred) {
        return v.countIf(T, [&](int i) { return pred(v.response(i), v.utt(i)); });
    };
    using R = const ResponseType&;
    using U = const Utterance&;
    const int q = count([](R r, U) { return r.question; });
    const int yn = count([](R r, U) { return r.yesNo; });
    const int clar =
        count([](R r, U u) { return r.question && u.terminator == Terminator::Question; });
    const int other = count(
        [](R r, U u) { return r.question && !r.yesNo && u.terminator != Terminator::Question; });
    const int p = count([](R r, U) { return r.prompt; });
    m[Id::RespToQues] = Value::count(q);
    m[Id::YNRespToQues] = Value::count(yn);
    m[Id::ReqClarRespToQues] = Value::count(clar);
    m[Id::OthRespToQues] = Value::count(other);
    m[Id::RespToIntPrmpt] = Value::count(p);
    m[Id::Imitations] = Value::count(count([](R r, U) { return r.imitation; }));
    m[Id::ExactImit] = Value::count(count([](R r, U) { return r.exactImitation; }));
    m[Id::ReducedImit] = Value::count(count([](R r, U) { return r.reducedImitation; }));
    m[Id::OneWdUt] = Value::count(count([](R r, U) { return r.oneWord; }));

    const auto& others = v.c.selection.speakers[1 - v.speaker].total;
    auto otherEnding = [&](Terminator t) {
        return v.countIf(others, [&](int i) { return v.utt(i).terminator == t; });
    };
    const int otherQ = otherEnding(Terminator::Question), otherP = otherEnding(Terminator::Prompt);
    m[Id::OtherSpkQues] = Value::count(otherQ);
    m[Id::OtherSpkIntPrmpt] = Value::count(otherP);
    m[Id::PctRespQues] = m[Id::PctRespToQues] = Value::ratio(q, otherQ, 100);
    m[Id::PctRespPrmpt] = m[Id::PctRespToIntPrmpt] = Value::ratio(p, otherP, 100);
}

void fillSpontaneous(const SpeakerView& v, SpeakerMeasures& m) {
    auto spon = [&](int i) {
        const ResponseType& r = v.response(i);
        return !r.question && !r.prompt && !r.imitation;
    };
    std::array<int, 6> byTerminator{}; // spontaneous utterances by terminator
    int spontaneous = 0;
    for (int i : v.total)
        if (spon(i)) {
            ++spontaneous;
            const auto term = static_cast<size_t>(v.utt(i).terminator);
            if (term < byTerminator.size())
                ++byTerminator[term];
        }
    m[Id::SponUt] = Value::count(spontaneous);
    const std::pair<Id, Terminator> rows[] = {
        {Id::SponStmt, Terminator::Statement}, {Id::SponExcl, Terminator::Exclamation},
        {Id::SponQues, Terminator::Question},  {Id::SponIntPrmpt, Terminator::Prompt},
        {Id::SponAban, Terminator::Abandoned}, {Id::SponInter, Terminator::Interrupted}};
    for (const auto& [id, terminator] : rows)
        m[id] = Value::count(byTerminator[static_cast<size_t>(terminator)]);
}

void fillOverlapsAndInterruptions(const SpeakerView& v, SpeakerMeasures& m) {
    const int total = static_cast<int>(v.total.size());
    const int overlap = v.countIf(v.total, [&](int i) { return v.facts(i).overlap; });
    const int interrupts = v.countIf(v.total, [&](int i) {
        if (i == 0)
            return false;
        const Utterance& prev = v.utt(i - 1);
        return prev.speakerGroup == 1 - v.speaker && prev.terminator == Terminator::Interrupted;
    });
    m[Id::UtWOverlap] = Value::count(overlap);
    m[Id::PctUtWOverlap] = Value::ratio(overlap, total, 100);
    m[Id::IntrOthSpk] = Value::count(interrupts);
    m[Id::PctIntrOthSpk] = Value::ratio(interrupts, total, 100);
}

double median(std::vector<int> values) {
    std::sort(values.begin(), values.end());
    size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

void fillTurns(const SpeakerView& v, SpeakerMeasures& m) {
    std::vector<int> utts, words;
    bool inTurn = false;
    for (int i : v.c.selection.utterances) {
        if (v.utt(i).speakerGroup != v.speaker) {
            inTurn = false;
            continue;
        }
        if (!inTurn) {
            utts.push_back(0);
            words.push_back(0);
            inTurn = true;
        }
        utts.back() += 1;
        words.back() += v.facts(i).wordCount;
    }
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
        m[Id::MedTurnUt] = Value::real(median(utts));
        m[Id::MedTurnWd] = Value::real(median(words));
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
    fillResponses(v, m);
    fillSpontaneous(v, m);
    fillOverlapsAndInterruptions(v, m);
    fillTurns(v, m);
}

} // namespace tavi
