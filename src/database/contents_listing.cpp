// The contents listing of a database.
#include "database/contents_listing.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "base/format.h"

namespace tavi::db {

namespace {

constexpr std::string_view kNone = "<none>";
constexpr std::string_view kAll = "<all>";

struct Group {
    int count = 0;
    int youngest = -1;
    int oldest = -1;

    void add(const sd2& record) {
        ++count;
        if (record.ageMonths < 0)
            return;
        if (youngest < 0 || record.ageMonths < youngest)
            youngest = record.ageMonths;
        oldest = std::max<int>(oldest, record.ageMonths);
    }
    std::string ages() const {
        if (youngest < 0)
            return std::string(kNone);
        if (youngest == oldest)
            return formatAge(youngest);
        return formatAge(youngest) + " - " + formatAge(oldest);
    }
};

std::string orNone(const std::string& text) {
    return text.empty() ? std::string(kNone) : text;
}

std::string groupLine(const std::string& context, const std::string& subgroup,
                      const std::string& location, const Group& group) {
    std::string line =
        format("     Context: %s     Subgroup: %s     Ages: %s     # Samples: %d",
               orNone(context).c_str(), subgroup.c_str(), group.ages().c_str(), group.count);
    if (!location.empty())
        line += format("     Loc: %s", location.c_str());
    return line;
}

} // namespace

std::string formatAge(int months) {
    if (months < 0)
        return std::string(kNone);
    return format("%d;%d", months / 12, months % 12);
}

std::vector<std::string> contentsListing(std::string_view fileName, std::string_view context,
                                         const std::vector<sd2>& records) {
    std::vector<std::string> lines{std::string(kContentsTitle),
                                   "Database: " + std::string(fileName),
                                   "Context:  " + std::string(context)};
    if (records.empty()) {
        lines.emplace_back("Empty database file");
        return lines;
    }
    using Key = std::tuple<std::string, std::string, std::string>;
    std::map<std::string, std::map<Key, Group>> byContext;
    std::map<std::string, Group> totals;
    for (const sd2& record : records) {
        byContext[record.context][{record.context, record.subgroup, record.location}].add(record);
        totals[record.context].add(record);
    }
    for (const auto& [recordContext, groups] : byContext) {
        for (const auto& [key, group] : groups)
            lines.push_back(
                groupLine(std::get<0>(key), orNone(std::get<1>(key)), std::get<2>(key), group));
        if (groups.size() > 1)
            lines.push_back(groupLine(recordContext, std::string(kAll), "", totals[recordContext]));
    }
    return lines;
}

} // namespace tavi::db
