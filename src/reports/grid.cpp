// Grid shape helpers.
#include "reports/grid.h"

#include <algorithm>

namespace tavi {

size_t Grid::columnCount() const {
    size_t count = columns.size();
    for (const auto& row : rows)
        count = std::max(count, row.size());
    return count;
}

} // namespace tavi
