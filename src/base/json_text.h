// JSON texts of the --json outputs: strings escaped as JSON
// requires, numbers as the shortest decimal that reads back to the same value.
#pragma once

#include <string>
#include <string_view>

namespace tavi {

// `s` in double quotes, with quotes, backslashes and control characters escaped.
std::string jsonString(std::string_view s);

// The shortest decimal text of `x` that reads back to the same double.
std::string jsonNumber(double x);

} // namespace tavi
