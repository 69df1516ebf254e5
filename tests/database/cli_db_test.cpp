// `tavi db` end to end: the builder's messages on stderr, the list lines and
// the summary on stdout, and the exit statuses.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "db_test_util.h"

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

Outcome tavi(const tavi::test::ScratchDir& dir, const std::string& args) {
    std::string out = (dir.path() / "out.txt").string(), err = (dir.path() / "err.txt").string();
    std::string command = "cd '" + dir.path().string() + "' && '" TAVI_BINARY "' db " + args +
                          " >'" + out + "' 2>'" + err + "'";
    int status = std::system(command.c_str());
    auto slurp = [](const std::string& path) {
        std::ifstream in(path);
        std::stringstream s;
        s << in.rdbuf();
        return s.str();
    };
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, slurp(out), slurp(err)};
}

const char* kSample = "$ Child, Examiner\n+ CA: 4;7\n+ Context: Nar\n+ Subgroup: Demo\n"
                      "C once there was a cat.\nC the end.\n";

TEST(TaviDb, CreateAddListRemoveClear) {
    tavi::test::ScratchDir dir;
    dir.write("cat.tvi", kSample);
    dir.write("bad.tvi", "$ Child, Examiner\nC no end\n");
    EXPECT_EQ(tavi(dir, "create n.tvidb --context Narration").status, 0);
    EXPECT_EQ(tavi(dir, "create n.tvidb --context Narration").status, 1); // never overwritten

    Outcome added = tavi(dir, "add n.tvidb --enforce-context cat.tvi bad.tvi");
    EXPECT_EQ(added.status, 1);
    EXPECT_EQ(added.err, "bad.tvi contains errors - not stored [OK]\n");
    EXPECT_EQ(added.out, "cat;1 - Nar (Demo)\n1 records added (1 with errors)\n");

    Outcome again = tavi(dir, "add n.tvidb cat.tvi");
    EXPECT_EQ(again.err, "Duplicate record for cat;1 - not stored [OK]\n");
    EXPECT_EQ(again.out, "No records added (1 duplicate records)\n");

    Outcome listed = tavi(dir, "list n.tvidb");
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.out, "Database Contents\nDatabase: n.tvidb\nContext:  Narration\n"
                          "     Context: Nar     Subgroup: Demo     Ages: 4;7     # Samples: 1\n");

    Outcome removed = tavi(dir, "remove n.tvidb 'cat;1'");
    EXPECT_EQ(removed.status, 0);
    EXPECT_EQ(removed.err, "Remove record cat;1? [OK]\n");
    EXPECT_NE(tavi(dir, "list n.tvidb").out.find("Empty database file"), std::string::npos);

    tavi(dir, "add n.tvidb cat.tvi");
    EXPECT_EQ(tavi(dir, "clear n.tvidb").status, 0);
    EXPECT_NE(tavi(dir, "list n.tvidb").out.find("Empty database file"), std::string::npos);
}

TEST(TaviDb, RestrictedAndUsage) {
    tavi::test::ScratchDir dir;
    EXPECT_EQ(tavi(dir, "create r.tvidb --context Play --password abc").status, 0);
    Outcome refused = tavi(dir, "list r.tvidb");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "This database has restricted access. You must know the password in "
                           "order to access the data.\n");
    EXPECT_EQ(tavi(dir, "list r.tvidb --password abc").status, 0);
    EXPECT_EQ(tavi(dir, "create x.tvidb").status, 2);
    EXPECT_EQ(tavi(dir, "create y.tvidb --context Play --password ' abc'").status, 2);
    EXPECT_EQ(tavi(dir, "create y.tvidb --context Play --password " + std::string(69, 'p')).status,
              2);
    EXPECT_EQ(tavi(dir, "frobnicate x.tvidb").status, 2);
    EXPECT_EQ(tavi(dir, "add r.tvidb --password abc --speaker 3 a.tvi").status, 2);
}

} // namespace

