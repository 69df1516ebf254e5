// Header line checks: dates, ages and the required header line.
#include "transcript/header_checks.h"

#include "transcript/scoring_template.h"

#include <algorithm>

#include "base/format.h"
#include "base/text.h"

namespace tavi {

std::string DateFormat::text() const {
    return order == DateOrder::MonthDayYear ? format("MM%cDD%cYY", separator, separator)
                                            : format("DD%cMM%cYY", separator, separator);
}

namespace {

constexpr long long kMaxNumber = 1000000;
constexpr int kMaxAgeMonths = 1200;

// Reads `count` whole numbers separated by `separator` and nothing after them,
// the way "%d-%d-%d%c" reads when its "%c" finds nothing: blanks may precede
// each number, a sign is allowed.
bool readNumbers(std::string_view text, char separator, int count, long long* out) {
    size_t i = 0;
    for (int n = 0; n < count; ++n) {
        if (n > 0) {
            if (i >= text.size() || text[i] != separator)
                return false;
            ++i;
        }
        while (i < text.size() && isBlank(text[i]))
            ++i;
        bool negative = false;
        if (i < text.size() && (text[i] == '-' || text[i] == '+'))
            negative = text[i++] == '-';
        size_t digits = i;
        long long value = 0;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9')
            value = std::min(value * 10 + (text[i++] - '0'), kMaxNumber);
        if (i == digits)
            return false;
        out[n] = negative ? -value : value;
    }
    return i == text.size();
}

int fullYear(long long year) {
    if (year >= 0 && year < 50)
        return static_cast<int>(2000 + year);
    if (year >= 50 && year < 100)
        return static_cast<int>(1900 + year);
    return static_cast<int>(year);
}

} // namespace

DateStatus readDate(std::string_view text, const DateFormat& format, Date& date) {
    text = trim(text);
    long long n[3];
    if (!readNumbers(text, format.separator, 3, n)) {
        for (char other : {'-', '.', '/'})
            if (other != format.separator && readNumbers(text, other, 3, n))
                return DateStatus::WrongFormat;
        return DateStatus::Unreadable;
    }
    bool mdy = format.order == DateOrder::MonthDayYear;
    long long month = mdy ? n[0] : n[1];
    long long day = mdy ? n[1] : n[0];
    if (month < 1 || month > 12 || day < 1 || day > 31 || n[2] < 0)
        return DateStatus::WrongFormat;
    date = Date{fullYear(n[2]), static_cast<int>(month), static_cast<int>(day)};
    return DateStatus::Ok;
}

long long monthsBetween(const Date& birth, const Date& sample) {
    long long months =
        (static_cast<long long>(sample.year) - birth.year) * 12 + (sample.month - birth.month);
    if (sample.day < birth.day)
        --months;
    return months;
}

std::optional<int> readAge(std::string_view text) {
    text = trim(text);
    long long n[3] = {0, 0, 0};
    bool read = readNumbers(text, ';', 3, n) || readNumbers(text, ';', 2, n) ||
                readNumbers(text, '-', 2, n) || readNumbers(text, ';', 1, n);
    if (!read || n[0] < 0 || n[1] < 0 || n[1] > 11 || n[2] < 0 || n[2] > 31)
        return std::nullopt;
    return static_cast<int>(std::min<long long>(n[0] * 12 + n[1], kMaxNumber));
}

int checkHeaders(const std::vector<HeaderLine>& headers, const HeaderCheckOptions& options,
                 const HeaderReport& reportTo) {
    auto report = [&]<class... A>(ProblemRef<A...> p, int line, const A&... args) {
        reportTo(p.id, line, problemText(p, args...));
    };
    auto find = [&](const std::string& keyword) -> const HeaderLine* {
        for (const HeaderLine& h : headers)
            if (equalsIgnoreCase(h.keyword, keyword))
                return &h;
        return nullptr;
    };
    if (!options.required.empty() && !find(options.required))
        report(Problem::MissingHeader, 1, options.required);

    const std::string formatText = options.dateFormat.text();
    auto readDateLine = [&](const HeaderLine* h, const std::string& keyword, Date& date) -> bool {
        if (!h)
            return false;
        DateStatus status = readDate(h->value, options.dateFormat, date);
        if (status == DateStatus::Unreadable)
            report(Problem::HeaderFormat, h->line, keyword);
        else if (status == DateStatus::WrongFormat)
            report(Problem::HeaderDateFormat, h->line, keyword, formatText);
        return status == DateStatus::Ok;
    };
    const HeaderLine* dobLine = find(options.dob);
    const HeaderLine* doeLine = find(options.doe);
    Date dob, doe;
    bool haveDob = readDateLine(dobLine, options.dob, dob);
    bool haveDoe = readDateLine(doeLine, options.doe, doe);
    int age = -1;
    if (haveDob && haveDoe) {
        long long months = monthsBetween(dob, doe);
        if (months < 0 || months > kMaxAgeMonths)
            report(Problem::HeaderDatesApart, dobLine->line, options.dob, options.doe, formatText);
        else
            age = static_cast<int>(months);
    }
    const HeaderLine* caLine = find(options.ca);
    if (!caLine)
        return age;
    std::optional<int> ca = readAge(caLine->value);
    if (!ca || *ca > kMaxAgeMonths) {
        report(Problem::HeaderFormat, caLine->line, options.ca);
        return age;
    }
    if (age >= 0 && *ca != age)
        report(Problem::AgeMismatch, caLine->line, options.ca, options.dob, options.doe,
               formatText);
    return *ca;
}

void checkTemplateLines(const TemplateSet& templates, const std::vector<HeaderLine>& headers,
                        const HeaderReport& reportTo) {
    auto report = [&]<class... A>(ProblemRef<A...> p, int line, const A&... args) {
        reportTo(p.id, line, problemText(p, args...));
    };
    for (const ScoringTemplate& t : templates.all()) {
        TemplateScores scores = readTemplateScores(t, headers);
        if (!scores.present)
            continue;
        int firstLine = 0;
        for (const ComponentScore& c : scores.components)
            if (c.line && (!firstLine || c.line < firstLine))
                firstLine = c.line;
        for (const ComponentScore& c : scores.components) {
            const std::string keyword = t.keyword(*c.component);
            if (!c.line)
                report(Problem::MissingHeader, firstLine, keyword);
            else if (c.text.empty() || c.text == "?")
                report(Problem::TemplateScoreMissing, c.line, keyword);
            else if (!c.score || c.outOfRange)
                report(Problem::TemplateScoreOutOfRange, c.line, keyword, c.text,
                       c.component->minScore, c.component->maxScore);
        }
    }
}

} // namespace tavi
