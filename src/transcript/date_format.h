// The date format of "DOB" and "DOE" header lines, a setting: month-day-year
// or day-month-year, with "-", "." or "/" between the fields.
#pragma once

#include <string>

namespace tavi {

enum class DateOrder { MonthDayYear, DayMonthYear };

struct DateFormat {
    DateOrder order = DateOrder::MonthDayYear;
    char separator = '-'; // "-", "." or "/"
    // "MM-DD-YY" or "DD-MM-YY" with the separator.
    std::string text() const;
};

} // namespace tavi
