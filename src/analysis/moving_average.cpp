// Sliding-window type counts in one pass.
#include "analysis/moving_average.h"

#include <algorithm>
#include <unordered_map>

namespace tavi {

MovingAverage movingAverage(const std::vector<std::string>& words, int window) {
    std::unordered_map<std::string, int> ids;
    std::vector<int> seq;
    seq.reserve(words.size());
    for (const std::string& w : words)
        seq.push_back(ids.emplace(w, static_cast<int>(ids.size())).first->second);
    return movingAverage(seq, static_cast<int>(ids.size()), window);
}

MovingAverage movingAverage(const std::vector<int>& seq, int different, int window) {
    MovingAverage ma;
    const long n = static_cast<long>(seq.size());
    if (n == 0 || window <= 0)
        return ma;
    const long size = std::min<long>(window, n);
    std::vector<int> inWindow(static_cast<size_t>(different), 0);
    long types = 0;
    for (long i = 0; i < size; ++i)
        types += inWindow[seq[i]]++ == 0 ? 1 : 0;
    double sum = static_cast<double>(types);
    for (long i = size; i < n; ++i) {
        types += inWindow[seq[i]]++ == 0 ? 1 : 0;
        types -= --inWindow[seq[i - size]] == 0 ? 1 : 0;
        sum += static_cast<double>(types);
    }
    ma.windows = n - size + 1;
    ma.ntw = static_cast<double>(size);
    ma.ndw = sum / static_cast<double>(ma.windows);
    ma.ttr = ma.ndw / ma.ntw;
    return ma;
}

} // namespace tavi
