// Mazes: maze words, counts, kinds (revisions, repetitions, filled pauses)
// and the maze distribution tables.
#include <algorithm>

#include "analysis/gc_dictionary.h"
#include "analysis/maze_kind.h"
#include "analysis/measure_context.h"
#include "analysis/word_forms.h"
#include "analysis/word_lists.h"
#include "base/format.h"

namespace tavi {

namespace {

using Id = MeasureId;

Id idOf(const char* fmt, int n) {
    return *measureIdByName(format(fmt, n));
}

FilledPauseTest filledPauseTest(const MeasureOptions& o) {
    if (o.wordLists && !o.wordLists->empty(o.wordListSet, kFilledPauseList)) {
        return WordTest(*o.wordLists, o.wordListSet, kFilledPauseList);
    }
    return isDefaultFilledPause;
}

} // namespace

void fillMazes(const SpeakerView& v, SpeakerMeasures& m) {
    const int total = static_cast<int>(v.total.size());
    const FilledPauseTest isFilled = filledPauseTest(v.c.options);
    int mazeWords = 0, mazes = 0, words = 0, withMaze = 0;
    std::array<int, kMazeKinds> kinds{};
    std::array<int, 16> uttsByLen{}, mazeUttsByLen{}, mazesByUttLen{}, mazesByMazeLen{};
    for (int i : v.total) {
        const Utterance& u = v.utt(i);
        const UtteranceFacts& f = v.facts(i);
        const int len = std::min(15, f.wordCount);
        mazeWords += f.mazeWords;
        words += f.wordCount;
        mazes += static_cast<int>(u.mazes().size());
        withMaze += u.mazes().empty() ? 0 : 1;
        uttsByLen[len]++;
        mazeUttsByLen[len] += u.mazes().empty() ? 0 : 1;
        mazesByUttLen[len] += static_cast<int>(u.mazes().size());
        for (size_t k = 0; k < u.mazes().size(); ++k) {
            kinds[static_cast<int>(
                classifyMaze(u, static_cast<int>(k), isFilled, v.c.options.dictionary))]++;
            mazesByMazeLen[std::clamp(static_cast<int>(u.mazes()[k].words.size()), 0, 15)]++;
        }
    }
    m[Id::MzWds] = Value::count(mazeWords);
    m[Id::PctMzWds] = Value::ratio(mazeWords, words + mazeWords, 100);
    m[Id::TotNumMz] = Value::count(mazes);
    m[Id::AvgWdPerMz] = Value::ratio(mazeWords, mazes);
    m[Id::AvgMzPerUt] = Value::ratio(mazes, total);
    m[Id::UtWMaze] = Value::count(withMaze);
    m[Id::PctUtWMaze] = Value::ratio(withMaze, total, 100);
    const Id kindIds[kMazeKinds] = {Id::MzRevPartWd,  Id::MzRevWd,   Id::MzRevPhr,
                                    Id::MzRepPartWd,  Id::MzRepWd,   Id::MzRepPhr,
                                    Id::MzFPSingleWd, Id::MzFPMultWd};
    for (int k = 0; k < kMazeKinds; ++k)
        m[kindIds[k]] = Value::count(kinds[k]);

    for (int len = 1; len <= 15; ++len) {
        m[idOf("%%UtWMzByUL%d", len)] = Value::ratio(mazeUttsByLen[len], uttsByLen[len], 100);
        m[idOf("MzByUL%d", len)] = Value::count(mazesByUttLen[len]);
        m[idOf("MzByML%d", len)] = Value::count(mazesByMazeLen[len]);
    }
    m[Id::PctUtWMzByULTot] = m[Id::PctUtWMaze];
    m[Id::MzByULTot] = Value::count(mazes);
    m[Id::MzByMLTot] = Value::count(mazes);
}

} // namespace tavi
