// The standard utterance lists: each key selects the utterances of one kind
// for display ("PIMIT" imitations, "PQUES" questions ...).
#pragma once

#include <array>
#include <string_view>

namespace tavi {

// In order. "PRIP" lists responses: utterances of type Q or P.
inline constexpr std::array<std::string_view, 21> kUtteranceListKeys = {
    "PRIP",    "PIMIT",    "PSPON", "PONEWD", "PUNI",   "PPAUS",   "POMIT",
    "PPAREN",  "PCOMMENT", "PDIAL", "PCODE",  "PECODE", "PFLCODE", "PNMCODE",
    "PCSCODE", "PSTMT",    "PEXMK", "PQUES",  "PPRMT",  "PABAN",   "PINTR"};

} // namespace tavi
