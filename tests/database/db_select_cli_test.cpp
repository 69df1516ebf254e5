// `tavi db select` and `tavi report smr --db` end to end, on databases that
// `tavi db` builds from transcripts written here: each sample's MLU is the
// length of its utterances, so the statistics are known exactly.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "peer_fixture.h"

namespace {

using tavi::test::Peers;
using tavi::test::sample;

std::string measureJson(const std::string& json, const std::string& id) {
    std::size_t at = json.find("\"" + id + "\": {");
    if (at == std::string::npos)
        return "";
    return json.substr(at, json.find('}', at) - at + 1);
}

TEST(DbSelect, StatisticsAndComparisonsAtTheEdges) {
    Peers peers;
    peers.dir.write("t12.tvi", sample(12, "7;1", 'M'));
    peers.dir.write("t16.tvi", sample(16, "7;1", 'M'));
    peers.dir.write("t17.tvi", sample(17, "7;1", 'M'));

    auto at = peers.select("t12.tvi", "--equate none --json");
    ASSERT_EQ(at.status, 0) << at.err;
    EXPECT_NE(at.out.find("\"records\": 3, \"selected\": 3"), std::string::npos) << at.out;
    EXPECT_NE(at.out.find("\"criteria\": \"Age +/- 6 months (6;7 - 7;7)\""), std::string::npos);
    EXPECT_EQ(
        measureJson(at.out, "MLUw"),
        "\"MLUw\": {\"value\": 12, \"n\": 3, \"mean\": 10, \"sd\": 2, \"min\": 8, \"max\": 12, "
        "\"z\": 1, \"comparison\": \"above\", \"distance\": \"1.00 SD\"}");
    // Every sample has 3 utterances: SD 0, comparable, no z.
    EXPECT_EQ(
        measureJson(at.out, "TotNumUt"),
        "\"TotNumUt\": {\"value\": 3, \"n\": 3, \"mean\": 3, \"sd\": 0, \"min\": 3, \"max\": 3, "
        "\"z\": null, \"comparison\": \"comparable\", \"distance\": null}");

    EXPECT_NE(measureJson(peers.select("t16.tvi", "--equate none --json").out, "MLUw")
                  .find("\"z\": 3, \"comparison\": \"above\", \"distance\": \"3.00 SD\""),
              std::string::npos);
    EXPECT_NE(measureJson(peers.select("t17.tvi", "--equate none --json").out, "MLUw")
                  .find("\"z\": 3.5, \"comparison\": \"above\", \"distance\": \"more than 3 SD\""),
              std::string::npos);
    // A wider interval: the same value is comparable.
    EXPECT_NE(
        measureJson(peers.select("t12.tvi", "--equate none --json --sd-interval 1.5").out, "MLUw")
            .find("\"comparison\": \"comparable\""),
        std::string::npos);

    auto text = peers.select("t17.tvi", "--equate none");
    EXPECT_EQ(text.status, 0);
    EXPECT_NE(text.out.find("Database: peers.tvidb     Sampling context: Conversation\n"
                            "SELECT DATABASE SAMPLES - Age +/- 6 months (6;7 - 7;7)\n"
                            "3/3 samples selected\n"
                            "Entire transcript (regardless of length)\nSD interval: 1\n"),
              std::string::npos)
        << text.out;
    EXPECT_NE(text.out.find("\nMLUw\t17.00\t3\t10.00\t2.00\t8.00\t12.00\t3.50\tabove (more than "
                            "3 SD)\n"),
              std::string::npos);
}

TEST(DbSelect, SelectionCriteriaAndOneSample) {
    Peers peers;
    peers.dir.write("t.tvi", sample(9, "7;1", 'F'));
    // Age bounds are inclusive: 7;0 and 7;4 lie at the ends of 7;0 - 7;4.
    auto range = peers.select("t.tvi", "--equate none --age-range \'7;4-7;0\' --json");
    EXPECT_NE(range.out.find("\"criteria\": \"Age 7;0 - 7;4\", \"records\": 3, \"selected\": 3"),
              std::string::npos)
        << range.out << range.err;
    auto narrow = peers.select("t.tvi", "--equate none --age-range \'7.1-7;4\' --json");
    EXPECT_NE(narrow.out.find("\"selected\": 2"), std::string::npos) << narrow.out;

    // One sample: its value is the mean, SD 0, comparable.
    auto one = peers.select("t.tvi", "--equate none --gender F --json");
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(
        measureJson(one.out, "MLUw"),
        "\"MLUw\": {\"value\": 9, \"n\": 1, \"mean\": 10, \"sd\": 0, \"min\": 10, \"max\": 10, "
        "\"z\": null, \"comparison\": \"comparable\", \"distance\": null}");

    // A gender other than the target's is warned about and used.
    auto boys = peers.select("t.tvi", "--equate none --gender M --json");
    EXPECT_EQ(boys.status, 0);
    EXPECT_NE(boys.err.find("Warning: Selected gender does not match target speaker\n"),
              std::string::npos);
    EXPECT_NE(boys.out.find("\"selected\": 2"), std::string::npos);

    auto none = peers.select("t.tvi", "--grade 5");
    EXPECT_EQ(none.status, 1);
    EXPECT_EQ(none.out, "");
    EXPECT_EQ(none.err, "No samples match the criteria you selected.\n");

    auto bad = peers.select("t.tvi", "--age-span 61");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.err, "Enter an age plus or minus value between 1 and 60.\n");
    EXPECT_EQ(peers.select("t.tvi", "--equate sideways").status, 2);
}

