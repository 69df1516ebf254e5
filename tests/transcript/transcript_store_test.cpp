// The transcript store: what the segmented transcript's views point into.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "transcript/transcript_store.h"

namespace tavi {
namespace {

std::vector<std::string> strings(std::span<const std::string_view> views) {
    return {views.begin(), views.end()};
}

TEST(TranscriptStore, KeptPiecesOutliveTheirSourceAndNeverMove) {
    TranscriptStore store;
    std::vector<std::string_view> texts;
    std::vector<std::span<const int>> runs;
    for (int i = 0; i < 20000; ++i) { // many blocks, one piece larger than a block
        std::string text = "word" + std::to_string(i);
        texts.push_back(store.keepText(text));
        std::vector<int> run(i == 7000 ? 400000 : 3, i);
        runs.push_back(store.keep(run));
    }
    std::string big(3 << 20, 'x');
    std::string_view keptBig = store.keepText(big);
    big.assign(big.size(), 'y');
    EXPECT_EQ(keptBig, std::string(3 << 20, 'x'));
    for (int i = 0; i < 20000; ++i) {
        ASSERT_EQ(texts[i], "word" + std::to_string(i));
        ASSERT_EQ(runs[i].size(), i == 7000 ? 400000u : 3u);
        ASSERT_EQ(runs[i].front(), i);
        ASSERT_EQ(runs[i].back(), i);
    }
}

TEST(TranscriptStore, WordsKeepTheirPartsWhetherTheTextIsStableOrNot) {
    TranscriptStore store;
    std::string line = "C he+'s un\\tie/s went|go *the.";
    std::string_view stable = store.keepText(line);

    // A plain word inside the stable line: its text is a view of the line.
    WordDraft plain;
    plain.text = plain.root = stable.substr(2, 2);
    Word he = store.keepWord(plain, stable);
    EXPECT_EQ(he.text().data(), stable.data() + 2);
    EXPECT_EQ(he.root(), "he");
    EXPECT_EQ(he.parts(), nullptr);

    // A word whose text lives in a scratch buffer: copied, its views moved along.
    std::string scratch = "un\\tie/s+'s/*ed+*s|x";
    WordDraft draft;
    draft.text = scratch;
    draft.root = std::string_view(scratch).substr(0, 6);
    draft.pieces[0] = {std::string_view(scratch).substr(0, 2)};
    draft.pieces[1] = {std::string_view(scratch).substr(7, 1)};
    draft.pieces[2] = {std::string_view(scratch).substr(13, 2)};
    draft.pieces[3] = {std::string_view(scratch).substr(9, 2)};
    draft.pieces[4] = {std::string_view(scratch).substr(17, 1)};
    draft.rootIdentification = std::string_view(scratch).substr(19, 1);
    draft.flags.omittedBoundMorpheme = true;
    Word w = store.keepWord(draft, stable);
    scratch.assign(scratch.size(), '?');
    EXPECT_EQ(w.text(), "un\\tie/s+'s/*ed+*s|x");
    EXPECT_EQ(w.root(), "un\\tie");
    EXPECT_EQ(strings(w.prefixes()), std::vector<std::string>{"un"});
    EXPECT_EQ(strings(w.boundMorphemes()), std::vector<std::string>{"s"});
    EXPECT_EQ(strings(w.omittedBoundMorphemes()), std::vector<std::string>{"ed"});
    EXPECT_EQ(strings(w.clitics()), std::vector<std::string>{"'s"});
    EXPECT_EQ(strings(w.omittedClitics()), std::vector<std::string>{"s"});
    EXPECT_EQ(w.rootIdentification(), "x");
    EXPECT_TRUE(w.omittedBoundMorpheme);
    EXPECT_FALSE(w.omitted);

    // "*" alone: the root reads "*@"; a word without pieces has none.
    WordDraft star;
    star.text = stable.substr(stable.size() - 5, 1);
    star.omittedRoot = true;
    star.flags.omitted = true;
    Word omitted = store.keepWord(star, stable);
    EXPECT_EQ(omitted.root(), "*@");
    EXPECT_TRUE(omitted.boundMorphemes().empty());
    EXPECT_TRUE(omitted.rootIdentification().empty());
    EXPECT_TRUE(omitted.omitted);
}

} // namespace
} // namespace tavi
