// Time values of timing and pause lines: "[[h:]m:]s[.fraction]" with ":" or
// ";" as field separators, read into whole minutes and seconds with the
// notation's rounding (".50" adds a second, ".5" does not: the fraction is read
// as a whole number, deliberately).
#pragma once

#include <string_view>

namespace tavi {

struct TimeValue {
    bool valid = true;  // false when the text cannot be read as a time
    bool given = false; // false for an empty text (no time given)
    int minutes = 0;    // hours x 60 + minutes + seconds div 60
    int seconds = 0;    // 0..59, or 60 after rounding up 59 (not carried)
    int elapsed() const { return minutes * 60 + seconds; }
};

TimeValue readTimeValue(std::string_view text);

} // namespace tavi
