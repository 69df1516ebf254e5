// Macro analysis end to end: a transcript scored with every template and
// coded for the Subordination Index, through tavi check, measures, report
// (every macro kind in every format) and si suggest.
#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

#include "base/file_io.h"
#include "support/tavi_process.h"

namespace {

namespace fs = std::filesystem;
using tavi::test::runTavi;

// NSS 3+4+2+5+3+4+3 = 24 of 35; CQ 8 of 10 right; FCB two behaviours rated,
// total 3; ONQ 2+1+2+1 = 6; ONC 2+2+1+0+2+2 = 9; ESS and PSS absent.
// SI: codes 1, 2, 1, 3, 0 on analysis-set utterances: 7 / 5 = 1.40.
constexpr const char* kScored = R"($ Child, Examiner
+ Context: Nar
+ NSS Introduction: 3
+ NSS Character Development: 4
+ NSS Mental States: 2
+ NSS Referencing: 5
+ NSS Conflict Resolution: 3
+ NSS Cohesion: 4
+ NSS Conclusion: 3
+ CQ Q1: 1
+ CQ Q2: 1
+ CQ Q3: 0
+ CQ Q4: 1
+ CQ Q5: 1
+ CQ Q6: 1
+ CQ Q7: 1
+ CQ Q8: 0
+ CQ Q9: 1
+ CQ Q10: 1
+ FCB Eye Blinking: 2
+ FCB Head Movement: 1
+ FCB Eye Gaze Shift: ?
+ FCB Facial Tension: ?
+ FCB Limb Movement: ?
+ FCB Breathing: ?
+ FCB Vocal Changes: ?
+ FCB Filler Sounds: ?
+ ONQ Story Grammar: 2
+ ONQ Sequence: 1
+ ONQ Vocabulary: 2
+ ONQ Fluency: 1
+ ONC Who: 2
+ ONC Where: 2
+ ONC Problem: 1
+ ONC Feeling: 0
+ ONC Action: 2
+ ONC Ending: 2
E tell me the story.
C a fox lost her scarf [SI-1].
C she looked for it because she was sad [SI-2].
C the crow was black [SI-1].
C she found it where the birds lived and she let them keep it [SI-3].
C the end [SI-0].
C XXX.
)";

class MacroCommand : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = fs::temp_directory_path() / ("tavi_macro_cmd_" + std::to_string(::getpid()));
        fs::remove_all(dir_);
        fs::create_directories(dir_ / "settings");
        ASSERT_EQ(tavi::writeFileAtomic(dir_ / "scored.tvi", kScored), tavi::WriteStatus::Ok);
    }
    void TearDown() override { fs::remove_all(dir_); }
    tavi::test::TaviRun tavi(const std::string& arguments) {
        return runTavi(dir_ / "settings", arguments);
    }
    std::string file(const std::string& name) const { return "'" + (dir_ / name).string() + "'"; }

    fs::path dir_;
};

TEST_F(MacroCommand, CheckWarnsOnlyAboutTheUnscoredBehaviours) {
    auto run = tavi("check " + file("scored.tvi"));
    EXPECT_NE(run.out.find("Warning #10 on entry 22: + FCB Eye Gaze Shift: header line has no "
                           "score."),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("6 warnings found."), std::string::npos) << run.out;
}

TEST_F(MacroCommand, MeasuresGiveCompositesComponentsAndSi) {
    auto run = tavi("measures " + file("scored.tvi"));
    ASSERT_EQ(run.status, 0) << run.err;
    for (const char* line : {"NSS\t24\n", "ESS\t   ---\n", "ONQ\t6\n", "ONC\t9\n", "SI\t1.40\n",
                             "CQ Total\t8\n", "NSS_MentalSt\t2\n", "FCB Total\t3\n",
                             "FCB Rated\t2\n", "FCB_Gaze\t   ---\n", "CQ_Q3\t0\n", "SI Coded\t5\n"})
        EXPECT_NE(run.out.find(line), std::string::npos) << line;
    auto json = tavi("measures --json " + file("scored.tvi"));
    EXPECT_NE(json.out.find("\"NSS_Intro\": 3"), std::string::npos);
    EXPECT_NE(json.out.find("\"FCB_Face\": null"), std::string::npos);
    // The 2nd speaker scores nothing.
    auto examiner = tavi("measures --speaker 2 " + file("scored.tvi"));
    EXPECT_NE(examiner.out.find("NSS\t   ---\n"), std::string::npos);
    EXPECT_EQ(examiner.out.find("NSS_Intro"), std::string::npos);
}

TEST_F(MacroCommand, ReportsShowScoresCompositesAndTheSiDistribution) {
    auto nss = tavi("report nss " + file("scored.tvi"));
    ASSERT_EQ(nss.status, 0) << nss.err;
    EXPECT_NE(nss.out.find("NSS Composite Score:  24 of 35"), std::string::npos) << nss.out;
    const size_t at = nss.out.find("\nReferencing ");
    ASSERT_NE(at, std::string::npos) << nss.out;
    const std::string row = nss.out.substr(at + 1, nss.out.find('\n', at + 1) - at - 1);
    EXPECT_NE(row.find(" 5 "), std::string::npos) << row;
    EXPECT_TRUE(row.ends_with(" 0-5")) << row;
    EXPECT_NE(nss.out.find("\nReferencing: New referents are introduced before pronouns"),
              std::string::npos)
        << nss.out;
    auto cq = tavi("report questions " + file("scored.tvi"));
    EXPECT_NE(cq.out.find("CQ Score:  8 of 10"), std::string::npos) << cq.out;
    auto ess = tavi("report ess " + file("scored.tvi"));
    EXPECT_NE(ess.out.find("The transcript has no Expository Scoring Scheme lines"),
              std::string::npos);
    auto si = tavi("report si " + file("scored.tvi"));
    EXPECT_NE(si.out.find("SI-1          2      40.0%"), std::string::npos) << si.out;
    EXPECT_NE(si.out.find("Total         5       100%"), std::string::npos) << si.out;
    EXPECT_NE(si.out.find("# SI Composite Score:  1.40"), std::string::npos) << si.out;
    // The Standard Measures Report shows the macro lines this transcript scores.
    auto smr = tavi("report smr " + file("scored.tvi"));
    EXPECT_NE(smr.out.find("NSS Composite Score:  24"), std::string::npos) << smr.out;
    EXPECT_NE(smr.out.find("# SI Composite Score:  1.40"), std::string::npos) << smr.out;
    EXPECT_EQ(smr.out.find("ESS Composite Score"), std::string::npos) << smr.out;
}

