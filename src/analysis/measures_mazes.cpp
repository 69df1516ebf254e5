// Mazes: maze words, counts, kinds (revisions, repetitions, filled pauses)
// and the maze distribution tables.
#include <algorithm>

#include "analysis/gc_dictionary.h"
#include "analysis/maze_kind.h"
#include "analysis/measure_context.h"
#include "analysis/word_forms.h"
#include "analysis/word_lists.h"

namespace tavi {

namespace {

using Id = MeasureId;

static_assert(isNumberedFamily(Id::PctUtWMzByUL1, "%UtWMzByUL", 1, 15));
static_assert(isNumberedFamily(Id::MzByUL1, "MzByUL", 1, 15));
static_assert(isNumberedFamily(Id::MzByML1, "MzByML", 1, 15));

} // namespace

void fillMazes(const SpeakerView& v, SpeakerMeasures& m) {
    const int total = static_cast<int>(v.total.size());
    const SpeakerTallies& s = v.tally();
    const int mazeWords = s.mazeWords, mazes = s.mazes, words = s.words, withMaze = s.withMaze;
    const auto& kinds = s.mazeKinds;
    const auto &uttsByLen = s.uttsByLength, &mazeUttsByLen = s.mazeUttsByLength,
               &mazesByUttLen = s.mazesByUttLength, &mazesByMazeLen = s.mazesByLength;
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
        m[measureIdAfter(Id::PctUtWMzByUL1, len - 1)] =
            Value::ratio(mazeUttsByLen[len], uttsByLen[len], 100);
        m[measureIdAfter(Id::MzByUL1, len - 1)] = Value::count(mazesByUttLen[len]);
        m[measureIdAfter(Id::MzByML1, len - 1)] = Value::count(mazesByMazeLen[len]);
    }
    m[Id::PctUtWMzByULTot] = m[Id::PctUtWMaze];
    m[Id::MzByULTot] = Value::count(mazes);
    m[Id::MzByMLTot] = Value::count(mazes);
}

} // namespace tavi
