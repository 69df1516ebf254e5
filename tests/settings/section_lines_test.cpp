// The shared sections: the lines written for the analysis set, word base and
// transcript cut (byte for byte), and what reading them back restores.
#include <gtest/gtest.h>

#include "settings/section_lines.h"
#include "temp_folder.h"

namespace tavi {
namespace {

template <typename Record>
Record readBack(const std::vector<std::string>& lines, void (*apply)(const KeywordLine&, Record&),
                Record start = {}) {
    for (const std::string& line : lines)
        apply(parseKeywordLine(line), start);
    return start;
}

AnalysisSet everythingChanged() {
    AnalysisSet set;
    set.excludeIncomplete = 0;
    set.excludeUnintelligible = 0;
    set.excludeNonverbal = 0;
    set.excludeImitations = 1;
    set.excludeQuestionResponses = 1;
    set.excludeYesNoResponses = 1;
    set.excludePromptResponses = 1;
    set.excludeOneWord = 1;
    set.includeOnly = 1;
    set.excludeCodes = "[EW], [OM]";
    set.includeCodes = "[ST]";
    return set;
}

TEST(SectionLines, WrittenInDialogOrderByteForByte) {
    WordBase base;
    base.excludeParenthetical = false;
    base.includeMode = true;
    base.excludeCodes = "[FP]";
    base.includeCodes = "[EW:*]";
    TranscriptCut cut;
    cut.startType = TranscriptCut::FromUtterance;
    cut.startUtterance = 5;
    cut.startBase = 0;
    cut.startSpeaker = 1;
    cut.startTime = 75;
    cut.startCode = "[START]";
    cut.endType = TranscriptCut::ToWordCount;
    cut.endValue = 100;
    cut.endBase = 1;
    cut.endSpeaker = 2;
    cut.endTime = 536;
    cut.endCode = "[END]";
    cut.wordArea = 1;

    std::vector<std::string> lines = analysisSetLines(everythingChanged());
    for (const std::string& line : wordBaseLines(base))
        lines.push_back(line);
    for (const std::string& line : transcriptCutLines(cut))
        lines.push_back(line);
    EXPECT_EQ(keywordFileBytes(lines), test::readTestData("sections_all_lines.ini"));

    EXPECT_EQ(readBack(wordBaseLines(base), applyWordBaseLine), base);
    EXPECT_EQ(readBack(transcriptCutLines(cut), applyTranscriptCutLine), cut);
    // Empty lists are not written, so reading applies over what is there: only
    // the flags go back to their defaults.
    WordBase over = readBack(wordBaseLines(WordBase{}), applyWordBaseLine, base);
    EXPECT_TRUE(over.excludeParenthetical);
    EXPECT_FALSE(over.includeMode);
    EXPECT_EQ(over.excludeCodes, "[FP]");
}

TEST(SectionLines, AnalysisSetKeepsTheDeliberateAsymmetry) {
    // Defaults are the single line "ASET", and reading it changes nothing.
    EXPECT_EQ(analysisSetLines(AnalysisSet{}), std::vector<std::string>{"ASET"});
    AnalysisSet changed = everythingChanged();
    EXPECT_EQ(readBack({"ASET", "aset"}, applyAnalysisSetLine, changed), changed);

    // What is written as "INCLUDEONLY", "EXCLUDECODE" and "INCLUDECODE" does not
    // come back; everything else does.
    AnalysisSet back = readBack(analysisSetLines(changed), applyAnalysisSetLine);
    AnalysisSet expected = changed;
    expected.includeOnly = 0;
    expected.excludeCodes.clear();
    expected.includeCodes.clear();
    EXPECT_EQ(back, expected);

    // The words the loader does read, in any case.
    AnalysisSet read =
        readBack({"ASET includeutts", "ASET EXCLUDEUCODE [EW], [OM]", "ASET INCLUDEUCODE  [ST]"},
                 applyAnalysisSetLine);
    EXPECT_EQ(read.includeOnly, 1);
    EXPECT_EQ(read.excludeCodes, "[EW], [OM]");
    EXPECT_EQ(read.includeCodes, "[ST]");
}

TEST(SectionLines, TranscriptCutIgnoresNumbersThatDoNotParse) {
    TranscriptCut cut;
    cut.startUtterance = 7;
    TranscriptCut read =
        readBack({"TCUT FROMUTT 7x", "TCUT FROMUTT", "TCUT TOCODE", "TCUT NOSUCH 3"},
                 applyTranscriptCutLine, cut);
    EXPECT_EQ(read, cut);
}

TEST(SectionLines, LanguageAndTimingAndFontsRoundTrip) {
    LanguageSettings language;
    language.slots[0].uc = true;
    language.slots[1].ansi = true;
    language.slots[2].uw[3] = true;
    language.slots[3].vl[0] = true;
    language.slots[3].rif[1] = "/data/rif/french.rif";
    language.otherName = "Fran\xC3\xA7"
                         "ais";
    language.monthFirst = false;
    language.dateSeparator = '.';
    language.reportLabels = "ALT1";
    language.textEncoding = TextEncoding::Windows1252;
    std::vector<std::string> lines = languageLines(language);
    EXPECT_EQ(lines.back(), "LANGUAGE ENCODING WINDOWS-1252");
    EXPECT_EQ(language.reportSlot(), LanguageSlot::Alt1);
    EXPECT_EQ(lines.front(), "LANGUAGE UCPRIMARY_YES");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "LANGUAGE RIF2OTHER /data/rif/french.rif"),
              lines.end());
    EXPECT_EQ(readBack(lines, applyLanguageLine), language);

    LanguageSettings read =
        readBack({"LANGUAGE ugcalt2_yes", "LANGUAGE DATESEP x", "LANGUAGE UCNOWHERE_YES",
                  "LANGUAGE ENCODING KOI8-R", "LANGUAGE RLABELS KLINGON"},
                 applyLanguageLine);
    EXPECT_EQ(read.textEncoding, TextEncoding::Utf8); // an unknown encoding keeps the default
    EXPECT_EQ(read.reportSlot(), LanguageSlot::Primary);
    read.reportLabels.clear();
    EXPECT_TRUE(read.slots[2].ugc);
    EXPECT_EQ(read.dateSeparator, '-');
    LanguageSettings expected;
    expected.slots[2].ugc = true;
    EXPECT_EQ(read, expected);

    TimingLineFlags flags{false, true, false};
    EXPECT_EQ(timingLineLines(flags),
              (std::vector<std::string>{"TIMINGLINES SUBTRACT_NO", "TIMINGLINES IGNOREPLUS_YES",
                                        "TIMINGLINES IGNOREEQUAL_NO"}));
    EXPECT_EQ(readBack(timingLineLines(flags), applyTimingLineLine), flags);

    FontSetting font{-13, 0, 700, 1, 0, 34, "DejaVu Serif"};
    EXPECT_EQ(readBack(fontLines("DISPREPTFONT", font), applyFontLine), font);
    FontSetting longName = readBack(
        {"PRTREPTFONT FACENAME A Face Name That Is Far Too Long For A Font"}, applyFontLine);
    EXPECT_EQ(longName.faceName, "A Face Name That Is Far Too Lon"); // 31 characters
}

} // namespace
} // namespace tavi
