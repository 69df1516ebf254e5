// The label table: key order, built-in texts, the PRIMARY fallback, and the
// label file's reading rules and exact written form.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "settings/label_table.h"
#include "support/recording_prompter.h"
#include "temp_folder.h"

namespace tavi {
namespace {

TEST(LabelKeys, FixedOrderWithBuiltInTextForEveryKey) {
    auto keys = labelKeys();
    EXPECT_EQ(keys.front(), "RL_ABANUTT");
    EXPECT_EQ(keys.back(), "PL_PLAY");
    // Places named by the documentation (1-based there).
    EXPECT_EQ(keys[372 - 1], "RL_SDINTERVAL");
    EXPECT_EQ(keys[376 - 1], "PL_BILINGUAL");
    EXPECT_EQ(keys[419 - 1], "PL_SPEAKER2");

    std::set<std::string_view> distinct(keys.begin(), keys.end());
    EXPECT_EQ(distinct.size(), 421u);
    int report = 0;
    for (int i = 0; i < kLabelCount; ++i) {
        std::string_view key = keys[static_cast<size_t>(i)];
        EXPECT_TRUE(key.starts_with("RL_") || key.starts_with("PL_")) << key;
        report += key.starts_with("RL_");
        EXPECT_FALSE(builtInLabel(i).empty()) << key;
        EXPECT_EQ(labelIndex(key), i);
    }
    EXPECT_EQ(report, 375);

    EXPECT_EQ(builtInLabel(*labelIndex("RL_CDSPECMSG")),
              "No [codes] were found on entries beginning with + = : ; or -.");
    EXPECT_EQ(builtInLabel(*labelIndex("RL_PCWDERRORS")), "% Word Errors");
    EXPECT_EQ(builtInLabel(*labelIndex("PL_PLUSSID")), "ParticipantId");
    EXPECT_EQ(labelIndex("rl_age"), std::nullopt);
}

TEST(LabelKeys, BuiltInTextsOfTheStandardMeasuresReport) {
    // The report prints these labels as they stand (section titles, line labels,
    // the legend); the moving averages and turn lengths are built from two labels.
    const std::vector<std::pair<std::string_view, std::string_view>> expected = {
        {"RL_HEADTL", "TRANSCRIPT LENGTH"},
        {"RL_HEADINT", "INTELLIGIBILITY"},
        {"RL_MACROANAL", "MACRO ANALYSIS"},
        {"RL_HEADSM", "SYNTAX/MORPHOLOGY"},
        {"RL_HEADSEM", "SEMANTICS"},
        {"RL_HEADDC", "DISCOURSE"},
        {"RL_VERBFAC", "VERBAL FACILITY"},
        {"RL_NUMUTTT", "Total Utterances"},
        {"RL_NUMUTTA", "Analysis Set Utterances"},
        {"RL_ALLWDSINCLMZ", "All Words Including Mazes"},
        {"RL_TIMEMIN", "Elapsed Time (minutes)"},
        {"RL_PCINTEL", "% Intelligible Utterances"},
        {"RL_PCINTELWDS", "% Intelligible Words"},
        {"RL_NSSSCORE", "NSS Composite Score"},
        {"RL_ESSSCORE", "ESS Composite Score"},
        {"RL_PSSSCORE", "PSS Composite Score"},
        {"RL_HCONQ", "Oral Narrative Quality"},
        {"RL_ONC", "Oral Narrative Comprehension"},
        {"RL_MLUW", "MLU in Words"},
        {"RL_MLUM", "MLU in Morphemes"},
        {"RL_GCPCVERBS", "% Utterances with Verbs"},
        {"RL_GCVERBS", "Mean Verbs/Utterance"},
        {"RL_PCNMFC", "% Utts with Nonmainstream Forms"},
        {"RL_SISCORE", "SI Composite Score"},
        {"RL_NTW", "Number Total Words (NTW)"},
        {"RL_NDW", "Number Different Words (NDW)"},
        {"RL_PCRQU", "% Responses to Questions"},
        {"RL_PCULOV", "% Utts with Overlapping Speech"},
        {"RL_PCINTROS", "% Utts Interrupted Other Speaker"},
        {"RL_RPWDPERMIN", "Words/Minute"},
        {"RL_PCPZTIME", "Pause Time as % of Total Time"},
        {"RL_MZWDSPCTOT", "Maze Words as % of Total Words"},
        {"RL_PCABANUTT", "% Abandoned Utterances"},
        {"RL_PCERRORS", "% Utterances with Errors"},
        {"RL_ITALICSNOTE2", "# Calculations based on current analysis set"},
        {"RL_SMRTITLE", "Standard Measures Report"},
        {"RL_SOFUTTYPE", "Summary of Utterance Types"},
    };
    for (auto [key, text] : expected)
        EXPECT_EQ(builtInLabel(*labelIndex(key)), text) << key;
    auto joined = [](std::string_view a, std::string_view b) {
        return std::string(builtInLabel(*labelIndex(a))) + " " +
               std::string(builtInLabel(*labelIndex(b)));
    };
    EXPECT_EQ(joined("RL_MOVEAVE", "RL_TTRINITIALS"), "Moving-Average TTR");
    EXPECT_EQ(joined("RL_MEAN", "RL_DCTLU"), "Mean Turn Length (utterances)");
    EXPECT_EQ(joined("RL_MEAN", "RL_DCTLW"), "Mean Turn Length (words)");
}

TEST(LabelTable, ResetFillsPrimaryOnlyAndLookupFallsBackToPrimary) {
    LabelTable table;
    EXPECT_EQ(table.text(LanguageSlot::Primary, *labelIndex("RL_AGE")), "age");
    EXPECT_EQ(table.text(LanguageSlot::Alt1, *labelIndex("RL_AGE")), "");
    EXPECT_EQ(table.get(LanguageSlot::Alt1, "RL_AGE"), "age");

    table.setText(LanguageSlot::Other, *labelIndex("PL_SPEAKER1"), "Enfant");
    EXPECT_EQ(table.get(LanguageSlot::Other, "PL_SPEAKER1"), "Enfant");
    EXPECT_EQ(table.get(LanguageSlot::Primary, "PL_SPEAKER1"), "Child");
    EXPECT_THROW(table.get(LanguageSlot::Primary, "RL_NOSUCHKEY"), std::out_of_range);

    table.setBuiltIn(LanguageSlot::Other);
    EXPECT_EQ(table.text(LanguageSlot::Other, *labelIndex("PL_SPEAKER1")), "Child");
}

TEST(LabelFileReader, SetsOneLabelOfOneSlotByTheCaseRules) {
    LabelTable table;
    applyLabelText("ALT1 RL_AGE edad\n", table);
    EXPECT_EQ(table.text(LanguageSlot::Alt1, *labelIndex("RL_AGE")), "edad");
    EXPECT_EQ(table.text(LanguageSlot::Primary, *labelIndex("RL_AGE")), "age");
    for (int i = 0; i < kLabelCount; ++i) {
        if (labelKeys()[static_cast<size_t>(i)] != "RL_AGE") {
            EXPECT_EQ(table.text(LanguageSlot::Alt1, i), "") << i;
        }
    }

    LabelTable lowerSlot;
    applyLabelText("alt1 RL_AGE edad", lowerSlot);
    EXPECT_EQ(lowerSlot.text(LanguageSlot::Alt1, *labelIndex("RL_AGE")), "edad");

    LabelTable lowerKey;
    applyLabelText("ALT1 rl_age edad", lowerKey);
    EXPECT_EQ(lowerKey, LabelTable());

    LabelTable tolerant;
    applyLabelText("\r\n  OTHER   RL_SMRTITLE   Rapport  des   mesures  \r\n"
                   "PRIMARY RL_AGE\r\n"       // no text: the label stays
                   "ALT3 RL_AGE years\r\n"    // no such slot
                   "ALT2 RL_UNKNOWN text\r\n" // no such key
                   "PRIMARY\r\n",
                   tolerant);
    EXPECT_EQ(tolerant.text(LanguageSlot::Other, *labelIndex("RL_SMRTITLE")),
              "Rapport  des   mesures");
    LabelTable expected;
    expected.setText(LanguageSlot::Other, *labelIndex("RL_SMRTITLE"), "Rapport  des   mesures");
    EXPECT_EQ(tolerant, expected);
}

TEST(LabelFileWriter, WritesAllSlotsInKeyOrderAndReadsBack) {
    test::TempFolder folder;
    std::filesystem::path file = folder.path() / "TAVI_Labels.ini";
    LabelTable table;
    table.setText(LanguageSlot::Alt1, *labelIndex("RL_AGE"), "edad");

    test::RecordingPrompter prompter;
    EXPECT_EQ(saveLabelFile(file, table, true, prompter), SaveOutcome::Saved);
    EXPECT_EQ(
        prompter.messages,
        (std::vector<std::string>{"Would you like to save these settings as the program default?",
                                  "Labels saved in " + file.string()}));
    std::string written = folder.read("TAVI_Labels.ini");
    EXPECT_EQ(written, test::readTestData("labels_saved.ini"));
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 1684);

