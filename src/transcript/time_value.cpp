// Reading time values of timing and pause lines.
#include "transcript/time_value.h"

#include <array>

#include "base/text.h"

namespace tavi {

namespace {

constexpr size_t kMaxTimeText = 79;
constexpr long long kFieldLimit = 10000000; // keeps arithmetic far from overflow

long long readField(std::string_view digits) {
    long long value = 0;
    for (char c : digits) {
        value = value * 10 + (c - '0');
        if (value > kFieldLimit)
            value = kFieldLimit;
    }
    return value;
}

bool isTimeRunChar(char c) {
    return (c >= '0' && c <= '9') || c == ':' || c == ';' || c == '.';
}

} // namespace

TimeValue readTimeValue(std::string_view text) {
    TimeValue t;
    text = trim(text);
    if (text.size() > kMaxTimeText)
        text = text.substr(0, kMaxTimeText);
    if (text.empty())
        return t;
    t.given = true;
    size_t runEnd = 0;
    while (runEnd < text.size() && isTimeRunChar(text[runEnd]))
        ++runEnd;
    std::string_view run = text.substr(0, runEnd);

    // Fields between separators, and the fraction after the ".".
    std::array<std::string_view, 4> fields;
    std::string_view fraction;
    int separators = 0;
    int dots = 0;
    bool digits = false;
    size_t fieldStart = 0;
    for (size_t i = 0; i < run.size(); ++i) {
        char c = run[i];
        if (c == ':' || c == ';') {
            if (dots > 0 || ++separators > 3) {
                t.valid = false;
                return t;
            }
            fields[separators - 1] = run.substr(fieldStart, i - fieldStart);
            fieldStart = i + 1;
        } else if (c == '.') {
            if (++dots > 1) {
                t.valid = false;
                return t;
            }
            fields[separators] = run.substr(fieldStart, i - fieldStart);
            fieldStart = i + 1;
        } else {
            digits = true;
        }
    }
    if (!digits || run.back() == ':' || run.back() == ';') {
        t.valid = false;
        return t;
    }
    if (dots > 0)
        fraction = run.substr(fieldStart);
    else
        fields[separators] = run.substr(fieldStart);

    long long hours = 0, minutes = 0, seconds = 0, fourth = 0;
    switch (separators) {
    case 0:
        seconds = readField(fields[0]);
        break;
    case 1:
        minutes = readField(fields[0]);
        seconds = readField(fields[1]);
        break;
    default:
        hours = readField(fields[0]);
        minutes = readField(fields[1]);
        seconds = readField(fields[2]);
        if (separators == 3)
            fourth = readField(fields[3]);
        break;
    }
    minutes += hours * 60 + seconds / 60;
    seconds %= 60;
    if (fourth >= 15)
        ++seconds;
    if (!fraction.empty() && readField(fraction) >= 50)
        ++seconds;
    if (minutes > kFieldLimit)
        minutes = kFieldLimit;
    t.minutes = static_cast<int>(minutes);
    t.seconds = static_cast<int>(seconds);
    return t;
}

} // namespace tavi
