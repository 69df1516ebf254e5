// The checker's problem table: its messages as filled in, its user document
// (docs/problems.md) and its uses in the checker's sources.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "base/file_io.h"
#include "transcript/check_listing.h"
#include "transcript/problems.h"

namespace tavi {
namespace {

const std::filesystem::path kSourceDir = TAVI_SOURCE_DIR;

TEST(ProblemTable, MessagesAreFilledInPlace) {
    EXPECT_EQ(problemText(Problem::MisplacedPercent),
              "% may only be used at the beginning of a word.");
    EXPECT_EQ(problemText(Problem::IllegalCodeCharacter, '@'),
              "@ is not a legal [code] character.");
    EXPECT_EQ(problemText(Problem::MixedPauseTiming, 12, -3),
              "some pauses are timed (see line 12) and some are not timed (see line -3)");
    EXPECT_EQ(problemText(Problem::AgeMismatch, std::string("CA"), "DOB", std::string_view("DOE"),
                          std::string("MM-DD-YY")),
              "+ CA: header line contains incorrect age (current date format for +DOB and +DOE "
              "is MM-DD-YY).");
    // A filled-in text holding "%" stays as it is.
    EXPECT_EQ(problemText(Problem::UnknownSpeaker, "%s"), "invalid identifier (%s).");
    EXPECT_EQ(errCode(Problem::LongUtterancePause), -8);
    EXPECT_EQ(errCode(Problem::PauseExceedsElapsed), 136);
}

// "| E108 | `message` | ... |" -> {"E108", "message"}; other lines: empty.
std::pair<std::string, std::string> documentRow(const std::string& line) {
    std::vector<std::string> cells;
    std::string cell;
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\\' && i + 1 < line.size() && line[i + 1] == '|') {
            cell += '|';
            ++i;
        } else if (line[i] == '|') {
            cells.push_back(cell);
            cell.clear();
        } else {
            cell += line[i];
        }
    }
    if (cells.size() < 3)
        return {};
    auto trimmed = [](std::string s) {
        s.erase(0, s.find_first_not_of(' '));
        s.erase(s.find_last_not_of(' ') + 1);
        return s;
    };
    std::string code = trimmed(cells[1]);
    std::string message = trimmed(cells[2]);
    bool listed = (code.starts_with("E") || code.starts_with("Warning #")) && message.size() >= 2 &&
                  message.front() == '`' && message.back() == '`';
    if (!listed)
        return {};
    return {code, message.substr(1, message.size() - 2)};
}

// The document shows each problem as the listing prints its code ("E108",
// "Warning #3") with its message, "%%" written as "%".
TEST(ProblemTable, DocumentListsEveryProblemAndNothingElse) {
    std::string text;
    ASSERT_TRUE(readFile(kSourceDir / "docs" / "problems.md", text));
    std::vector<std::pair<std::string, std::string>> documented;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos)
            end = text.size();
        auto row = documentRow(text.substr(start, end - start));
        if (!row.first.empty())
            documented.push_back(row);
        start = end + 1;
    }

    std::vector<std::pair<std::string, std::string>> table;
    for (size_t i = 0; i < kProblems.size(); ++i) {
        auto id = static_cast<Problem>(i);
        std::string shown = formatProblem(err{errCode(id), 0, 0, ""});
        shown.erase(shown.find(" on entry"));
        std::string message(kProblems[i].format);
        for (size_t at = message.find("%%"); at != std::string::npos;
             at = message.find("%%", at + 1))
            message.erase(at, 1);
        table.emplace_back(shown, message);
    }
    std::sort(documented.begin(), documented.end());
    std::sort(table.begin(), table.end());
    EXPECT_EQ(documented, table);
}

// Every problem of the table is reported somewhere in the checker's sources.
TEST(ProblemTable, EveryProblemIsReported) {
    std::string sources;
    for (const auto& entry :
         std::filesystem::directory_iterator(kSourceDir / "src" / "transcript")) {
        std::string ext = entry.path().extension().string();
        if (ext != ".cpp" && ext != ".h")
            continue;
        std::string bytes;
        ASSERT_TRUE(readFile(entry.path(), bytes));
        sources += bytes;
    }
    auto isNameChar = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
    };
    for (const ProblemInfo& p : kProblems) {
        std::string use = "Problem::" + std::string(p.name);
        bool found = false;
        for (size_t at = sources.find(use); at != std::string::npos && !found;
             at = sources.find(use, at + 1))
            found = at + use.size() == sources.size() || !isNameChar(sources[at + use.size()]);
        EXPECT_TRUE(found) << p.name << " is never reported";
    }
}

} // namespace
} // namespace tavi
