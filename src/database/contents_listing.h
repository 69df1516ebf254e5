// "Database Contents": what a database holds, one line per group of samples
// that share context, subgroup and location, with their ages and count.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/sd2.h"

namespace tavi::db {

inline constexpr std::string_view kContentsTitle = "Database Contents";

// Age in months as years;months ("4;7"), or "<none>" when unknown.
std::string formatAge(int months);

// The lines of the listing: the title, "Database: ", "Context:  ", then the
// group lines; "Empty database file" when there are no records. Where a
// context holds several groups, a line with Subgroup "<all>" totals them.
std::vector<std::string> contentsListing(std::string_view fileName, std::string_view context,
                                         const std::vector<sd2>& records);

} // namespace tavi::db
