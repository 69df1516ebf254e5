// The explore reports' counting: words by root or spoken form, endings by
// "*", codes with and without their text after ":", one speaker's
// utterances only; "+" line numbers; word list files.
#include <gtest/gtest.h>

#include "analysis/explore_items.h"
#include "session/analysis_session.h"

namespace tavi {
namespace {

SegmentedTranscript segmented(std::string_view text) {
    AnalysisContext context;
    context.check.keepSegmentation = true;
    AnalysisRequest request;
    request.measure = false;
    return analyseText(text, context, request).check.segmented;
}

std::vector<int> utterancesOf(const SegmentedTranscript& t, int group) {
    std::vector<int> indices;
    for (const Utterance& u : t.utterances)
        if (u.speakerGroup == group)
            indices.push_back(u.index);
    return indices;
}

TEST(ExploreItems, WordsCodesAndOneSpeaker) {
    const SegmentedTranscript t = segmented("$ Child, Examiner\n"
                                            "+ Score: 12 of 20\n"
                                            "+ Grade: 2\n"
                                            "+ CA: 5;2\n"
                                            "C The dog/s goed[EW:went] home.\n"
                                            "C (the um) Dog go/ing [EW] fast.\n"
                                            "E the dog.\n");
    const std::vector<int> child = utterancesOf(t, 0);
    ASSERT_EQ(child.size(), 2u);
    EXPECT_EQ(countItem(t, child, "dog"), 2);  // "dog/s" by its root, "Dog" ignoring case
    EXPECT_EQ(countItem(t, child, "dogs"), 1); // the spoken form
    EXPECT_EQ(countItem(t, child, "the"), 1);  // the maze's "the" is not counted
    EXPECT_EQ(countItem(t, child, "go*"), 2);  // goed, going
    EXPECT_EQ(countItem(t, child, "[EW]"), 2); // with and without the text after ":"
    EXPECT_EQ(countItem(t, child, "[ew:went]"), 1);
    EXPECT_EQ(countItem(t, child, "cat"), 0);
    EXPECT_EQ(countItem(t, utterancesOf(t, 1), "dog"), 1);

    EXPECT_EQ(plusLineValue(t, "score"), 12.0);
    EXPECT_EQ(plusLineValue(t, "Grade"), 2.0);
    EXPECT_EQ(plusLineValue(t, "Missing"), std::nullopt);
    // Only lines whose whole value is a number are offered by default.
    EXPECT_EQ(numericPlusLines(t), (std::vector<std::string>{"Grade"}));
}

TEST(ExploreItems, WordListFiles) {
    EXPECT_EQ(wordListFileItems("; my list\r\ndog cat,  [EW]\n\n  go*\t, the\n"),
              (std::vector<std::string>{"dog", "cat", "[EW]", "go*", "the"}));
    EXPECT_TRUE(wordListFileItems("; only a note\n").empty());
}

} // namespace
} // namespace tavi