TEST_F(MacroCommand, EveryMacroKindWritesEveryFormat) {
    for (const char* kind : {"nss", "ess", "pss", "onq", "questions", "onc", "si"})
        for (const char* ext : {".txt", ".rtf", ".pdf", ".html", ".csv", ".tsv"}) {
            const std::string out = std::string(kind) + ext;
            auto run =
                tavi(std::string("report ") + kind + " -o " + file(out) + " " + file("scored.tvi"));
            EXPECT_EQ(run.status, 0) << kind << ext << run.err;
            EXPECT_GT(fs::file_size(dir_ / out), 0u) << kind << ext;
        }
    if (std::system("command -v pdftotext >/dev/null 2>&1") == 0) {
        ASSERT_EQ(
            std::system(("pdftotext -layout " + file("nss.pdf") + " " + file("nss.txt2")).c_str()),
            0);
        std::string text;
        tavi::readFile(dir_ / "nss.txt2", text);
        EXPECT_NE(text.find("24 of 35"), std::string::npos);
    }
    // The database versions refuse to run without a database.
    EXPECT_NE(tavi("report db-nss " + file("scored.tvi")).status, 0);
}

TEST_F(MacroCommand, PerformanceReportHasMacroAnalysisAndComprehension) {
    auto run = tavi("report performance " + file("scored.tvi"));
    ASSERT_EQ(run.status, 0) << run.err;
    for (const char* text :
         {"The Narrative Scoring Scheme was used to assess the structure and content of the "
          "speaker's narrative. The speaker's composite score was 24 out of a possible 35 points.",
          "composite score was 6 out of a possible 8 points.",
          "After listening to the story for the first time, the speaker was asked 10 "
          "comprehension questions. The speaker answered 8 of them correctly."})
        EXPECT_NE(run.out.find(text), std::string::npos) << text << "\n" << run.out;
}

// A database built from three scored samples (NSS 24, 22 and 26): the
// composite's mean and SD come from each record's stored transcript.
TEST_F(MacroCommand, DatabaseReportsCompareTheCompositeWithStoredSamples) {
    std::string scored = kScored;
    scored.replace(scored.find("+ Context: Nar"), 14, "+ Context: Nar\n+ CA: 7;2\n+ Gender: F");
    for (int introduction : {3, 1, 5}) {
        std::string sample = scored;
        sample.replace(sample.find("Introduction: 3"), 15,
                       "Introduction: " + std::to_string(introduction));
        ASSERT_EQ(
            tavi::writeFileAtomic(dir_ / ("s" + std::to_string(introduction) + ".tvi"), sample),
            tavi::WriteStatus::Ok);
    }
    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "target.tvi", scored), tavi::WriteStatus::Ok);
    ASSERT_EQ(tavi("db create " + file("n.tvidb") + " --context Nar").status, 0);
    ASSERT_EQ(tavi("db add " + file("n.tvidb") + " " + file("s1.tvi") + " " + file("s3.tvi") + " " +
                   file("s5.tvi"))
                  .status,
              0);
    auto nss = tavi("report db-nss --db " + file("n.tvidb") + " " + file("target.tvi"));
    ASSERT_EQ(nss.status, 0) << nss.err;
    EXPECT_NE(nss.out.find("Database Mean:  24.00\nDatabase SD:  2.00\n"), std::string::npos)
        << nss.out;
    auto si = tavi("report db-si --db " + file("n.tvidb") + " " + file("target.tvi"));
    EXPECT_NE(si.out.find("Database Mean:  1.40\n"), std::string::npos) << si.out;
}

TEST_F(MacroCommand, SiSuggestCodesTheUncodedUtterancesForReview) {
    ASSERT_EQ(tavi::writeFileAtomic(dir_ / "plain.tvi", "$ Child, Examiner\n"
                                                        "C the dog ran away.\n"
                                                        "C he was sad because he was lost.\n"
                                                        "C a big dog [SI-0].\n"),
              tavi::WriteStatus::Ok);
    auto run = tavi("si suggest " + file("plain.tvi") + " -o " + file("coded.tvi"));
    ASSERT_EQ(run.status, 0) << run.err;
    std::string coded;
    ASSERT_TRUE(tavi::readFile(dir_ / "coded.tvi", coded));
    EXPECT_EQ(coded, "$ Child, Examiner\n"
                     "C the dog ran away [SI-1?].\n"
                     "C he was sad because he was lost [SI-2?].\n"
                     "C a big dog [SI-0].\n");
    // Until reviewed only the confirmed code counts, and the report says so.
    auto si = tavi("report si " + file("coded.tvi"));
    EXPECT_NE(si.out.find("2 suggested SI codes await review"), std::string::npos) << si.out;
    EXPECT_NE(si.out.find("# SI Composite Score:  0.00"), std::string::npos) << si.out;
    EXPECT_EQ(tavi("si suggest").status, 2);
}

} // namespace
