// A reference database that `tavi db` builds from transcripts written here:
// three 7-year-olds whose MLU in words is 8, 10 and 12 (mean 10, SD 2), and
// the transcripts to compare with it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "db_test_util.h"
#include "support/tavi_process.h"

namespace tavi::test {

// Three child utterances of `words` words each, so MLUw is `words`; the
// examiner asks nothing. Age given as CA.
inline std::string sample(int words, const std::string& age, char gender, int utterances = 3) {
    std::string text = "$ Child, Examiner\n+ CA: " + age + "\n+ Gender: " + gender +
                       "\n+ Grade: 2\n+ Subgroup: Demo\n";
    for (int u = 0; u < utterances; ++u) {
        text += "C";
        for (int w = 0; w < words; ++w)
            text += " go";
        text += ".\nE ok.\n";
    }
    return text;
}

// A database of three 7-year-olds with MLU 8, 10 and 12 (mean 10, SD 2).
struct Peers {
    ScratchDir dir;
    std::string db;
    Peers() {
        dir.write("a.tvi", sample(8, "7;0", 'M'));
        dir.write("b.tvi", sample(10, "7;2", 'F'));
        dir.write("c.tvi", sample(12, "7;4", 'M'));
        db = (dir.path() / "peers.tvidb").string();
        EXPECT_EQ(run("db create '" + db + "' --context Conversation --age-span 6").status, 0);
        EXPECT_EQ(run("db add '" + db + "' '" + path("a.tvi") + "' '" + path("b.tvi") + "' '" +
                      path("c.tvi") + "'")
                      .status,
                  0);
    }
    std::string path(const std::string& name) const { return (dir.path() / name).string(); }
    tavi::test::TaviRun run(const std::string& args) const { return runTavi(dir.path(), args); }
    tavi::test::TaviRun select(const std::string& transcript, const std::string& flags) const {
        return run("db select '" + db + "' '" + path(transcript) + "' " + flags);
    }
};

} // namespace tavi::test
