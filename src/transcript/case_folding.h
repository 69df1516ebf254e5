// Simple case folding of single code points, for comparisons that ignore case
// (speaker identifiers): every letter that has a case maps to one folded form,
// so "Ω" and "ω", "K" and the Kelvin sign, "ſ" and "s" compare equal.
#pragma once

namespace tavi {

// The simple (one code point to one code point) case folding of `c`; `c`
// itself when it has none.
char32_t foldCase(char32_t c);

} // namespace tavi
