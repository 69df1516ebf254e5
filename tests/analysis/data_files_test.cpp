// The word lists, the grammatical-category dictionary and the verb list are
// generated or hand-written data read at run time; a regenerated file that
// breaks their line format would silently empty a report table. These tests
// read the shipped files as the program's readers expect them.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "analysis/grammatical_categories.h"
#include "analysis/word_lists.h"

namespace tavi {
namespace {

const std::filesystem::path kData = TAVI_SOURCE_DATA_DIR;

std::vector<std::string> fileLines(const std::filesystem::path& path) {
    std::ifstream in(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

bool isCategoryCode(const std::string& code) {
    for (const auto& category : kGrammaticalCategoryTable)
        if (category.code == code)
            return true;
    return false;
}

bool isWordKey(const std::string& key) {
    if (key.empty())
        return false;
    for (char c : key)
        if (!((c >= 'a' && c <= 'z') || c == '\''))
            return key == "I";
    return true;
}

TEST(DataFiles, DictionaryLinesAreOneWordAndKnownCategoryCodes) {
    auto lines = fileLines(kData / "GC" / "GCDictionaryFile.txt");
    ASSERT_GT(lines.size(), 50000u);
    // Well below the table's capacity, so that lookups stay short.
    EXPECT_LT(lines.size(), 150000u);
    std::set<std::string> keys;
    for (const auto& line : lines) {
        std::istringstream fields(line);
        std::string key, code;
        fields >> key;
        EXPECT_TRUE(isWordKey(key)) << line;
        EXPECT_TRUE(keys.insert(key).second) << "duplicate key: " << line;
        int codes = 0;
        while (fields >> code) {
            EXPECT_TRUE(isCategoryCode(code)) << line;
            ++codes;
        }
        EXPECT_GT(codes, 0) << line;
    }
    EXPECT_TRUE(keys.count("I"));
    EXPECT_FALSE(keys.count("i")); // WordNet's "i" (iodine) must not shadow the pronoun
    for (const char* mark : {"x", "xx", "xxx"})
        EXPECT_FALSE(keys.count(mark)) << "unintelligible marks are not words: " << mark;
}

TEST(DataFiles, DictionaryPutsTheLikelyCategoryFirst) {
    std::map<std::string, std::string> first;
    for (const auto& line : fileLines(kData / "GC" / "GCDictionaryFile.txt")) {
        std::istringstream fields(line);
        std::string key, code;
        fields >> key >> code;
        first[key] = code;
    }
    const std::pair<const char*, const char*> expected[] = {
        {"the", "[GC:DET]"},      {"a", "[GC:DET]"},          {"I", "[GC:PPRON]"},
        {"dog", "[GC:NOUN]"},     {"dogs", "[GC:NOUN]"},      {"went", "[GC:VERB]"},
        {"jumped", "[GC:VERB]"},  {"is", "[GC:COP]"},         {"can", "[GC:AXMOD]"},
        {"to", "[GC:INFIN]"},     {"there", "[GC:EXIST]"},    {"and", "[GC:COORD]"},
        {"because", "[GC:SUB]"},  {"not", "[GC:NEG]"},        {"let's", "[GC:LET]"},
        {"my", "[GC:POSS]"},      {"bigger", "[GC:ADJ]"},     {"quickly", "[GC:AVERB]"},
        {"very", "[GC:INTEN]"},   {"children", "[GC:NOUN]"},  {"up", "[GC:VPART]"},
        {"with", "[GC:PREP]"},    {"what", "[GC:QUES]"},      {"wow", "[GC:INTJ]"},
        {"oh", "[GC:INTJ]"},      {"somebody", "[GC:OPRON]"}, {"bear", "[GC:NOUN]"},
        {"saturday", "[GC:NOUN]"}};
    for (const auto& [word, code] : expected)
        EXPECT_EQ(first[word], code) << word;
}

TEST(DataFiles, WordListKeysNameStandardListsOfThePrimarySet) {
    std::set<std::string> keys;
    for (const auto& kind : kStandardWordLists)
        keys.insert("P_" + std::string(kind.suffix));
    std::set<std::string> filled;
    for (const auto& line : fileLines(kData / "TaviSWL.txt")) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        std::string key, word;
        fields >> key >> word;
        EXPECT_TRUE(keys.count(key)) << line;
        EXPECT_FALSE(word.empty()) << line;
        for (char c : line.substr(key.size()))
            EXPECT_FALSE(c >= 'A' && c <= 'Z') << "words are lower case: " << line;
        filled.insert(key);
    }
    // Every standard list but the five extra lists has words.
    EXPECT_EQ(filled.size(), kStandardWordLists.size() - 5);
}

TEST(DataFiles, VerbListHoldsBaseAndInflectedForms) {
    auto lines = fileLines(kData / "verbs.txt");
    std::set<std::string> verbs(lines.begin(), lines.end());
    EXPECT_EQ(verbs.size(), lines.size());
    for (const char* verb : {"go", "goes", "went", "gone", "going", "jump", "jumps", "jumped",
                             "jumping", "cry", "cries", "cried", "stop", "stopped", "is", "were"})
        EXPECT_TRUE(verbs.count(verb)) << verb;
    for (const char* notVerb : {"dog", "the", "can", "will", "happy"})
        EXPECT_FALSE(verbs.count(notVerb)) << notVerb;
}

} // namespace
} // namespace tavi
