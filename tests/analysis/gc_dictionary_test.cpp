// The grammatical-category dictionary: hash, probing, duplicates, a full
// table, categories of a value and the fallback from a word's form.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "analysis/gc_dictionary.h"
#include "analysis/grammatical_categories.h"
#include "base/text.h"
#include "support/recording_prompter.h"
#include "transcript_builder.h"

namespace tavi {
namespace {

std::int32_t hashOf(std::string_view s, std::int32_t cap = MAX_DICTIONARY_WORDS) {
    return dictionaryHash(toUtf16(s), cap);
}

TEST(GcDictionaryHash, FollowsTheDefinitionOverUtf16CodeUnits) {
    EXPECT_EQ(hashOf(""), 0);
    EXPECT_EQ(hashOf("ab"), 97 * 64 + 98);
    EXPECT_EQ(hashOf("zzzz"), 17785);             // wraps modulo 185551 twice
    EXPECT_EQ(hashOf("\xC3\xA9"), 233);           // U+00E9 is one code unit
    EXPECT_EQ(hashOf("\xF0\x9F\x98\x80"), 74211); // U+1F600 is two (a surrogate pair)
    EXPECT_EQ(hashOf("a", 7), 6);
    EXPECT_EQ(hashOf("b", 7), 0);
}

// The hash of a UTF-8 key, taken without its UTF-16 form and with the
// remainder deferred, against the definition: keys of every length up to 40,
// of ASCII, two-, three- and four-byte characters, over small, usual and
// large capacities (above 2^24 each step takes its own remainder).
TEST(GcDictionaryHash, Utf8KeysHashAsTheirUtf16Form) {
    const char* const pieces[] = {"a",
                                  "Z",
                                  "'",
                                  "0",
                                  "~",
                                  "\x7F",
                                  "\xC3\xA9",
                                  "\xDF\xBF",
                                  "\xE2\x82\xAC",
                                  "\xEF\xBF\xBF",
                                  "\xF0\x9F\x98\x80",
                                  "\xF4\x8F\xBF\xBF"};
    const std::int32_t capacities[] = {
        1, 2, 7, 211, 65521, MAX_DICTIONARY_WORDS, 16777215, 16777216, 33000000};
    std::mt19937 rng(7);
    for (int round = 0; round < 3000; ++round) {
        std::string key;
        for (int n = static_cast<int>(rng() % 41); n > 0; --n)
            key += pieces[rng() % std::size(pieces)];
        for (std::int32_t cap : capacities)
            ASSERT_EQ(dictionaryHash(std::string_view(key), cap), hashOf(key, cap))
                << key << " " << cap;
    }
}

// Lines loaded from a text with every kind of line end are found as when
// inserted one by one, and a full table stops the load at the same line.
TEST(GcDictionaryStore, LoadSplitsLinesAsInsertDoes) {
    const std::string text = "a [GC:NOUN]\r\nb [GC:VERB]\rc [GC:ADJ]\n\nd [GC:DET]\r\r\n"
                             "e [GC:PREP]\nlonely\r\nf [GC:NOUN]";
    for (std::int32_t cap : {5, 6, 7, 8, 9, 31}) {
        GcDictionary loaded(cap), inserted(cap);
        test::RecordingPrompter p, q;
        loaded.load(text, p);
        bool full = false;
        for (std::string_view line : splitLines(text))
            if (!full && !inserted.insert(line)) {
                full = true;
                q.inform("Increase MAX_DICTIONARY_WORDS");
            }
        EXPECT_EQ(p.messages, q.messages) << cap;
        EXPECT_EQ(loaded.size(), inserted.size()) << cap;
        for (std::string_view key : {"a", "b", "c", "d", "e", "f", "", "lonely"})
            EXPECT_EQ(loaded.lookup(key), inserted.lookup(key)) << cap << " " << key;
        // Lines inserted after a load go after the loaded ones.
        loaded.insert("g [GC:VERB]");
        inserted.insert("g [GC:VERB]");
        EXPECT_EQ(loaded.lookup("g"), inserted.lookup("g")) << cap;
        EXPECT_EQ(loaded.lookup("a"), inserted.lookup("a")) << cap;
    }
}

TEST(GcDictionaryStore, ProbesUpwardWrapsAndKeepsTheFirstDuplicate) {
    GcDictionary d(7);
    EXPECT_TRUE(d.insert("a [GC:NOUN]"));    // slot 6
    EXPECT_TRUE(d.insert("a [GC:VERB]"));    // duplicate: wraps to slot 0
    EXPECT_TRUE(d.insert("b   [GC:ADJ]  ")); // home 0 taken: slot 1
    EXPECT_EQ(d.lookup("a"), "[GC:NOUN]");
    EXPECT_EQ(d.lookup("b"), "[GC:ADJ]"); // value trimmed
    EXPECT_FALSE(d.lookup("c"));          // home 1 holds "b", slot 2 empty
    EXPECT_FALSE(d.lookup("A"));          // case-sensitive
    EXPECT_EQ(d.size(), 3);
}

TEST(GcDictionaryStore, LineWithoutBlankHasEmptyKeyAndIsNeverFound) {
    GcDictionary d(7);
    EXPECT_TRUE(d.insert("lonely"));
    EXPECT_FALSE(d.lookup("lonely"));
    EXPECT_TRUE(d.insert("b [GC:ADJ]")); // its home slot 0 is taken by the empty key
    EXPECT_EQ(d.lookup("b"), "[GC:ADJ]");
}

TEST(GcDictionaryStore, FullTableReportsOnceAndKeepsWhatWasLoaded) {
    GcDictionary d(3);
    test::RecordingPrompter p;
    d.load("a [GC:NOUN]\nb [GC:VERB]\nc [GC:ADJ]\nd [GC:DET]\ne [GC:PREP]\n", p);
    EXPECT_EQ(p.messages, std::vector<std::string>{"Increase MAX_DICTIONARY_WORDS"});
    EXPECT_EQ(d.size(), 3);
    EXPECT_EQ(d.lookup("c"), "[GC:ADJ]");
    EXPECT_FALSE(d.lookup("d"));
}

TEST(GcDictionaryStore, MissingFileIsReported) {
    GcDictionary d(11);
    test::RecordingPrompter p;
    EXPECT_FALSE(d.loadFile("/nonexistent/GCDictionaryFile.txt", p));
    EXPECT_EQ(p.messages, std::vector<std::string>{"Unable to open Grammatical Category dictionary "
                                                   "file (/nonexistent/GCDictionaryFile.txt)"});
}

TEST(GrammaticalCategories, WordCategoriesFromDictionaryThenFromForm) {
    GcDictionary d(101);
    d.insert("run [GC:VERB] [GC:NOUN]");
    d.insert("I [GC:PPRON]");
    auto cats = [&](std::string_view token, const GcDictionary* dict) {
        TranscriptStore store;
        return wordCategories(test::makeWord(token, store), dict);
    };
    EXPECT_EQ(cats("run", &d), (std::vector<int>{GcVerb, GcNoun}));
    EXPECT_EQ(cats("Run", &d), (std::vector<int>{GcVerb, GcNoun})); // lower-case retry
    EXPECT_EQ(cats("I", &d), std::vector<int>{GcPPron});
    EXPECT_EQ(cats("i", &d), std::vector<int>{GcPPron}); // capitalised retry
    EXPECT_EQ(cats("quickly", &d), std::vector<int>{GcAverb});
    EXPECT_EQ(cats("jumping", &d), std::vector<int>{GcVerb});
    EXPECT_EQ(cats("walk/ed", &d), std::vector<int>{GcVerb});
    EXPECT_EQ(cats("table", &d), std::vector<int>{GcNoun});
    EXPECT_EQ(cats("ly", nullptr), std::vector<int>{GcNoun}); // an ending alone is no adverb
    EXPECT_EQ(categoryOfCode("[gc:noun]"), GcNoun);
    EXPECT_EQ(categoryOfCode("INTJ"), GcIntj);
    EXPECT_FALSE(categoryOfCode("[GC:FOO]"));
}

TEST(GrammaticalCategories, SkippedTokens) {
    for (std::string_view t : {"=x", "+x", ":", "*the", "%goed", "[EW]", ".", "\"hi",
                               "\xE2\x80\x9Cquote", "\xC2\xBFque", "\xEF\xBE\x93x", " x", ""})
        EXPECT_TRUE(isSkippedCategoryToken(t)) << t;
    for (std::string_view t : {"dog", "X", "don't", "\xC3\xA9t\xC3\xA9"})
        EXPECT_FALSE(isSkippedCategoryToken(t)) << t;
}

} // namespace
} // namespace tavi
