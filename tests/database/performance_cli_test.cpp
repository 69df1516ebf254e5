// `tavi report performance` and `tavi report goals` against a database that
// `tavi db` builds here (MLU 8, 10 and 12): golden reports for a transcript
// below, within and above its peers, and the report without a database.
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "peer_fixture.h"
#include "reports/performance_report.h"

namespace {

using tavi::test::Peers;
using tavi::test::sample;

std::string golden(const std::string& name) {
    std::ifstream in(std::string(TAVI_TEST_DATA_DIR) + "/reports/performance/" + name);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

// The date of the run is the one line that changes.
std::string withoutDate(const std::string& report) {
    return std::regex_replace(report, std::regex("TAVI [0-9.]+, [0-9-]+\n"), "TAVI, DATE\n");
}

struct Case {
    const char* name;
    int words;
};

TEST(PerformanceReport, BelowWithinAndAboveTheDatabase) {
    Peers peers;
    for (Case c : {Case{"below", 7}, Case{"within", 10}, Case{"above", 13}}) {
        const std::string file = std::string(c.name) + ".tvi";
        peers.dir.write(file, sample(c.words, "7;1", 'M'));
        auto report = peers.run("report performance --db '" + peers.db + "' --equate none '" +
                                peers.path(file) + "'");
        ASSERT_EQ(report.status, 0) << report.err;
        EXPECT_EQ(withoutDate(report.out), golden(std::string(c.name) + ".txt")) << c.name;
    }
}

TEST(PerformanceReport, WithoutADatabaseAndTheGoalBank) {
    Peers peers;
    peers.dir.write("t.tvi", sample(7, "7;1", 'M'));
    auto plain = peers.run("report performance '" + peers.path("t.tvi") + "'");
    ASSERT_EQ(plain.status, 0) << plain.err;
    EXPECT_EQ(plain.out, golden("no-database.txt"));

    auto goals = peers.run("report goals --db '" + peers.db + "' --equate none '" +
                           peers.path("t.tvi") + "'");
    ASSERT_EQ(goals.status, 0) << goals.err;
    // MLU 7 against mean 10, SD 2: the target is one SD interval below the mean.
    EXPECT_NE(goals.out.find("Given a language sample, the speaker will increase mean length of "
                             "utterance in words from 7.00 to 8.00.\n"),
              std::string::npos)
        << goals.out;
    auto open = peers.run("report goals '" + peers.path("t.tvi") + "'");
    EXPECT_NE(open.out.find("the speaker will increase mean length of utterance in words from "
                            "7.00 to ____.\n"),
              std::string::npos)
        << open.out;
}

} // namespace

namespace tavi {
namespace {

TEST(PerformanceWords, CountsAsWordsUpToTen) {
    EXPECT_EQ(timesWord(0), "zero times");
    EXPECT_EQ(timesWord(1), "once");
    EXPECT_EQ(timesWord(2), "twice");
    EXPECT_EQ(timesWord(10), "ten times");
    EXPECT_EQ(timesWord(11), "11 times");
}

} // namespace
} // namespace tavi
