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
#include "base/text.h"

namespace tavi {

namespace {

using Id = MeasureId;

void fillMlu(const SpeakerView& v, SpeakerMeasures& m) {
    const SpeakerTallies& s = v.tally();
    const int aWords = s.setWords, aMorphs = s.setMorphemes, tWords = s.words,
              tMorphs = s.morphemes, all = s.words + s.mazeWords;
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
    // Room for exactly these: a run that doubles as it grows needs thrice.
    ids.reserve(static_cast<size_t>(v.tally().setWords));
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
        const KeptFacts& f = v.facts(i);
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

void fillLengthAndVocabulary(const SpeakerView& v, SpeakerMeasures& m) {
    fillMlu(v, m);
    fillVocabulary(v, m);
    fillMentionedFirst(v, m);
}

void fillDistributions(const SpeakerView& v, SpeakerMeasures& m) {
    const auto& utts = v.c.options.distributionOnAnalysisSet ? v.analysisSet : v.total;
    const std::array<int, 16>& rows = v.tally().lengthRows;
    static_assert(isNumberedFamily(Id::UtbyUL0, "UtbyUL", 0, 15));
    for (int len = 0; len < 16; ++len)
        m[measureIdAfter(Id::UtbyUL0, len)] = Value::count(rows[len]);
    m[Id::UtbyULTot] = Value::count(static_cast<int>(utts.size()));
}

} // namespace tavi
