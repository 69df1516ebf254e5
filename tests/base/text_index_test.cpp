// The text index keeps views of the texts it numbers: a text is found by its
// bytes wherever they lie, and one text under two tags is two entries.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text_index.h"

namespace tavi {
namespace {

TEST(TextIndex, OneNumberPerTextAndTagAcrossGrowth) {
    std::vector<std::string> texts;
    for (int i = 0; i < 5000; ++i)
        texts.push_back(i % 3 ? "w" + std::to_string(i) : "a longer word " + std::to_string(i));
    TextIndex index;
    for (int i = 0; i < 5000; ++i) {
        EXPECT_FALSE(index.find(texts[i], false));
        EXPECT_EQ(index.insert(texts[i], false), static_cast<std::uint32_t>(2 * i));
        EXPECT_FALSE(index.find(texts[i], true));
        EXPECT_EQ(index.insert(texts[i], true), static_cast<std::uint32_t>(2 * i + 1));
    }
    for (int i = 4999; i >= 0; --i) {
        const std::string copy = texts[i]; // found by its text, not by where it lies
        EXPECT_EQ(index.find(copy, i % 2 == 1), static_cast<std::uint32_t>(2 * i + i % 2));
        EXPECT_EQ(index.text(static_cast<std::uint32_t>(2 * i)).data(), texts[i].data());
    }
    EXPECT_FALSE(index.find(""));
    EXPECT_EQ(index.insert(""), 10000u);
    EXPECT_EQ(index.find(""), 10000u);
    EXPECT_EQ(index.size(), 10001u);
}

} // namespace
} // namespace tavi
