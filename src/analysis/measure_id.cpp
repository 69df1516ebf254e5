// Looking identifiers up by name.
#include "analysis/measure_id.h"

#include <algorithm>
#include <array>

namespace tavi {

namespace {

using Index = std::array<std::pair<std::string_view, int>, kMeasureCount>;

Index sortedIndex() {
    Index index{};
    for (std::size_t i = 0; i < kMeasureCount; ++i)
        index[i] = {kMeasureInfo[i].name, static_cast<int>(i)};
    std::sort(index.begin(), index.end());
    return index;
}

} // namespace

std::optional<MeasureId> measureIdByName(std::string_view name) {
    static const Index index = sortedIndex();
    auto it = std::lower_bound(index.begin(), index.end(), name,
                               [](const auto& e, std::string_view n) { return e.first < n; });
    if (it == index.end() || it->first != name)
        return std::nullopt;
    return static_cast<MeasureId>(it->second);
}

} // namespace tavi
