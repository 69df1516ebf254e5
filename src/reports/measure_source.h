// How a report reads measures: by measure identifier ("MLUw", "%IntelUt",
// "TotNumUt"), a missing value being an empty optional. The analysis fills
// one per speaker; a database comparison fills a second with the means.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

namespace tavi {

using MeasureSource = std::function<std::optional<double>(std::string_view id)>;

} // namespace tavi
