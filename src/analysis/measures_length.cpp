// Length and vocabulary: MLU, NTW, NDW, TTR, moving averages, Brown's stage,
// bound morphemes, words mentioned first, and the utterance-length
// distribution.
#include <algorithm>
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

// Roots of the counted words of some utterances, in order.
std::vector<std::string> rootsOf(const SpeakerView& v, const std::vector<int>& utts) {
    std::vector<std::string> roots;
    for (int i : utts)
        roots.insert(roots.end(), v.facts(i).roots.begin(), v.facts(i).roots.end());
    return roots;
}

void fillMlu(const SpeakerView& v, SpeakerMeasures& m) {
    auto sums = [&](const std::vector<int>& utts) {
        std::pair<int, int> s{0, 0};
        for (int i : utts) {
            s.first += v.facts(i).wordCount;
            s.second += v.facts(i).morphemes;
        }
        return s;
    };
    auto [aWords, aMorphs] = sums(v.analysisSet);
    auto [tWords, tMorphs] = sums(v.total);
    const double aset = static_cast<double>(v.analysisSet.size());
    m[Id::MLUw] = Value::ratio(aWords, aset);
    m[Id::MLUm] = Value::ratio(aMorphs, aset);
    m[Id::MLUwTot] = Value::ratio(tWords, static_cast<double>(v.total.size()));
    m[Id::MLUmTot] = Value::ratio(tMorphs, static_cast<double>(v.total.size()));
    if (!m[Id::MLUm].isMissing()) {
        m[Id::BrownStg] = brownStage(m[Id::MLUm].asReal());
        m[Id::ExpAgeRange] = expectedAgeRange(m[Id::MLUm].asReal());
    }
    int all = 0;
    for (int i : v.total)
        all += v.facts(i).wordCount + v.facts(i).mazeWords;
    m[Id::AllWords] = Value::count(all);
}

void fillVocabulary(const SpeakerView& v, SpeakerMeasures& m) {
    std::vector<std::string> roots = rootsOf(v, v.analysisSet);
    std::unordered_set<std::string> different(roots.begin(), roots.end());
    const int ntw = static_cast<int>(roots.size());
    const int ndw = static_cast<int>(different.size());
    m[Id::NTW] = Value::count(ntw);
    m[Id::NDW] = Value::count(ndw);
    m[Id::TTR] = Value::ratio(ndw, ntw);
    MovingAverage ma = movingAverage(roots, v.c.options.window);
    if (ma.windows > 0) {
        m[Id::MA_NTW] = Value::real(ma.ntw);
        m[Id::MA_NDW] = Value::real(ma.ndw);
        m[Id::MA_TTR] = Value::real(ma.ttr);
    }
}

void fillBoundMorphemes(const SpeakerView& v, SpeakerMeasures& m) {
    int bound = 0, clitics = 0;
    std::unordered_set<std::string> endings;
    for (int i : v.analysisSet) {
        bound += v.facts(i).boundMorphemes;
        clitics += v.facts(i).clitics;
        for (const Word* w : v.facts(i).words)
            for (const std::string& e : w->boundMorphemes)
                endings.insert(toLowerAscii(e));
    }
    m[Id::BoundMorphs] = Value::count(bound);
    m[Id::BoundClitics] = Value::count(clitics);
    m[Id::DiffBM] = Value::count(static_cast<int>(endings.size()));
}

// Different roots that this speaker said before the other main speaker did.
void fillMentionedFirst(const SpeakerView& v, SpeakerMeasures& m) {
    std::unordered_map<std::string, int> firstBy;
    std::unordered_set<std::string> mine;
    for (int i : v.c.selection.utterances) {
        int group = v.utt(i).speakerGroup;
        if (group > 1)
            continue;
        for (const std::string& root : v.c.facts[i].roots) {
            firstBy.emplace(root, group);
            if (group == v.speaker)
                mine.insert(root);
        }
    }
    int first = 0;
    for (const std::string& r : mine)
        first += firstBy[r] == v.speaker ? 1 : 0;
    m[Id::WdsMention1st] = Value::count(first);
    m[Id::PctWdsMention1st] = Value::ratio(first, static_cast<double>(mine.size()), 100);
}

} // namespace

void fillLengthAndVocabulary(const SpeakerView& v, SpeakerMeasures& m) {
    fillMlu(v, m);
    fillVocabulary(v, m);
    fillBoundMorphemes(v, m);
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
