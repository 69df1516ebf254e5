// Every file of the shared CHAT corpora (beside the project, never in it)
// imports and checks without errors, and keeps every utterance of every
// speaker. Skipped when the corpora are not there.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "base/file_io.h"
#include "import/chat_import.h"
#include "support/recording_prompter.h"
#include "transcript/checker.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> chatFiles(const fs::path& folder) {
    std::vector<fs::path> files;
    if (!fs::is_directory(folder))
        return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().extension() == ".cha")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// Main-tier lines per speaker code, counted straight from the CHAT text.
std::map<std::string, int> mainTierCounts(const std::string& chat) {
    std::map<std::string, int> counts;
    size_t pos = 0;
    while (pos < chat.size()) {
        size_t end = chat.find('\n', pos);
        if (end == std::string::npos)
            end = chat.size();
        if (chat[pos] == '*') {
            size_t colon = chat.find(':', pos);
            if (colon != std::string::npos && colon < end)
                ++counts[chat.substr(pos + 1, colon - pos - 1)];
        }
        pos = end + 1;
    }
    return counts;
}

std::map<char, int> utteranceLineCounts(const std::string& text) {
    std::map<char, int> counts;
    size_t pos = 0;
    while (pos < text.size()) {
        size_t end = text.find('\n', pos);
        char c = text[pos];
        if (end > pos + 1 && ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) &&
            text[pos + 1] == ' ')
            ++counts[c];
        pos = end == std::string::npos ? text.size() : end + 1;
    }
    return counts;
}

class SharedCorpora : public ::testing::Test {
protected:
    void SetUp() override {
        root_ = fs::path(TAVI_SHARED_DIR) / "corpora";
        if (!fs::is_directory(root_))
            GTEST_SKIP() << "the shared CHAT corpora are not at " << root_.string()
                         << " (they are read from ../shared beside the project, never copied in)";
        test::RecordingPrompter prompter;
        ASSERT_TRUE(dictionary_.loadFile(
            std::string(TAVI_SOURCE_DATA_DIR) + "/GC/GCDictionaryFile.txt", prompter));
    }
    fs::path root_;
    GcDictionary dictionary_;
};

TEST_F(SharedCorpora, EveryFileImportsChecksCleanAndKeepsEveryUtterance) {
    std::vector<fs::path> files = chatFiles(root_ / "enni");
    std::vector<fs::path> brown = chatFiles(root_ / "brown-sample");
    ASSERT_GT(files.size(), 300u);
    ASSERT_EQ(brown.size(), 3u);
    files.insert(files.end(), brown.begin(), brown.end());
    ChatImportOptions options;
    options.dictionary = &dictionary_;
    int fallbacks = 0;
    for (const fs::path& file : files) {
        SCOPED_TRACE(file.string());
        std::string chat;
        ASSERT_TRUE(readFile(file, chat));
        ChatImport imported = importChat(chat, options);
        ASSERT_TRUE(imported.ok) << imported.problem;
        CheckResult check = checkText(imported.text);
        EXPECT_EQ(check.errorCount(), 0);
        if (check.errorCount() > 0)
            for (const err& e : check.problems)
                ADD_FAILURE() << e.line << ": " << e.message;
        std::map<std::string, int> expected = mainTierCounts(chat);
        std::map<char, int> written = utteranceLineCounts(imported.text);
        int total = 0;
        for (const ChatSpeakerMapping& s : imported.speakers) {
            EXPECT_EQ(s.utterances, expected[s.code]) << s.code;
            EXPECT_EQ(written[s.label.at(0)], expected[s.code]) << s.code;
            total += expected[s.code];
        }
        EXPECT_EQ(check.utteranceCount, total);
        fallbacks += imported.morFallbacks;
    }
    std::printf("%zu files; %d utterances took their endings from the spelling\n", files.size(),
                fallbacks);
}

TEST_F(SharedCorpora, EnniHeadersCarryGroupAgeAndContext) {
    std::string chat;
    ASSERT_TRUE(readFile(root_ / "enni/TD/A/401.cha", chat));
    ChatImport imported = importChat(chat, {});
    ASSERT_TRUE(imported.ok);
    EXPECT_NE(imported.text.find("+ Subgroup: TD\n"), std::string::npos);
    EXPECT_NE(imported.text.find("+ Context: Nar\n"), std::string::npos);
    // groups.tsv gives 4;10.02 for this child.
    CheckResult check = checkText(imported.text);
    EXPECT_EQ(check.ageMonths, 4 * 12 + 10);
}

} // namespace
} // namespace tavi
