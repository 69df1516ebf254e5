// Value formats, each through its printf form.
#include "reports/line_format.h"

#include <cmath>

#include "base/format.h"

namespace tavi {

std::string formatCount(std::optional<double> value) {
    if (!value)
        return std::string(kMissingMark);
    return format("%d", static_cast<int>(std::lround(*value)));
}

std::string formatMean(std::optional<double> value) {
    if (!value)
        return std::string(kMissingMark);
    return format("%0.2f", *value);
}

std::string formatPercent(std::optional<double> value) {
    if (!value)
        return std::string(kMissingMark);
    if (*value == 100.0)
        return format("%0.0f%%", *value);
    return format("%0.1f%%", *value);
}

std::string formatElapsedCell(std::optional<int> seconds) {
    if (!seconds || *seconds < 0)
        return std::string(kMissingMark);
    const int minutes = *seconds / 60;
    const int rest = *seconds % 60;
    return rest < 10 ? format("%d:0%d", minutes, rest) : format("%d:%d", minutes, rest);
}

std::string formatWithMean(std::string_view value, double mean) {
    return format("(%s)     %0.2f", std::string(value).c_str(), mean);
}

std::string percentLabel(std::string_view label) {
    return format("%% %s", std::string(label).c_str());
}

LabelledLine elapsedTimeLine(std::string prefix, std::string label, std::optional<int> seconds,
                             const TimeWords& words) {
    LabelledLine line{std::move(prefix), std::move(label), ":  ", {}};
    if (!seconds || *seconds < 0) {
        line.value = words.noTiming;
        return line;
    }
    const int minutes = *seconds / 60;
    const int rest = *seconds % 60;
    if (rest == 0) {
        line.gap = ": ";
        line.value = format("%d %s", minutes, words.minutes.c_str());
    } else {
        line.value =
            format("%d %s  %d %s", minutes, words.minutes.c_str(), rest, words.seconds.c_str());
    }
    return line;
}

} // namespace tavi
