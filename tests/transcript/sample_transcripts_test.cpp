// The bundled sample transcripts are the first thing a new user runs the
// checker on, and the demonstration database is built from them: every one
// must pass the checker cleanly and carry the header lines a database record
// is made from.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "transcript/checker.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

const fs::path kSamples = fs::path(TAVI_SOURCE_DATA_DIR) / "samples";

std::vector<fs::path> transcriptsUnder(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".tvi")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// "+ Keyword: value" lines of a transcript, by keyword.
std::map<std::string, std::string> headerValues(const TranLines& lines) {
    std::map<std::string, std::string> values;
    for (const auto& line : lines) {
        std::string_view text = line.text;
        auto colon = text.find(':');
        if (text.substr(0, 2) == "+ " && colon != std::string_view::npos)
            values[std::string(trim(text.substr(2, colon - 2)))] =
                std::string(trim(text.substr(colon + 1)));
    }
    return values;
}

int caMonths(const std::string& ca) {
    auto semicolon = ca.find(';');
    return std::stoi(ca.substr(0, semicolon)) * 12 + std::stoi(ca.substr(semicolon + 1));
}

int targetUtterances(const TranLines& lines) {
    int count = 0;
    for (const auto& line : lines)
        count += line.text.rfind("C ", 0) == 0;
    return count;
}

TEST(SampleTranscripts, EveryOneChecksWithoutErrorsOrWarnings) {
    auto files = transcriptsUnder(kSamples);
    ASSERT_GE(files.size(), 33u);
    for (const auto& file : files) {
        SCOPED_TRACE(file.string());
        LoadedTranscript loaded = loadTranscript(file);
        ASSERT_TRUE(loaded.ok);
        CheckResult result = checkTranscript(loaded.lines);
        for (const err& problem : result.problems)
            ADD_FAILURE() << "line " << problem.line << ": " << problem.message;
        EXPECT_GT(result.elapsedSeconds, 0);
        // The age from the dates agrees with the "CA" line.
        auto header = headerValues(loaded.lines);
        ASSERT_TRUE(header.count("CA"));
        EXPECT_EQ(result.ageMonths, caMonths(header["CA"]));
    }
}

TEST(SampleTranscripts, FullSamplesHoldAtLeastSixtyChildUtterances) {
    for (const char* name : {"conversation-age5.tvi", "story-age7.tvi", "expository-age10.tvi"}) {
        SCOPED_TRACE(name);
        LoadedTranscript loaded = loadTranscript(kSamples / name);
        ASSERT_TRUE(loaded.ok);
        EXPECT_GE(targetUtterances(loaded.lines), 60);
    }
}

TEST(SampleTranscripts, DemonstrationSamplesCarryTheRecordHeaderLines) {
    auto files = transcriptsUnder(kSamples / "demo-db");
    ASSERT_GE(files.size(), 30u);
    std::map<std::string, int> contexts, genders;
    for (const auto& file : files) {
        SCOPED_TRACE(file.string());
        LoadedTranscript loaded = loadTranscript(file);
        ASSERT_TRUE(loaded.ok);
        auto header = headerValues(loaded.lines);
        for (const char* keyword : {"DOB", "DOE", "CA", "Gender", "Context", "Grade", "Subgroup"})
            EXPECT_FALSE(header[keyword].empty()) << keyword;
        ++contexts[header["Context"]];
        ++genders[header["Gender"]];
        int children = targetUtterances(loaded.lines);
        EXPECT_GE(children, 20);
        EXPECT_LE(children, 40);
    }
    EXPECT_EQ(contexts.size(), 2u);
    EXPECT_GE(contexts["Con"], 15);
    EXPECT_GE(contexts["Nar"], 15);
    EXPECT_GE(genders["F"], 15);
    EXPECT_GE(genders["M"], 15);
}

} // namespace
} // namespace tavi
