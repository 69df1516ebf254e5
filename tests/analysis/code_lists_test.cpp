// Code lists: parsing both list forms, matching, and the validity check.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "analysis/code_lists.h"

namespace tavi {
namespace {

TEST(CodeLists, ParseMatchAndValidate) {
    EXPECT_EQ(parseCodeItems("[EW][ eo* ]"), (std::vector<std::string>{"EW", "eo*"}));
    EXPECT_EQ(parseCodeItems("EW, EO*,, "), (std::vector<std::string>{"EW", "EO*"}));
    EXPECT_TRUE(codeMatchesItem("EW:went", "ew"));
    EXPECT_FALSE(codeMatchesItem("EWX", "EW"));
    EXPECT_TRUE(codeMatchesItem("EWX:a", "EW*"));
    EXPECT_FALSE(codeMatchesItem("XEW", "EW*"));
    CodeMatcher m(CodeLists{}.errors);
    EXPECT_TRUE(m.matches("EO:goed"));
    EXPECT_FALSE(m.matches("NM"));
    EXPECT_TRUE(isValidCodeList("EW, EO*"));
    EXPECT_TRUE(isValidCodeList("[EW][EO*]"));
    EXPECT_TRUE(isValidCodeList(""));
    EXPECT_FALSE(isValidCodeList("E W"));
    EXPECT_FALSE(isValidCodeList("[EW"));
    EXPECT_FALSE(isValidCodeList("[E[W]]"));
    EXPECT_FALSE(isValidCodeList("EW=x"));
    EXPECT_FALSE(isValidCodeList("a@b"));
}

// Insert Code lists may describe their codes; lists saved before that (bare
// codes, bracketed or comma-separated) read the same as before.
TEST(CodeLists, DescribedCodesReadOldAndNewForms) {
    using D = std::vector<DescribedCode>;
    EXPECT_EQ(parseDescribedCodes("[EW][EO*]"), (D{{"EW", ""}, {"EO*", ""}}));
    EXPECT_EQ(parseDescribedCodes("EW, EO"), (D{{"EW", ""}, {"EO", ""}}));
    EXPECT_EQ(parseDescribedCodes(" [EW] error at word level; [ EO ]omitted word,[PRO]"),
              (D{{"EW", "error at word level"}, {"EO", "omitted word"}, {"PRO", ""}}));
    EXPECT_EQ(parseDescribedCodes("[EW] unclosed [EO"), (D{{"EW", "unclosed"}}));
    EXPECT_EQ(parseDescribedCodes(""), D{});

    const D codes{{"EW", "error [word] level"}, {"EO", ""}, {"", "dropped"}, {"PRO", "pronoun"}};
    const std::string text = describedCodeListText(codes);
    EXPECT_EQ(text, "[EW] error (word) level [EO][PRO] pronoun");
    EXPECT_EQ(parseDescribedCodes(text),
              (D{{"EW", "error (word) level"}, {"EO", ""}, {"PRO", "pronoun"}}));
}

// A matcher keeps its items in the form it tests them in; it must agree with
// matching each item on its own, whatever the case, endings and ":" parts.
TEST(CodeLists, MatcherAgreesWithItemByItemMatching) {
    std::mt19937 rng(7);
    const std::string letters = "EeWwOo*:x";
    auto text = [&](size_t most) {
        std::string t;
        for (size_t n = rng() % (most + 1); n > 0; --n)
            t += letters[rng() % letters.size()];
        return t;
    };
    for (int round = 0; round < 2000; ++round) {
        std::string list;
        for (int items = static_cast<int>(rng() % 4); items > 0; --items)
            list += "[" + text(3) + "]";
        const CodeMatcher matcher(list);
        for (int k = 0; k < 10; ++k) {
            const std::string code = text(5);
            const bool each =
                std::any_of(matcher.items().begin(), matcher.items().end(),
                            [&](const std::string& item) { return codeMatchesItem(code, item); });
            EXPECT_EQ(matcher.matches(code), each) << list << " " << code;
        }
    }
}

} // namespace
} // namespace tavi
