// Reading a sample's record values from its header lines.
#include "database/sample_info.h"

#include <cstdio>

#include "base/format.h"
#include "base/text.h"
#include "database/db_fields.h"

namespace tavi::db {

namespace {

struct Header {
    std::string_view keyword;
    std::string_view value;
};

bool headerLine(std::string_view text, Header& header) {
    if (text.empty() || text.front() != '+')
        return false;
    text.remove_prefix(1);
    std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return false;
    header.keyword = trim(text.substr(0, colon));
    header.value = trim(text.substr(colon + 1));
    return true;
}

bool readDate(std::string_view text, DateOrder order, int& year, int& month, int& day) {
    std::string value(text);
    int a = 0, b = 0, c = 0;
    char extra = 0;
    for (const char* fmt : {"%d-%d-%d%c", "%d.%d.%d%c", "%d/%d/%d%c"}) {
        if (std::sscanf(value.c_str(), fmt, &a, &b, &c, &extra) == 3) {
            month = order == DateOrder::MonthDayYear ? a : b;
            day = order == DateOrder::MonthDayYear ? b : a;
            year = c;
            return month >= 1 && month <= 12 && day >= 1 && day <= 31 && year >= 0;
        }
    }
    return false;
}

bool hasSecondGroup(std::string_view speakerLine) {
    std::string_view labels = trim(speakerLine.substr(1));
    std::size_t comma = labels.find(',');
    if (comma == std::string_view::npos)
        comma = labels.find(' ');
    return comma != std::string_view::npos && !trim(labels.substr(comma + 1)).empty();
}

} // namespace

int ageFromCa(std::string_view value) {
    std::string text(trim(value));
    int years = 0, months = 0;
    char extra = 0;
    int got = std::sscanf(text.c_str(), "%d;%d%c", &years, &months, &extra);
    if (got == 1)
        months = 0;
    if (got < 1 || got > 2 || years < 0 || months < 0 || months > 11 || years > 150)
        return -1;
    return years * 12 + months;
}

int ageFromDates(std::string_view dob, std::string_view doe, DateOrder order) {
    int by = 0, bm = 0, bd = 0, ey = 0, em = 0, ed = 0;
    if (!readDate(dob, order, by, bm, bd) || !readDate(doe, order, ey, em, ed))
        return -1;
    int years = ey - by;
    if (by < 100 && ey < 100 && years < 0)
        years += 100; // two-digit years across a century
    int months = years * 12 + (em - bm) - (ed < bd ? 1 : 0);
    return months >= 0 && months < 150 * 12 ? months : -1;
}

std::int16_t genderCode(std::string_view value) {
    value = trim(value);
    if (value.empty())
        return 0;
    switch (value.front()) {
    case 'M':
    case 'm':
        return 1;
    case 'F':
    case 'f':
        return 2;
    case 'N':
    case 'n':
        return 3;
    default:
        return 0;
    }
}

SampleInfo sampleInfo(const TranLines& lines, DateOrder order) {
    SampleInfo info;
    std::string_view ca, dob, doe;
    bool speakerLineSeen = false;
    for (const tranLine& line : lines) {
        std::string_view text = line.text;
        if (text.starts_with("-"))
            info.timed = true;
        if (startsWithIgnoreCase(text, "@begin") || startsWithIgnoreCase(text, "@end"))
            info.sections = true;
        if (text.starts_with("$") && !speakerLineSeen) {
            speakerLineSeen = true;
            info.secondSpeaker = hasSecondGroup(text);
        }
        Header h;
        if (!headerLine(text, h))
            continue;
        auto is = [&](std::string_view keyword) { return equalsIgnoreCase(h.keyword, keyword); };
        if (is("CA"))
            ca = h.value;
        else if (is("DOB"))
            dob = h.value;
        else if (is("DOE"))
            doe = h.value;
        else if (is("Gender"))
            info.gender = genderCode(h.value);
        else if (is("Grade"))
            info.grade = h.value;
        else if (is("Context"))
            info.context = h.value;
        else if (is("Subgroup"))
            info.subgroup = h.value;
        else if (is("Location"))
            info.location = h.value;
        else if (is("Ethnicity"))
            info.ethnicity = h.value;
        else if (is("Select"))
            info.select = h.value;
    }
    int age = ageFromDates(dob, doe, order);
    if (age < 0)
        age = ageFromCa(ca);
    info.ageMonths = static_cast<std::int16_t>(age);
    return info;
}

std::string deidentifiedText(std::string_view text, int ageMonths) {
    std::string out;
    out.reserve(text.size());
    bool caWritten = ageMonths < 0; // an unknown age keeps the CA lines as they are
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = text.find_first_of("\r\n", at);
        std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
        if (end != std::string_view::npos && text[end] == '\r' && next < text.size() &&
            text[next] == '\n')
            ++next;
        std::string_view line =
            text.substr(at, (end == std::string_view::npos ? text.size() : end) - at);
        std::string_view ending = text.substr(at + line.size(), next - at - line.size());
        at = next;
        std::string_view content = line;
        if (out.empty() && content.starts_with("\xEF\xBB\xBF"))
            content.remove_prefix(3);
        Header h;
        bool drop = false, isCa = false;
        if (headerLine(content, h)) {
            auto is = [&](std::string_view keyword) {
                return equalsIgnoreCase(h.keyword, keyword);
            };
            drop = is("Name") || is("ParticipantId") || is("DOB") || is("DOE");
            isCa = is("CA");
        }
        if ((drop || isCa) && ageMonths >= 0) {
            if (!caWritten) {
                out.append(line.substr(0, line.size() - content.size())); // a byte order mark
                out += format("+ CA: %d;%d", ageMonths / 12, ageMonths % 12);
                out.append(ending.empty() ? std::string_view("\n") : ending);
                caWritten = true;
            }
            continue;
        }
        if (drop) {
            out.append(line.substr(0, line.size() - content.size()));
            continue;
        }
        out.append(line);
        out.append(ending);
    }
    return out;
}

