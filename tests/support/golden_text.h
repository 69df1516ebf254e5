// Golden files of the report tests: the text a report must print, kept in
// tests/data/reports. TAVI_UPDATE_GOLDEN=1 rewrites them from the actual
// output (read the diff before committing it).
#pragma once

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "base/file_io.h"

namespace tavi::test {

inline const std::filesystem::path& goldenDir() {
    static const std::filesystem::path dir = std::filesystem::path(TAVI_TEST_DATA_DIR) / "reports";
    return dir;
}

// The bundled sample transcripts, as a quoted shell argument.
inline std::string sampleArgument(const char* name) {
    const auto path = std::filesystem::path(TAVI_TEST_DATA_DIR) / ".." / ".." / "data" / "samples" /
                      (std::string(name) + ".tvi");
    return "'" + path.string() + "'";
}

// `relative` is below tests/data/reports.
inline void expectGolden(const std::string& actual, const std::string& relative) {
    const std::filesystem::path golden = goldenDir() / relative;
    if (std::getenv("TAVI_UPDATE_GOLDEN")) {
        ASSERT_EQ(writeFileAtomic(golden, actual), WriteStatus::Ok);
        return;
    }
    std::string expected;
    ASSERT_TRUE(readFile(golden, expected)) << golden;
    EXPECT_EQ(actual, expected) << "report differs from " << golden;
}

} // namespace tavi::test
