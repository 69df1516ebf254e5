// Length and vocabulary: MLU, NTW, NDW, TTR, moving averages, Brown's stage,
// bound morphemes, words mentioned first, and the utterance-length
// distribution.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "analysis/brown_stage.h"
#include "analysis/measure_context.h"
#include "analysis/moving_average.h"
#include "analysis/word_forms.h"
#include "base/format.h"
#include "base/text.h"

namespace tavi {

namespace {

using Id = MeasureId;

void fillMlu(const SpeakerView& v, SpeakerMeasures& m) {
    int aWords = 0, aMorphs = 0, tWords = 0, tMorphs = 0, all = 0;
    for (int i : v.analysisSet) {
        aWords += v.facts(i).wordCount;
        aMorphs += v.facts(i).morphemes;
    }
    for (int i : v.total) {
        const UtteranceFacts& f = v.facts(i);
        tWords += f.wordCount;
        tMorphs += f.morphemes;
        all += f.wordCount + f.mazeWords;
    }
    const double aset = static_cast<double>(v.analysisSet.size());
    m[Id::MLUw] = Value::ratio(aWords, aset);
    m[Id::MLUm] = Value::ratio(aMorphs, aset);
    m[Id::MLUwTot] = Value::ratio(tWords, static_cast<double>(v.total.size()));
    m[Id::MLUmTot] = Value::ratio(tMorphs, static_cast<double>(v.total.size()));
    if (!m[Id::MLUm].isMissing()) {
        m[Id::BrownStg] = brownStage(m[Id::MLUm].asReal());
        m[Id::ExpAgeRange] = expectedAgeRange(m[Id::MLUm].asReal());
    }
    m[Id::AllWords] = Value::count(all);
}

// NTW, NDW, TTR, the moving averages and the bound morphemes, in one walk
// over the analysis set's words.
void fillVocabulary(const SpeakerView& v, SpeakerMeasures& m) {
    const FactTables& t = v.c.tables;
    std::vector<int> ids; // root numbers of the counted words, in order
    size_t count = 0;     // room for exactly these: a run that doubles as it grows needs thrice
    for (int i : v.analysisSet)
        count += static_cast<size_t>(v.facts(i).wordCount);
    ids.reserve(count);
    // Flags, not counts: a count of chars would wrap after 255 uses.
    std::vector<char> seenRoot(static_cast<size_t>(t.roots.size()), 0);
    std::vector<char> seenEnding(static_cast<size_t>(t.endings.size()), 0);
    int ndw = 0, bound = 0, clitics = 0, differentEndings = 0;
    auto addRoot = [&](int id) {
        ids.push_back(id);
        if (!seenRoot[static_cast<size_t>(id)]) {
            seenRoot[static_cast<size_t>(id)] = 1;
            ++ndw;
        }
    };
    for (int i : v.analysisSet) {
        const UtteranceFacts& f = v.facts(i);
        bound += f.boundMorphemes;
        clitics += f.clitics;
        for (const CountedWord& w : f.words(t)) {
            const SpellingFacts& spelling = t.spelling(w);
            addRoot(spelling.root);
            for (int id : t.endingsOf(spelling))
                if (!seenEnding[static_cast<size_t>(id)]) {
                    seenEnding[static_cast<size_t>(id)] = 1;
                    ++differentEndings;
                }
        }
        for (int id : f.remarkRoots(t))
            addRoot(id);
    }
    const int ntw = static_cast<int>(ids.size());
    m[Id::NTW] = Value::count(ntw);
    m[Id::NDW] = Value::count(ndw);
    m[Id::TTR] = Value::ratio(ndw, ntw);
    MovingAverage ma = movingAverage(ids, t.roots.size(), v.c.options.window);
    if (ma.windows > 0) {
        m[Id::MA_NTW] = Value::count(static_cast<int>(std::lround(ma.ntw))); // the window size
        m[Id::MA_NDW] = Value::real(ma.ndw);
        m[Id::MA_TTR] = Value::real(ma.ttr);
    }
    m[Id::BoundMorphs] = Value::count(bound);
    m[Id::BoundClitics] = Value::count(clitics);
    m[Id::DiffBM] = Value::count(differentEndings);
}

// Different roots that this speaker said before the other main speaker did.
void fillMentionedFirst(const SpeakerView& v, SpeakerMeasures& m) {
    const MentionedFirst& counts = v.c.mentionedFirst[static_cast<size_t>(v.speaker)];
    m[Id::WdsMention1st] = Value::count(counts.first);
    m[Id::PctWdsMention1st] = Value::ratio(counts.first, counts.different, 100);
}

} // namespace

// Both main speakers in one walk: the speaker who said each root first, and
// the roots each said. A root counts for a speaker when it is among theirs and
// they said it first.
void countMentionedFirst(MeasureContext& c) {
    const size_t different = static_cast<size_t>(c.rootIds().size());
    std::vector<signed char> firstBy(different, -1);
    std::vector<std::uint8_t> said(different, 0); // bit g: said by speaker g
    for (int i : c.selection.utterances) {
        const int group = c.t.utterances[static_cast<size_t>(i)].speakerGroup;
        if (group > 1)
            continue;
        auto note = [&](int id) {
            if (firstBy[id] < 0)
                firstBy[id] = static_cast<signed char>(group);
            said[id] |= static_cast<std::uint8_t>(1u << group);
        };
        const UtteranceFacts& f = c.facts[static_cast<size_t>(i)];
        for (const CountedWord& w : f.words(c.tables))
            note(c.tables.spelling(w).root);
        for (int id : f.remarkRoots(c.tables))
            note(id);
    }
    for (size_t id = 0; id < different; ++id)
        for (int g = 0; g < 2; ++g)
            if (said[id] & (1u << g)) {
                ++c.mentionedFirst[g].different;
                c.mentionedFirst[g].first += firstBy[id] == g ? 1 : 0;
            }
}

void fillLengthAndVocabulary(const SpeakerView& v, SpeakerMeasures& m) {
    fillMlu(v, m);
    fillVocabulary(v, m);
    fillMentionedFirst(v, m);
}

void fillDistributions(const SpeakerView& v, SpeakerMeasures& m) {
    const MeasureOptions& o = v.c.options;
    const auto& utts = o.distributionOnAnalysisSet ? v.analysisSet : v.total;
    std::array<int, 16> rows{};
    for (int i : utts) {
        const UtteranceFacts& f = v.facts(i);
        rows[std::min(15, o.distributionInMorphemes ? f.morphemes : f.wordCount)]++;
    }
    for (int len = 0; len < 16; ++len)
        m[*measureIdByName(format("UtbyUL%d", len))] = Value::count(rows[len]);
    m[Id::UtbyULTot] = Value::count(static_cast<int>(utts.size()));
}

} // namespace tavi
