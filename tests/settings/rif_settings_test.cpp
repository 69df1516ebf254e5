// The root identification settings: what is saved is read back, a
// transcript's language chooses its slot, and a slot's file is looked for in
// the RIF folder before the program's own data folder.
#include <gtest/gtest.h>

#include "base/file_io.h"
#include "settings/rif_settings.h"
#include "settings/temp_folder.h"

namespace tavi {
namespace {

TEST(RifSettings, SavedLinesReadBackAndAnEmptySlotStaysEmpty) {
    RifSettings rif;
    rif.files = {"", "Spanish words.rif", "", "/abs/other.rif"};
    rif.languages = {"English", "Spanish", "", ""};
    rif.replaceAll = true;
    Settings settings;
    settings.replaceSectionLines("RIFSET", rifSettingsLines(rif));
    EXPECT_EQ(rifSettings(settings), rif);
    EXPECT_EQ(rifSettingsLines(rif).front(), "RIFSET FILEPRIMARY");
    // Nothing saved: the shipped English file for the primary slot.
    EXPECT_EQ(rifSettings(Settings{}).files[0], kDefaultRifFile);
    EXPECT_FALSE(rifSettings(Settings{}).replaceAll);

    // A file named by the language options stands unless a RIFSET line names another.
    Settings named;
    named.language.slots[2].rif[0] = "French.rif";
    named.language.slots[0].rif[0] = "Mine.rif";
    named.replaceSectionLines("RIFSET", {"RIFSET FILEPRIMARY English.rif"});
    EXPECT_EQ(rifSettings(named).files[2], "French.rif");
    EXPECT_EQ(rifSettings(named).files[0], "English.rif");
}

TEST(RifSettings, TranscriptLanguageChoosesTheSlot) {
    RifSettings rif;
    rif.languages = {"", "Spanish", "french ", ""};
    EXPECT_EQ(rifSlotFor("spanish", rif), LanguageSlot::Alt1);
    EXPECT_EQ(rifSlotFor(" French", rif), LanguageSlot::Alt2);
    EXPECT_EQ(rifSlotFor("German", rif), LanguageSlot::Primary);
    EXPECT_EQ(rifSlotFor("", rif), LanguageSlot::Primary);
}

TEST(RifSettings, FileIsLookedForInTheRifFolderThenTheDataFolder) {
    test::TempFolder rifFolder, dataFolder;
    Settings settings;
    settings.folders.rif = rifFolder.path().string() + "/";
    settings.folders.sharedData = dataFolder.path().string() + "/";
    RifSettings rif;
    ASSERT_EQ(writeFileAtomic(dataFolder.path() / "English.rif", "a:b:\n"), WriteStatus::Ok);
    EXPECT_EQ(rifFilePath(settings, rif, LanguageSlot::Primary), dataFolder.path() / "English.rif");
    ASSERT_EQ(writeFileAtomic(rifFolder.path() / "English.rif", "a:b:\n"), WriteStatus::Ok);
    EXPECT_EQ(rifFilePath(settings, rif, LanguageSlot::Primary), rifFolder.path() / "English.rif");
    EXPECT_TRUE(rifFilePath(settings, rif, LanguageSlot::Alt1).empty());
    rif.files[1] = "/abs/x.rif";
    EXPECT_EQ(rifFilePath(settings, rif, LanguageSlot::Alt1), "/abs/x.rif");
}

} // namespace
} // namespace tavi
