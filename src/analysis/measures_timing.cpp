// Elapsed time, rates and pauses within and between utterances.
#include <cstdint>

#include "analysis/measure_context.h"

namespace tavi {

namespace {

using Id = MeasureId;

} // namespace

// Pause lines inside the cut that stand right before an utterance of a main
// speaker, for both speakers in one walk over the entries.
void countPausesBetween(MeasureContext& c) {
    const auto& entries = c.t.entries;
    const Selection& s = c.selection;
    for (size_t i = s.firstEntry; i < s.endEntry; ++i) {
        if (entries[i].kind != EntryKind::Pause)
            continue;
        size_t next = i + 1;
        while (next < s.endEntry && entries[next].kind != EntryKind::Utterance)
            ++next;
        if (next >= s.endEntry)
            continue;
        const int group = c.t.utterances[static_cast<size_t>(entries[next].utterance)].speakerGroup;
        if (group == 0 || group == 1)
            c.pausesBetween[static_cast<size_t>(group)].add(entries[i].seconds > 0,
                                                            entries[i].seconds);
    }
}

void fillTimingAndPauses(const SpeakerView& v, SpeakerMeasures& m) {
    const std::optional<int> elapsed = v.c.selection.elapsedSeconds;
    const int words = v.tally().words;
    const PauseSums& within = v.tally().within;
    if (elapsed) {
        const double minutes = *elapsed / 60.0;
        m[Id::TimeSec] = Value::count(*elapsed);
        m[Id::TimeMin] = Value::real(minutes);
        m[Id::TimeMinSec] = Value::text(formatMinutesSeconds(*elapsed));
        m[Id::WPM] = Value::ratio(words, minutes);
        m[Id::UtPerMin] = Value::ratio(static_cast<double>(v.total.size()), minutes);
    }
    m.timingMissing = !elapsed;

    const PauseSums& between = v.c.pausesBetween[static_cast<size_t>(v.speaker)];
    m[Id::NumPauseWiUt] = Value::count(within.count);
    m[Id::NumPauseBtUt] = Value::count(between.count);
    m[Id::UntimedPauseWiUt] = Value::count(within.count - within.timed);
    m[Id::UntimedPauseBtUt] = Value::count(between.count - between.timed);
    m[Id::PauseTimeWiUt] = Value::saturatedCount(within.seconds);
    m[Id::PauseTimeBtUt] = Value::saturatedCount(between.seconds);
    m[Id::AvgPauseWiUt] = Value::ratio(static_cast<double>(within.seconds), within.timed);
    m[Id::AvgPauseBtUt] = Value::ratio(static_cast<double>(between.seconds), between.timed);
    const int pauses = within.count + between.count, timed = within.timed + between.timed;
    m.pausesUntimed = pauses > 0 && timed == 0;
    m.somePausesUntimed = timed > 0 && timed < pauses;
    if (elapsed && timed > 0)
        m[Id::PctPauseTime] =
            Value::ratio(static_cast<double>(within.seconds + between.seconds), *elapsed, 100);
}

} // namespace tavi
