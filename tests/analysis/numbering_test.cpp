// The numbering of roots, surface forms and endings in a measure computation.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "analysis/utterance_facts.h"

namespace tavi {
namespace {

TEST(Numbering, EachDifferentTextOneNumberInOrderOfFirstUse) {
    Numbering n;
    std::string text = "dog";
    EXPECT_EQ(n.idOf(text), 0);
    text = "cat";
    EXPECT_EQ(n.idOf(text), 1);
    text = "dog";
    EXPECT_EQ(n.idOf(text), 0); // the caller's buffer may change: the numbering keeps its own copy
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(n.idOf("w" + std::to_string(i)), i + 2);
    EXPECT_EQ(n.idOf("cat"), 1);
    EXPECT_EQ(n.name(0), "dog");
    EXPECT_EQ(n.name(1001), "w999");
    EXPECT_EQ(n.size(), 1002);
}

} // namespace
} // namespace tavi