    LabelTable back;
    ASSERT_TRUE(loadLabelFile(file, back));
    EXPECT_EQ(back, table);
}

TEST(LabelFileWriter, RefusesOrStopsWithoutWriting) {
    test::TempFolder folder;
    std::filesystem::path file = folder.path() / "TAVI_Labels.ini";
    LabelTable table;

    test::RecordingPrompter refused;
    EXPECT_EQ(saveLabelFile(file, table, false, refused), SaveOutcome::NotAllowed);
    EXPECT_EQ(refused.messages,
              (std::vector<std::string>{"Default settings cannot be saved on this computer."}));

    test::RecordingPrompter declined;
    declined.answers = {Answer::No};
    EXPECT_EQ(saveLabelFile(file, table, true, declined), SaveOutcome::NotAnswered);
    EXPECT_FALSE(std::filesystem::exists(file));

    // A file where a folder should be: the file cannot be created.
    folder.write("blocked", "x");
    std::filesystem::path blocked = folder.path() / "blocked" / "TAVI_Labels.ini";
    test::RecordingPrompter failing;
    EXPECT_EQ(saveLabelFile(blocked, table, true, failing), SaveOutcome::CannotWrite);
    EXPECT_EQ(failing.messages.back(),
              "Cannot write to " + blocked.string() + " (labels not saved)");
}

} // namespace
} // namespace tavi
