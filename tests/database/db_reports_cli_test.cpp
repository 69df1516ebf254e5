// The reports against a database and the normative graphs, end to end, on
// the database of three 7-year-olds with MLU 8, 10 and 12 that the tests
// build: every summary row against `tavi db select --json`, the explore
// reports' counts worked out by hand, golden text of two reports, every kind
// in every format, and the target point of a graph where it belongs.
// Set TAVI_UPDATE_GOLDEN=1 to rewrite the golden files after a deliberate change.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "../support/golden_text.h"
#include "base/file_io.h"
#include "base/text.h"
#include "peer_fixture.h"
#include "reports/db_summary_reports.h"
#include "reports/report_registry.h"

namespace {

using tavi::test::Peers;
using tavi::test::sample;

std::string withoutDate(const std::string& report) {
    return std::regex_replace(report, std::regex("TAVI [0-9.]+, [0-9-]+\n"), "TAVI, DATE\n");
}

// The statistics `tavi db select --json` gives one measure.
struct SelectStats {
    std::optional<double> value;
    double n = 0, mean = 0, sd = 0, min = 0, max = 0;
    std::string comparison;
};

std::optional<double> jsonNumber(const std::string& object, const std::string& key) {
    std::smatch m;
    if (!std::regex_search(object, m, std::regex("\"" + key + "\": (-?[0-9.e+-]+)")))
        return std::nullopt;
    return std::stod(m[1]);
}

SelectStats selectStats(const std::string& json, const std::string& id) {
    const std::size_t at = json.find("\"" + id + "\": {");
    EXPECT_NE(at, std::string::npos) << id;
    const std::string object = json.substr(at, json.find('}', at) - at + 1);
    SelectStats s;
    s.value = jsonNumber(object, "value");
    s.n = jsonNumber(object, "n").value_or(-1);
    s.mean = jsonNumber(object, "mean").value_or(0);
    s.sd = jsonNumber(object, "sd").value_or(0);
    s.min = jsonNumber(object, "min").value_or(0);
    s.max = jsonNumber(object, "max").value_or(0);
    std::smatch m;
    if (std::regex_search(object, m, std::regex("\"comparison\": \"([a-z]+)\"")))
        s.comparison = m[1];
    return s;
}

struct JsonRow {
    std::string label;
    std::vector<std::string> cells; // as written: numbers bare, texts quoted
};

std::vector<JsonRow> jsonRows(const std::string& json) {
    std::vector<JsonRow> rows;
    const std::regex row("\\{\"label\": \"([^\"]*)\", \"cells\": \\[([^\\]]*)\\]\\}");
    for (auto it = std::sregex_iterator(json.begin(), json.end(), row);
         it != std::sregex_iterator(); ++it) {
        JsonRow r{(*it)[1], {}};
        std::stringstream cells((*it)[2]);
        std::string cell;
        while (std::getline(cells, cell, ','))
            r.cells.push_back(std::string(tavi::trim(cell)));
        rows.push_back(std::move(r));
    }
    return rows;
}

void expectNear(const std::string& cell, double expected, double tolerance,
                const std::string& what) {
    char* end = nullptr;
    const double got = std::strtod(cell.c_str(), &end);
    EXPECT_TRUE(end != cell.c_str() && std::fabs(got - expected) <= tolerance)
        << what << ": cell " << cell << ", expected " << expected;
}

// Three samples whose utterances also carry an error code on every other
// word count, so error and code measures vary between samples too.
struct DbReports : ::testing::Test {
    Peers peers;
    void SetUp() override { peers.dir.write("t.tvi", sample(7, "7;1", 'M')); }
    tavi::test::TaviRun report(const std::string& kind, const std::string& flags = "") {
        return peers.run("report " + kind + " --db '" + peers.db + "' --equate none " + flags +
                         " '" + peers.path("t.tvi") + "'");
    }
};

TEST_F(DbReports, EverySummaryRowAgreesWithTheDatabaseSelection) {
    auto select = peers.select("t.tvi", "--equate none --json");
    ASSERT_EQ(select.status, 0) << select.err;
    int checked = 0;
    for (const tavi::ReportDefinition& definition : tavi::reportDefinitions()) {
        auto summary = tavi::dbSummary(definition.name);
        if (!summary)
            continue;
        auto json = report(std::string(definition.name), "--json");
        ASSERT_EQ(json.status, 0) << definition.name << json.err;
        const std::vector<JsonRow> rows = jsonRows(json.out);
        std::size_t row = 0;
        for (const tavi::DbSection& section : summary->sections)
            for (const tavi::DbLine& line : section.lines) {
                ASSERT_LT(row, rows.size()) << definition.name;
                const JsonRow& r = rows[row++];
                const SelectStats s = selectStats(select.out, line.measureId);
                const std::string what = std::string(definition.name) + " " + line.measureId;
                ASSERT_EQ(r.cells.size(), 7u) << what;
                if (s.value)
                    expectNear(r.cells[0], *s.value, 0.051, what + " value");
                else
                    EXPECT_EQ(r.cells[0], "null") << what;
                if (s.n == 0) {
                    EXPECT_EQ(r.cells[1], "null") << what;
                    continue;
                }
                expectNear(r.cells[1], s.mean, 0.005, what + " mean");
                expectNear(r.cells[2], s.sd, 0.005, what + " SD");
                expectNear(r.cells[3], s.min, 0.051, what + " min");
                expectNear(r.cells[4], s.max, 0.051, what + " max");
                expectNear(r.cells[5], s.n, 0, what + " n");
                const std::string mark =
                    s.comparison == "comparable" ? "\"\"" : "\"* " + s.comparison + "\"";
                EXPECT_EQ(r.cells[6], mark) << what;
                ++checked;
            }
        EXPECT_EQ(row, rows.size()) << definition.name << ": rows the definition does not name";
    }
    EXPECT_GT(checked, 100);
}

TEST_F(DbReports, GoldenQuickLookAndSyntaxSummary) {
    auto quick = report("quick-look");
    ASSERT_EQ(quick.status, 0) << quick.err;
    tavi::test::expectGolden(withoutDate(quick.out), "database/quick-look.txt");
    // MLU 7 against 8, 10, 12: 1.50 SD below, in words.
    EXPECT_NE(quick.out.find("MLU in Words:  7.00  1.50 SD below the database mean (10.00, SD "
                             "2.00)"),
              std::string::npos)
        << quick.out;
    auto syntax = report("db-syntax-summary");
    ASSERT_EQ(syntax.status, 0) << syntax.err;
    tavi::test::expectGolden(withoutDate(syntax.out), "database/db-syntax-summary.txt");
}

TEST_F(DbReports, ExploreWordsCodesAndPlusLines) {
    // Each sample says "go" 3 x its MLU times: 24, 30, 36 (mean 30, SD 6); the
    // transcript 21, 1.5 SD below. Nobody says "cat".
    peers.dir.write("items.lst", "; words to look for\ngo cat\n");
    auto words = report("explore-words-codes",
                        "--items 'g*' --list-file '" + peers.path("items.lst") + "' --json");
    ASSERT_EQ(words.status, 0) << words.err;
    const auto rows = jsonRows(words.out);
    ASSERT_EQ(rows.size(), 3u) << words.out;
    EXPECT_EQ(rows[0].label, "g*");
    EXPECT_EQ(rows[1].label, "go");
    EXPECT_EQ(rows[0].cells,
              (std::vector<std::string>{"21", "30", "6", "24", "36", "3", "\"* below\""}));
    EXPECT_EQ(rows[1].cells, rows[0].cells);
    EXPECT_EQ(rows[2].cells, (std::vector<std::string>{"0", "0", "0", "0", "0", "3", "\"\""}));

    // "+" lines: a database whose samples score 10, 12 and 20.
    auto scored = [](int words, const char* age, int score) {
        std::string text = sample(words, age, 'F');
        return text.insert(text.find('\n') + 1, "+ Score: " + std::to_string(score) + "\n");
    };
    peers.dir.write("s1.tvi", scored(8, "7;0", 10));
    peers.dir.write("s2.tvi", scored(8, "7;1", 12));
    peers.dir.write("s3.tvi", scored(8, "7;2", 20));
    peers.dir.write("s.tvi", scored(8, "7;1", 5));
    const std::string db = peers.path("scores.tvidb");
    ASSERT_EQ(peers.run("db create '" + db + "' --context Conversation --age-span 6").status, 0);
    ASSERT_EQ(peers
                  .run("db add '" + db + "' '" + peers.path("s1.tvi") + "' '" +
                       peers.path("s2.tvi") + "' '" + peers.path("s3.tvi") + "'")
                  .status,
              0);
    auto plus = peers.run("report explore-plus-lines --db '" + db + "' --equate none '" +
                          peers.path("s.tvi") + "'");
    ASSERT_EQ(plus.status, 0) << plus.err;
    // Grade 2 is a number too; the age "7;1" is not.
    EXPECT_NE(plus.out.find("Grade     2.00       2.00    0.00     2.00     2.00    3\n"),
              std::string::npos)
        << plus.out;
    EXPECT_NE(
        plus.out.find("Score     5.00      14.00    5.29    10.00    20.00    3    * below\n"),
        std::string::npos)
        << plus.out;
    EXPECT_EQ(plus.out.find("CA "), std::string::npos);
}

TEST_F(DbReports, TheCustomisedReportHoldsTheChosenReports) {
    auto custom = report("db-custom-pdf", "--kinds quick-look,db-errors-summary");
    ASSERT_EQ(custom.status, 0) << custom.err;
    const std::size_t quick = custom.out.find("DATABASE QUICK LOOK\n");
    const std::size_t errors = custom.out.find("DATABASE ERRORS SUMMARY\n");
    EXPECT_NE(quick, std::string::npos) << custom.out;
    EXPECT_LT(quick, errors);
    EXPECT_EQ(custom.out.find("SYNTAX/MORPHOLOGY"), std::string::npos);

    auto wrong = report("db-custom-pdf", "--kinds types");
    EXPECT_EQ(wrong.status, 2);
    auto noDb = peers.run("report quick-look '" + peers.path("t.tvi") + "'");
    EXPECT_EQ(noDb.status, 2);
    EXPECT_NE(noDb.err.find("quick-look needs --db DB"), std::string::npos) << noDb.err;
}

TEST_F(DbReports, EveryKindInEveryFormat) {
    const bool havePdftotext = std::system("command -v pdftotext >/dev/null 2>&1") == 0;
    for (const tavi::ReportDefinition& definition : tavi::reportDefinitions()) {
        if (definition.database != tavi::DatabaseUse::Required)
            continue;
        const std::string kind(definition.name);
        for (const char* ext : {".txt", ".rtf", ".pdf", ".html", ".csv", ".tsv"}) {
            const std::string out = peers.path(kind + ext);
            auto run = report(kind, "--items go -o '" + out + "'");
            ASSERT_EQ(run.status, 0) << kind << ext << run.err;
            std::string bytes;
            ASSERT_TRUE(tavi::readFile(out, bytes)) << kind << ext;
            EXPECT_GT(bytes.size(), 100u) << kind << ext;
        }
        if (havePdftotext) {
            const std::string text = peers.path(kind + ".pdf.txt");
            ASSERT_EQ(
                std::system(("pdftotext -layout '" + peers.path(kind + ".pdf") + "' '" + text + "'")
                                .c_str()),
                0);
            std::string pdf;
            tavi::readFile(text, pdf);
            EXPECT_NE(pdf.find("Database: peers.tvidb"), std::string::npos) << kind;
        }
    }
}

// The centre of every circle of radius `r` drawn in `fill`.
std::vector<std::pair<double, double>> circles(const std::string& svg, const std::string& fill,
                                               const std::string& r) {
    std::vector<std::pair<double, double>> found;
    std::size_t at = 0;
    while ((at = svg.find("<g fill=\"" + fill + "\"", at)) != std::string::npos) {
        const std::size_t end = svg.find("</g>", at);
        const std::string group = svg.substr(at, end - at);
        const std::regex circle("<circle cx=\"([-0-9.]+)\" cy=\"([-0-9.]+)\" r=\"" + r + "\"/>");
        for (auto it = std::sregex_iterator(group.begin(), group.end(), circle);
             it != std::sregex_iterator(); ++it)
            found.emplace_back(std::stod((*it)[1]), std::stod((*it)[2]));
        at = end;
    }
    return found;
}

TEST_F(DbReports, GraphsInEveryFormatWithTheTargetInPlace) {
    const std::string svgPath = peers.path("g.svg");
    auto svg = peers.run("graph MLUw --db '" + peers.db + "' --equate none -o '" + svgPath + "' '" +
                         peers.path("t.tvi") + "'");
    ASSERT_EQ(svg.status, 0) << svg.err;
    std::string text;
    ASSERT_TRUE(tavi::readFile(svgPath, text));
    // Samples aged 84, 86 and 88 months with MLU 8, 10 and 12; the target is
    // 85 months old with MLU 7: half way between the first two samples in
    // age, half a sample step below the first in value.
    auto samples = circles(text, "#4a6fa5", "4");
    auto target = circles(text, "#d62728", "7");
    ASSERT_EQ(samples.size(), 3u) << text;
    ASSERT_EQ(target.size(), 1u) << text;
    std::sort(samples.begin(), samples.end());
    const auto [x84, y8] = samples[0];
    const auto [x86, y10] = samples[1];
    EXPECT_NEAR(target[0].first, (x84 + x86) / 2, 0.01);
    EXPECT_NEAR(target[0].second, y8 + (y8 - y10) / 2, 0.01);
    EXPECT_NE(text.find(">t.tvi: 7.00<"), std::string::npos);

    for (const char* ext : {".png", ".pdf"}) {
        const std::string path = peers.path(std::string("g") + ext);
        auto run = peers.run("graph NDW --db '" + peers.db + "' -o '" + path + "' '" +
                             peers.path("t.tvi") + "'");
        ASSERT_EQ(run.status, 0) << ext << run.err;
        std::string bytes;
        ASSERT_TRUE(tavi::readFile(path, bytes));
        EXPECT_EQ(bytes.substr(1, 3), std::string(ext) == ".png" ? "PNG" : "PDF") << ext;
    }
    EXPECT_EQ(peers
                  .run("graph Nonsense --db '" + peers.db + "' -o '" + svgPath + "' '" +
                       peers.path("t.tvi") + "'")
                  .status,
              2);
    EXPECT_EQ(peers
                  .run("graph MLUw --db '" + peers.db + "' -o '" + peers.path("g.gif") + "' '" +
                       peers.path("t.tvi") + "'")
                  .status,
              2);
}

} // namespace
