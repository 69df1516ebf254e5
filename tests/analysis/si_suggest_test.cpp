// Subordination Index suggestions against clause counts made by hand. Each
// clause has a subject and a main verb; a verb after "to" that follows a
// verb shares its clause ("wanted to go"), an auxiliary shares its verb's
// clause, and a form of "be" with no verb after it is the clause's verb.
#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

#include "analysis/gc_dictionary.h"
#include "analysis/si_suggest.h"
#include "support/recording_prompter.h"
#include "transcript/checker.h"

namespace tavi {
namespace {

const VerbList& verbs() {
    static const VerbList list = [] {
        VerbList v;
        EXPECT_TRUE(VerbList::loadFile(std::string(TAVI_SOURCE_DATA_DIR) + "/verbs.txt", v));
        return v;
    }();
    return list;
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> out;
    for (std::string w; in >> w;)
        out.push_back(w);
    return out;
}

struct Counted {
    const char* words; // lower case, clitics spelt out
    int clauses;       // counted by hand
};

// 34 utterances from story retells and conversation, counted by hand.
constexpr Counted kCounted[] = {
    {"once upon a time there was a fox", 1},
    {"and her name was pip", 1},
    {"and she had a red scarf that her grandma made", 2},
    {"it was her favorite thing", 1},
    {"and one day it was really windy", 1},
    {"and the wind blew her scarf away", 1},
    {"it went up in the sky", 1},
    {"but it did not come back", 1},
    {"so she was sad", 1},
    {"and she started to look for it", 1},
    {"first she saw a crow", 1},
    {"and she asked the crow if he saw her scarf", 2},
    {"the crow said that he saw something red", 2},
    {"so she went to the river", 1},
    {"there was a turtle on a rock", 1},
    {"the turtle was sleeping", 1},
    {"she woke him up and asked him", 2},
    {"he did not know where it was", 2},
    {"then she found a bear who was eating honey", 2},
    {"the bear told her to look in the tree", 2},
    {"she climbed up the tree because she wanted to see", 2},
    {"and there were baby birds in a nest", 1},
    {"they were using the scarf as a blanket", 1},
    {"she let them keep it", 2},
    {"because they were cold", 1},
    {"and they all lived happily", 1},
    {"the end", 0},
    {"a fox and a crow", 0},
    {"I think he is going to win", 2},
    {"when we got home my mom made pizza", 2},
    {"I can ride my bike", 1},
    {"my brother is ten", 1},
    {"we played outside until it got dark", 2},
    {"if you roll a six you get another turn", 2},
};

// The share of hand counts the suggestion meets, the differences printed.
int agreement(const GcDictionary* dictionary) {
    int agree = 0;
    for (const Counted& c : kCounted) {
        const int suggested = suggestClauseCount(words(c.words), verbs(), dictionary);
        if (suggested == c.clauses)
            ++agree;
        else
            std::cout << "differs: \"" << c.words << "\" suggested " << suggested << ", counted "
                      << c.clauses << '\n';
    }
    std::cout << "SI suggestion agreement" << (dictionary ? " with the dictionary: " : ": ")
              << agree << " of " << std::size(kCounted) << '\n';
    return agree;
}

TEST(SiSuggestion, AgreesWithHandCountsOnMostUtterances) {
    const int total = static_cast<int>(std::size(kCounted));
    // The suggestion is for review; it must still be right far more often than not.
    EXPECT_GE(agreement(nullptr) * 100, total * 85);
    GcDictionary dictionary;
    test::RecordingPrompter prompter;
    ASSERT_TRUE(dictionary.loadFile(std::string(TAVI_SOURCE_DATA_DIR) + "/GC/GCDictionaryFile.txt",
                                    prompter));
    EXPECT_GE(agreement(&dictionary) * 100, total * 85);
}

TEST(SiSuggestion, CodesGoBeforeTheTerminatorOfUncodedUtterancesOnly) {
    const std::string text = "$ Child, Examiner\n"
                             "C the dog ran away.\n"
                             "E what happened?\n"
                             "C he was sad [SI-1].\n"
                             "C I think he is hungry!\n";
    CheckOptions options;
    options.keepSegmentation = true;
    CheckResult check = checkText(text, options);
    ASSERT_FALSE(check.hasErrors);
    SiInsertion in = insertSiCodes(text, check.segmented, {0, 2, 3}, verbs());
    EXPECT_EQ(in.coded, 2);
    EXPECT_EQ(in.text, "$ Child, Examiner\n"
                       "C the dog ran away [SI-1?].\n"
                       "E what happened?\n"
                       "C he was sad [SI-1].\n"
                       "C I think he is hungry [SI-2?]!\n");
    // The suggested codes are legal codes.
    EXPECT_FALSE(checkText(in.text).hasErrors);
}

TEST(SiSuggestion, CliticsAndMazesAreReadFromTheUtterance) {
    CheckOptions options;
    options.keepSegmentation = true;
    CheckResult check =
        checkText("$ Child, Examiner\nC (he um) he/'s sad because it/'s gone.\n", options);
    ASSERT_EQ(check.segmented.utterances.size(), 1u);
    EXPECT_EQ(suggestClauseCount(check.segmented.utterances[0], verbs()), 2);
}

} // namespace
} // namespace tavi
