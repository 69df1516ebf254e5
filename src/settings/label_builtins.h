// The fixed key list of the label table and the built-in English text of each
// key, kept apart from the table's logic because it is long.
#pragma once

#include <array>
#include <string_view>

#include "settings/label_table.h"

namespace tavi {

struct LabelDefinition {
    std::string_view key;
    std::string_view builtInText;
};

extern const std::array<LabelDefinition, kLabelCount> kLabelDefinitions;

} // namespace tavi
