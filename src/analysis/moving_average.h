// Moving averages of NTW, NDW and TTR: windows of N consecutive words,
// advanced one word at a time; a sample shorter than N is one window.
#pragma once

#include <string>
#include <vector>

namespace tavi {

struct MovingAverage {
    long windows = 0; // 0 when there are no words
    double ntw = 0, ndw = 0, ttr = 0;
};

// `words` are the word roots in order (already in their compared form).
MovingAverage movingAverage(const std::vector<std::string>& words, int window);
// The same over word numbers 0 .. `different` - 1 (equal words, equal numbers).
MovingAverage movingAverage(const std::vector<int>& ids, int different, int window);

} // namespace tavi
