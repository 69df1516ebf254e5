// The selection-file reference (docs/selection-file.md) against the catalogue:
// every group heading with its keyword and title, and every line "KEYWORD n"
// with the column it gives and its description, in catalogue order. A
// variable added, moved or renamed without its entry fails here.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "batch/batch_selections.h"
#include "batch/variable_catalogue.h"

namespace tavi {
namespace {

std::string referenceText() {
    std::string text;
    EXPECT_TRUE(
        readFile(std::filesystem::path(TAVI_SOURCE_DIR) / "docs" / "selection-file.md", text));
    return text;
}

// "### `SMR`: Standard Measures Report" and "| `SMR 0` | `TotNumUt` | Total Utterances |"
// as the same one-line form the catalogue gives.
std::vector<std::string> documentedEntries(const std::string& text) {
    static const std::regex heading(R"(^### `([A-Z]+)`: (.+)$)");
    static const std::regex row(R"(^\| `([A-Z]+) ([0-9]+)` \| `([^`]+)` \| (.+) \|$)");
    std::vector<std::string> entries;
    std::istringstream in(text);
    std::string line;
    std::smatch m;
    while (std::getline(in, line)) {
        if (std::regex_match(line, m, heading))
            entries.push_back("group " + m[1].str() + " " + m[2].str());
        else if (std::regex_match(line, m, row))
            entries.push_back(m[1].str() + " " + m[2].str() + " " + m[3].str() + " = " +
                              m[4].str());
    }
    return entries;
}

std::vector<std::string> catalogueEntries() {
    const VariableCatalogue& c = VariableCatalogue::standard();
    std::vector<std::string> entries;
    for (const VariableGroup& g : c.groups()) {
        if (g.count == 0)
            continue; // groups without fixed variables are listed in the text
        entries.push_back("group " + g.keyword + " " + g.title);
        for (int i = 0; i < g.count; ++i) {
            const BatchVariable& v = c.variable(g.first + i);
            entries.push_back(g.keyword + " " + std::to_string(selectionIndex(c, g.first + i)) +
                              " " + v.name + " = " + v.description);
        }
    }
    return entries;
}

TEST(SelectionFileReference, ListsEveryGroupIndexAndColumnOfTheCatalogue) {
    const std::vector<std::string> documented = documentedEntries(referenceText());
    const std::vector<std::string> expected = catalogueEntries();
    const size_t n = std::min(documented.size(), expected.size());
    for (size_t i = 0; i < n; ++i)
        ASSERT_EQ(documented[i], expected[i]) << "entry " << i << " of docs/selection-file.md";
    EXPECT_EQ(documented.size(), expected.size());
}

// The groups that write no columns, and the option keywords, are named in the
// text so that a reader of a selection file made elsewhere finds them.
TEST(SelectionFileReference, NamesTheKeywordsThatWriteNoColumns) {
    const std::string text = referenceText();
    for (const VariableGroup& g : VariableCatalogue::standard().groups()) {
        if (g.count == 0 && g.keyword != "EXPLORE") {
            EXPECT_NE(text.find("`" + g.keyword + "`"), std::string::npos) << g.keyword;
        }
    }
    for (const char* keyword : {"UDLENGTH", "UDUTT", "FORMATRPT", "SWLUTT", "SWLAREA", "SWLLANG",
                                "SULUTT", "MDLENGTH", "MDUTT", "GCLUTT", "FLUENCYBEH"})
        EXPECT_NE(text.find(std::string("`") + keyword + "`"), std::string::npos) << keyword;
}

} // namespace
} // namespace tavi
