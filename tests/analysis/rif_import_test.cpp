// Importing root identification words from text: the line form, the cuts at
// 39 and 79 characters and their messages, and the closing count.
#include <gtest/gtest.h>

#include "analysis/rif_import.h"
#include "base/progress.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

TEST(RifImport, AddsAndReplacesWords) {
    RifWords words{{"went", {"went", {"old"}, {}}}};
    test::RecordingPrompter p;
    NoProgress progress;
    int n = importRifWords("went:go, walk :went\n\nran:run:\n", words, p, progress);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(words["went"], (RifEntry{"went", {"go", "walk"}, {"went"}}));
    EXPECT_EQ(words["ran"], (RifEntry{"ran", {"run"}, {}}));
    EXPECT_EQ(p.messages, std::vector<std::string>{"2 words added or replaced"});
}

TEST(RifImport, CutsLongTextsAndReports) {
    RifWords words;
    test::RecordingPrompter p;
    NoProgress progress;
    const std::string word40(40, 'w'), def80(80, 'd');
    importRifWords(word40 + ":" + def80 + ":" + def80 + "\n", words, p, progress);
    const std::string word39(39, 'w');
    ASSERT_EQ(words.size(), 1u);
    EXPECT_EQ(words.begin()->first, word39);
    EXPECT_EQ(words.begin()->second.definitions[0].size(), 79u);
    EXPECT_EQ(p.messages, (std::vector<std::string>{
                              "Word '" + word39 + "' truncated to 39 characters",
                              "Definition for '" + word39 + "' truncated to 79 characters",
                              "Replacement for '" + word39 + "' truncated to 79 characters",
                              "1 words added or replaced"}));
}

TEST(RifImport, BadLineEndsTheImport) {
    RifWords words;
    test::RecordingPrompter p;
    NoProgress progress;
    EXPECT_EQ(importRifWords("a:b:c\nno colons here\nd:e:f\n", words, p, progress), 1);
    EXPECT_EQ(p.messages,
              (std::vector<std::string>{
                  "Incorrect file format: use 'word:defn1,defn2,defnN:replace1,replace2,replaceN'",
                  "1 words added or replaced"}));
    RifWords none;
    test::RecordingPrompter q;
    importRifWords(":x:y\n", none, q, progress);
    EXPECT_EQ(q.messages.back(), "No words added or replaced");
}

} // namespace
} // namespace tavi
