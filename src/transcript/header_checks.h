// The header checks run at the end of a transcript: the required header line,
// the "DOB" and "DOE" dates, the age in months worked out from them and its
// comparison with the "CA" line.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "transcript/date_format.h"
#include "transcript/problems.h"
#include "transcript/segmented_transcript.h"

namespace tavi {

struct HeaderCheckOptions {
    DateFormat dateFormat;
    std::string dob = "DOB";
    std::string doe = "DOE";
    std::string ca = "CA";
    std::string required; // empty: none required
};

using HeaderReport = std::function<void(Problem id, int line, std::string message)>;

// Runs the checks and returns the age in months (the "CA" value when it is
// readable, else the age from the dates), or -1 when there is none.
int checkHeaders(const std::vector<HeaderLine>& headers, const HeaderCheckOptions& options,
                 const HeaderReport& report);

class TemplateSet;

// The lines of every scoring template the transcript uses: a score outside
// the component's range, a line left unscored, a component line missing.
void checkTemplateLines(const TemplateSet& templates, const std::vector<HeaderLine>& headers,
                        const HeaderReport& report);

struct Date {
    int year = 0; // four digits; two-digit years are taken as 1950..2049
    int month = 0;
    int day = 0;
};

enum class DateStatus { Ok, Unreadable, WrongFormat };

// Reads a date in `format`; WrongFormat when it reads only with another
// separator or its day and month do not fit the order.
DateStatus readDate(std::string_view text, const DateFormat& format, Date& date);

// Whole months from `birth` to `sample` (a month is complete when the day of
// the month has been reached).
long long monthsBetween(const Date& birth, const Date& sample);

// A "CA" value in months: "years;months", "years;months;days", "years-months"
// or "years"; empty when it cannot be read.
std::optional<int> readAge(std::string_view text);

} // namespace tavi
