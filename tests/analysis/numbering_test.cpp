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

// The spelling table keeps views of the words' texts; plain and linked
// spellings of one text are two spellings.
TEST(SpellingIndex, OneNumberPerSpellingAndLinkingAcrossGrowth) {
    std::vector<std::string> texts;
    for (int i = 0; i < 5000; ++i)
        texts.push_back("w" + std::to_string(i));
    SpellingIndex index;
    bool added = false;
    for (int i = 0; i < 5000; ++i) {
        EXPECT_EQ(index.find(texts[i], false, added), static_cast<std::uint32_t>(2 * i));
        EXPECT_TRUE(added);
        EXPECT_EQ(index.find(texts[i], true, added), static_cast<std::uint32_t>(2 * i + 1));
        EXPECT_TRUE(added);
    }
    for (int i = 4999; i >= 0; --i) {
        const std::string copy = texts[i]; // found by its text, not by where it lies
        EXPECT_EQ(index.find(copy, i % 2 == 1, added), static_cast<std::uint32_t>(2 * i + i % 2));
        EXPECT_FALSE(added);
    }
    EXPECT_EQ(index.find("", false, added), 10000u);
    EXPECT_TRUE(added);
    EXPECT_EQ(index.find("", false, added), 10000u);
    EXPECT_FALSE(added);
}

} // namespace
} // namespace tavi