TEST(DbSelect, EquatingTotalWordsAndZeroWords) {
    Peers peers;
    // 6 words: each sample is analysed up to 6 total words (its first utterance).
    peers.dir.write("short.tvi", sample(6, "7;1", 'M', 1));
    auto words = peers.select("short.tvi", "--json");
    EXPECT_NE(words.out.find("\"equating\": \"Same number of total words (6 NTW)\""),
              std::string::npos)
        << words.out << words.err;
    EXPECT_NE(measureJson(words.out, "TotASetUt").find("\"mean\": 1,"), std::string::npos)
        << measureJson(words.out, "TotASetUt");

    // No words at all: total-words equating cannot be used, nor any other.
    peers.dir.write("silent.tvi", "$ Child, Examiner\n+ CA: 7;1\nC XXX.\nE ok.\n");
    auto silent = peers.select("silent.tvi", "--json");
    EXPECT_EQ(silent.status, 0) << silent.err;
    EXPECT_EQ(silent.err, "No methods available - using all matched samples\n");
    EXPECT_NE(silent.out.find("\"equating\": \"Entire transcript (regardless of length)\""),
              std::string::npos);
}

TEST(DbSelect, ManyTranscriptsToCsvAndLeavingOneOut) {
    Peers peers;
    const std::string csv = peers.path("study.csv");
    auto run =
        peers.run("db select '" + peers.db + "' '" + peers.path("a.tvi") + "' '" +
                  peers.path("c.tvi") + "' --equate none --exclude-self --csv '" + csv + "'");
    ASSERT_EQ(run.status, 0) << run.err;
    std::ifstream in(csv);
    std::stringstream s;
    s << in.rdbuf();
    const std::string file = s.str();
    EXPECT_EQ(file.rfind("\xEF\xBB\xBF"
                         "File,Speaker,Samples,TotNumUt,TotNumUt z,TotNumUt comparison,",
                         0),
              0u);
    // a (MLU 8) against b and c (10, 12: mean 11, SD 1.41): below.
    EXPECT_NE(file.find(peers.path("a.tvi") + ",1,2,3,,comparable,"), std::string::npos) << file;
    auto a = peers.select("a.tvi", "--equate none --exclude 'b;1' --exclude 'c;1' --json");
    EXPECT_NE(a.out.find("\"selected\": 1"), std::string::npos);
    EXPECT_EQ(peers
                  .run("db select '" + peers.db + "' '" + peers.path("a.tvi") + "' '" +
                       peers.path("c.tvi") + "'")
                  .status,
              2); // several transcripts need --csv
}

TEST(ReportSmrDb, DatabaseColumnsMarkAndSources) {
    Peers peers;
    peers.dir.write("t.tvi", sample(13, "7;1", 'M'));
    auto report =
        peers.run("report smr --db '" + peers.db + "' --equate none '" + peers.path("t.tvi") + "'");
    ASSERT_EQ(report.status, 0) << report.err;
    EXPECT_NE(report.out.find("Database: peers.tvidb     Sampling context: Conversation\n"
                              "SELECT DATABASE SAMPLES - Age +/- 6 months (6;7 - 7;7)\n"
                              "3/3 samples selected\n"),
              std::string::npos)
        << report.out;
    EXPECT_NE(report.out.find("# MLU in Words:  (13.00)     10.00     2.00  *\n"),
              std::string::npos);
    EXPECT_NE(report.out.find("  Total Utterances:  (3)     3.00     0.00\n"), std::string::npos);
    EXPECT_NE(report.out.find("* Value at or beyond 1 SD from the database mean\n"),
              std::string::npos);
    EXPECT_EQ(
        peers.run("report types --db '" + peers.db + "' '" + peers.path("t.tvi") + "'").status, 2);
}

} // namespace
