// `tavi report` for the summaries, distribution tables and the customised
// PDF on the bundled samples: golden text, the --json envelope as a JSON
// reader sees it, and the customised PDF read back. Set TAVI_UPDATE_GOLDEN=1
// to rewrite the golden files after a deliberate change, then review them.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

#include "../support/golden_text.h"
#include "../support/tavi_process.h"
#include "base/file_io.h"

namespace {

using tavi::test::expectGolden;

namespace fs = std::filesystem;

using ShellRun = tavi::test::TaviRun;

class SummaryCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_summary_cmd_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "settings");
    }
    void TearDown() override { fs::remove_all(dir_); }

    // Runs a shell command line; `tavi` stands for the program with an
    // empty settings folder of its own.
    ShellRun shell(const std::string& line) {
        const std::string tavi = std::string("'") + TAVI_BINARY + "' --settings-dir '" +
                                 (dir_ / "settings").string() + "'";
        std::string command = line;
        for (size_t at = command.find("tavi "); at != std::string::npos;
             at = command.find("tavi ", at + tavi.size()))
            command.replace(at, 4, tavi);
        command += " 2>'" + (dir_ / "stderr.txt").string() + "'";
        return tavi::test::runShell(command);
    }
    std::string stderrText() {
        std::string text;
        tavi::readFile(dir_ / "stderr.txt", text);
        return text;
    }
    static std::string sample(const char* name) { return tavi::test::sampleArgument(name); }

    fs::path dir_;
};

TEST_F(SummaryCommand, SummariesOfASampleMatchTheirGoldenText) {
    for (const char* kind :
         {"syntax-summary", "utterance-distribution", "discourse-summary", "errors-summary"}) {
        SCOPED_TRACE(kind);
        const ShellRun run =
            shell(std::string("tavi report ") + kind + " " + sample("conversation-age5"));
        EXPECT_EQ(run.status, 0) << stderrText();
        expectGolden(run.out, std::string("conversation-age5.") + kind + ".txt");
    }
}

// The envelope as Python's JSON reader sees it: the kind, the header, and
// a grid's columns and rows with numbers as numbers; the total row of each
// speaker equals the sum of its rows.
TEST_F(SummaryCommand, JsonEnvelopeParsesWithNumbersAsNumbers) {
    if (std::system("command -v python3 >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "python3 is not available";
    const std::string check =
        "import json, sys\n"
        "d = json.load(sys.stdin)\n"
        "assert d['report'] == 'utterance-distribution', d['report']\n"
        "assert d['transcript'] == 'story-age7.tvi'\n"
        "assert d['speaker'] == 1\n"
        "assert d['header']['Based on'] == 'C&I Verbal Utts'\n"
        "s = d['sections'][0]\n"
        "assert s['columns'] == ['Child Number', 'Child Percent', 'Examiner Number',"
        " 'Examiner Percent'], s['columns']\n"
        "rows = s['rows']\n"
        "assert len(rows) == 17 and rows[-1]['label'] == 'Total'\n"
        "for c in (0, 2):\n"
        "    assert all(isinstance(r['cells'][c], int) for r in rows)\n"
        "    assert sum(r['cells'][c] for r in rows[:-1]) == rows[-1]['cells'][c]\n"
        "print('ok')\n";
    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "check.py", check), tavi::WriteStatus::Ok);
    const ShellRun run = shell("tavi report utterance-distribution --json " + sample("story-age7") +
                               " | python3 '" + (dir_ / "check.py").string() + "'");
    EXPECT_EQ(run.status, 0) << stderrText();
    EXPECT_EQ(run.out, "ok\n");
}

// The tables' totals against the values `tavi measures` prints for the same
// transcript (the batch columns of the same names), on every sample and for
// both speakers.
TEST_F(SummaryCommand, TableTotalsEqualTheMeasuresOfTheSamples) {
    if (std::system("command -v python3 >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "python3 is not available";
    const std::string check =
        "import json, subprocess, sys\n"
        "tavi, sample, speaker = sys.argv[1:4]\n"
        "def run(*args):\n"
        "    return json.loads(subprocess.run([tavi, '--settings-dir', sys.argv[4], *args,\n"
        "        '--speaker', speaker, '--json', sample], check=True, capture_output=True,\n"
        "        text=True).stdout)\n"
        "m = run('measures')\n"
        "def total(kind, section, column=0):\n"
        "    return run('report', kind)['sections'][section]['rows'][-1]['cells'][column]\n"
        "column = 2 * (int(speaker) - 1)\n"
        "assert total('utterance-distribution', 0, column) == m['UtbyULTot'] == m['TotASetUt']\n"
        "assert total('turn-distribution', 0, column) == m['TurnByTLUtTot']\n"
        "assert total('turn-distribution', 1, column) == m['TurnByTLWdTot']\n"
        "assert total('maze-distribution', 0) == m['Tot#Mz']\n"
        "assert total('maze-distribution', 2) == m['MzByMLTot']\n"
        "codes = run('report', 'code-summary')['sections'][1]['rows'][0]['cells']\n"
        "assert codes == [m['ErrCodesWd'], m['ErrCodesUt'], m['ErrCodes']], codes\n"
        "print('ok')\n";
    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "totals.py", check), tavi::WriteStatus::Ok);
    for (const char* name : {"conversation-age5", "story-age7", "expository-age10"})
        for (const char* speaker : {"1", "2"}) {
            SCOPED_TRACE(std::string(name) + " speaker " + speaker);
            const ShellRun run =
                shell("python3 '" + (dir_ / "totals.py").string() + "' '" + TAVI_BINARY + "' " +
                      sample(name) + " " + speaker + " '" + (dir_ / "settings").string() + "'");
            EXPECT_EQ(run.status, 0) << stderrText();
            EXPECT_EQ(run.out, "ok\n");
        }
}

TEST_F(SummaryCommand, CustomPdfHoldsTheChosenReportsBehindItsContents) {
    const std::string pdf = (dir_ / "custom.pdf").string();
    ShellRun run = shell("tavi report custom-pdf --kinds smr,code-summary,turn-distribution -o '" +
                         pdf + "' " + sample("story-age7"));
    ASSERT_EQ(run.status, 0) << stderrText();
    std::string bytes;
    ASSERT_TRUE(tavi::readFile(pdf, bytes));
    EXPECT_EQ(bytes.rfind("%PDF", 0), 0u);
    if (std::system("command -v pdftotext >/dev/null 2>&1") == 0) {
        const std::string text = shell("pdftotext -layout '" + pdf + "' -").out;
        const size_t contents = text.find("Contents");
        ASSERT_NE(contents, std::string::npos) << text;
        EXPECT_LT(text.find("Customized Report"), contents);
        EXPECT_LT(contents, text.find("TRANSCRIPT LENGTH"));
        EXPECT_NE(text.find("Turn Length (words)"), std::string::npos);
    }

    // Printed, the customised report is one report: contents, then each.
    run = shell("tavi report custom-pdf --kinds code-summary,types " + sample("story-age7"));
    ASSERT_EQ(run.status, 0) << stderrText();
    EXPECT_LT(run.out.find("CONTENTS\nCode Summary\nSummary of Utterance Types\n"),
              run.out.find("\nCODE SUMMARY\n"));
    EXPECT_NE(run.out.find("\nSUMMARY OF UTTERANCE TYPES\n"), std::string::npos) << run.out;

    EXPECT_EQ(shell("tavi report custom-pdf --kinds smr,nonsense " + sample("story-age7")).status,
              2);
    EXPECT_NE(stderrText().find("unknown report nonsense"), std::string::npos);
}

} // namespace