namespace {

// Two programs adding to one database at once: the second waits for the
// first, and both records end up in a database that still opens.
TEST(TaviDb, TwoWritersAtOnceBothLandAndTheDatabaseStaysWhole) {
    tavi::test::ScratchDir dir;
    std::string bodies[] = {"C once there was a cat.\nC the end.\n",
                            "C a dog ran home.\nC he was tired.\n"};
    for (int i = 0; i < 2; ++i)
        dir.write("s" + std::to_string(i) + ".tvi",
                  std::string("$ Child, Examiner\n+ CA: 4;7\n+ Context: Nar\n") + bodies[i]);
    for (int trial = 0; trial < 4; ++trial) {
        ASSERT_EQ(tavi(dir, "create n.tvidb --context Narration").status, 0);
        const std::string add = "'" TAVI_BINARY "' db add n.tvidb ";
        const std::string both = "cd '" + dir.path().string() + "' && (" + add +
                                 "s0.tvi >a0 2>&1 & " + add +
                                 "s1.tvi >a1 2>&1 & wait %1 && wait %2)";
        EXPECT_EQ(std::system(both.c_str()), 0) << "trial " << trial;
        Outcome list = tavi(dir, "list n.tvidb");
        EXPECT_EQ(list.status, 0) << list.err;
        EXPECT_NE(list.out.find("# Samples: 2"), std::string::npos) << list.out;
        std::filesystem::remove(dir.path() / "n.tvidb");
    }
}

// The switches an add uses are kept in the database's header and hold for the
// next add, which gives no flags.
TEST(TaviDb, EnforcementSwitchesAreStoredInTheHeader) {
    tavi::test::ScratchDir dir;
    dir.write("cat.tvi", kSample);
    std::string other = kSample;
    other.replace(other.find("Demo"), 4, "Other");
    dir.write("dog.tvi", other);
    ASSERT_EQ(tavi(dir, "create n.tvidb --context Narration").status, 0);
    Outcome added = tavi(dir, "add n.tvidb --enforce-context --enforce-subgroup Demo cat.tvi");
    EXPECT_EQ(added.status, 0) << added.err;
    Outcome info = tavi(dir, "info n.tvidb");
    EXPECT_NE(info.out.find("Enforcement: YYNNN\n"), std::string::npos) << info.out;

    Outcome next = tavi(dir, "add n.tvidb dog.tvi");
    EXPECT_EQ(next.err, "Non-matching subgroup for dog;1 - stored as Demo [OK]\n");
    EXPECT_EQ(next.out, "dog;1 - Nar (Demo)\n1 records added (1 non-matching subgroup)\n");
    EXPECT_NE(tavi(dir, "list n.tvidb").out.find("# Samples: 2"), std::string::npos);
}

TEST(TaviDb, DeidentifiedAddStoresNoNameOrDates) {
    tavi::test::ScratchDir dir;
    dir.write("kim.tvi", "$ Child, Examiner\n+ Name: Kim Lee\n+ ParticipantId: K-17\n"
                         "+ DOB: 1-6-2019\n+ DOE: 3-20-2024\n+ Context: Nar\nC the end.\n");
    ASSERT_EQ(tavi(dir, "create n.tvidb --context Narration").status, 0);
    Outcome added = tavi(dir, "add n.tvidb --deidentify kim.tvi");
    EXPECT_EQ(added.status, 0) << added.err;
    std::ifstream in(dir.path() / "n.tvidb", std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(in)), {});
    for (const char* word : {"Kim", "K-17", "DOB", "DOE", "2019"})
        EXPECT_EQ(bytes.find(tavi::test::u16(word)), std::string::npos) << word;
    EXPECT_NE(bytes.find(tavi::test::u16("+ CA: 5;2")), std::string::npos);
    EXPECT_NE(tavi(dir, "list n.tvidb").out.find("Ages: 5;2"), std::string::npos);
}

TEST(TaviDb, ABlankContextIsRefused) {
    tavi::test::ScratchDir dir;
    Outcome blank = tavi(dir, "create b.tvidb --context '  '");
    EXPECT_NE(blank.status, 0);
    EXPECT_NE(blank.err.find("Missing sampling context"), std::string::npos) << blank.err;
}

} // namespace