bool valuesMatch(std::string_view value, std::string_view databaseValue) {
    static constexpr std::string_view kContexts[][3] = {{"Con", "Conversation", "Conversational"},
                                                        {"Nar", "Narration", "Narrative"},
                                                        {"Expo", "Exposition", "Expository"},
                                                        {"Pers", "Persuasion", "Persuasive"},
                                                        {"Play", "Play", "Play"},
                                                        {"Fable", "Fable", "Fable"}};
    value = trim(value);
    databaseValue = trim(databaseValue);
    if (equalsIgnoreCase(value, databaseValue))
        return true;
    auto group = [](std::string_view text) {
        for (std::size_t i = 0; i < std::size(kContexts); ++i)
            for (std::string_view name : kContexts[i])
                if (equalsIgnoreCase(text, name))
                    return static_cast<int>(i);
        return -1;
    };
    int g = group(value);
    return g >= 0 && g == group(databaseValue);
}

std::string fullTranscriptPath(std::string_view name, std::string_view folder) {
    if (name.find('/') != std::string_view::npos || folder.empty())
        return std::string(name);
    std::string n(name), f(folder);
    return folder.ends_with('/') ? format("%s%s", f.c_str(), n.c_str())
                                 : format("%s/%s", f.c_str(), n.c_str());
}

std::string baseName(std::string_view path) {
    std::size_t cut = path.find_last_of("/\\");
    if (cut == std::string_view::npos)
        cut = path.find_last_of(':');
    std::string_view name = cut == std::string_view::npos ? path : path.substr(cut + 1);
    return std::string(name.substr(0, name.find('.')));
}

std::string recordKey(std::string_view base, int speaker) {
    return cutToUnits(format("%s;%d", std::string(base).c_str(), speaker), 39);
}

} // namespace tavi::db
