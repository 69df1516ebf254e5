// How a report reaches its words: every heading and measure name is fetched
// by label key ("RL_MLUW") from the label table, already narrowed to the
// transcript's language slot by the caller. Writers never hold such texts.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavi {

// Returns the text of one label key in the report's language slot.
using LabelSource = std::function<std::string(std::string_view key)>;

} // namespace tavi
