// The Standard Measures Report's chosen lines as the program default: the
// "SMR" section is written in report order, loaded by the start-up loader and
// gives back the same choice; a file without it gives the built-in choice.
#include <gtest/gtest.h>

#include "reports/smr_settings.h"
#include "settings/keyword_file.h"
#include "settings/section_save.h"
#include "settings/startup.h"
#include "support/recording_prompter.h"

namespace tavi {
namespace {

Settings loaded(const std::string& text) {
    Settings settings = defaultSettings("/nowhere/", "/nowhere/", "/nowhere/", {});
    test::RecordingPrompter prompter;
    applyUserLevelLines(parseKeywordText(text), "/nowhere/TAVI.ini", {}, settings, prompter);
    return settings;
}

TEST(SmrSettings, SavedChoiceComesBackAtStartUp) {
    SmrVariables chosen = SmrVariables::defaults();
    chosen.chosen[0] = false; // TotNumUt
    chosen.chosen[6] = true;  // a macro-analysis composite, off by default
    chosen.chosen.back() = false;
    const std::vector<std::string> lines = smrVariablesLines(chosen);
    ASSERT_EQ(lines.size(), kSmrLineCount);
    EXPECT_EQ(lines.front(), "SMR TotNumUt_NO");

    std::string file;
    for (const std::string& line :
         mergedSectionLines("ASET EXCLUDEIMIT\nSMR MLUw_NO\n", "SMR", lines))
        file += line + "\n";
    EXPECT_EQ(smrVariablesFromSettings(loaded(file)), chosen);
    EXPECT_EQ(loaded(file).analysisSet.excludeImitations, 1);

    EXPECT_EQ(smrVariablesFromSettings(loaded("ASET EXCLUDEIMIT\n")), SmrVariables::defaults());
    // Case does not matter; unknown measures and bare words are ignored.
    SmrVariables expected = SmrVariables::defaults();
    expected.chosen[0] = false;
    EXPECT_EQ(smrVariablesFromSettings(loaded("smr totnumut_no\nSMR NoSuch_NO\nSMR MLUw\n")),
              expected);
}

} // namespace
} // namespace tavi
