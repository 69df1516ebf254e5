// The analysis session: settings reach the checker and the measures, the
// speaker reset and cut messages come in order, checking alone measures
// nothing, and files that cannot be analysed say so.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

#include "session/analysis_session.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

namespace fs = std::filesystem;

TranLines linesOf(std::string_view text) {
    return splitTranscriptLines(text);
}

bool hasCode(const CheckResult& check, int code) {
    for (const err& e : check.problems)
        if (e.code == code)
            return true;
    return false;
}

constexpr std::string_view kDayFirst = "$ Child, Examiner\n"
                                       "+ DOB: 14/3/2020\n"
                                       "+ DOE: 20/5/2025\n"
                                       "C I go/ed home.\n"
                                       "E ok.\n";

TEST(AnalysisSession, DateFormatAndHeaderKeywordsComeFromTheSettings) {
    Settings dayFirst;
    dayFirst.language.monthFirst = false;
    dayFirst.language.dateSeparator = '/';
    const TranscriptAnalysis read = analyseText(kDayFirst, analysisContext(dayFirst, nullptr));
    EXPECT_FALSE(hasCode(read.check, -1));
    EXPECT_EQ(read.check.ageMonths, 62);

    const TranscriptAnalysis misread = analyseText(kDayFirst, analysisContext(Settings{}, nullptr));
    EXPECT_TRUE(hasCode(misread.check, -1));
    EXPECT_EQ(misread.check.ageMonths, -1);

    Settings french = dayFirst;
    french.labels.setText(LanguageSlot::Primary, *labelIndex("PL_PLUSDOB"), "DDN");
    const TranscriptAnalysis renamed = analyseText(
        "$ Child\n+ DDN: 14/3/2020\n+ DOE: 20/5/2025\nC hi.\n", analysisContext(french, nullptr));
    EXPECT_EQ(renamed.check.ageMonths, 62);
}

TEST(AnalysisSession, SpeakerResetThenCutOutcomeAreSaidInOrder) {
    Settings settings;
    settings.transcriptCut.startType = TranscriptCut::FromCode;
    settings.transcriptCut.startCode = "START";
    AnalysisRequest second;
    second.speaker = 1;
    const TranscriptAnalysis analysis = analyseText("$ Child\nC I go/ed home.\nC the dog/s ran.\n",
                                                    analysisContext(settings, nullptr), second);
    EXPECT_TRUE(analysis.speakerReset);
    EXPECT_EQ(analysis.speaker, 0);
    const std::vector<std::string> said = analysis.messages();
    ASSERT_EQ(said.size(), 2u);
    EXPECT_EQ(said[0], speakerResetMessage());
    EXPECT_EQ(said[1], analysis.cutMessage());
    EXPECT_FALSE(said[1].empty());

    const TranscriptAnalysis plain = analyseText("$ Child, Examiner\nC I go/ed home.\nE ok.\n",
                                                 analysisContext(Settings{}, nullptr), second);
    EXPECT_FALSE(plain.speakerReset);
    EXPECT_EQ(plain.speaker, 1);
    EXPECT_TRUE(plain.messages().empty());
}

TEST(AnalysisSession, LinesTextAndFileGiveTheSameAnalysis) {
    const std::string text = "$ Child, Examiner\nC I go/ed home.\nE where?\nC (um) my house.\n";
    const AnalysisContext context = analysisContext(Settings{}, nullptr);
    const TranscriptAnalysis fromLines = analyseTranscript(linesOf(text), context);
    const TranscriptAnalysis fromText = analyseText(text, context);
    const fs::path file =
        fs::temp_directory_path() / ("tavi_session_" + std::to_string(::getpid()) + ".tvi");
    std::ofstream(file, std::ios::binary) << "\xEF\xBB\xBF" << text;
    const TranscriptAnalysis fromFile = analyseFile(file, context);
    fs::remove(file);
    for (const TranscriptAnalysis* a : {&fromText, &fromFile}) {
        EXPECT_EQ(a->check.problems.size(), fromLines.check.problems.size());
        for (MeasureId id : {MeasureId::NTW, MeasureId::NDW, MeasureId::MLUm, MeasureId::TotASetUt})
            EXPECT_EQ(a->measures().formatted(id), fromLines.measures().formatted(id));
    }
    EXPECT_EQ(fromLines.measures().formatted(MeasureId::NTW), "5");
}

// Measuring the analysed speaker alone gives that speaker every value that
// measuring both gives, the 2nd speaker and the fall back to the 1st included.
TEST(AnalysisSession, MeasuringOneSpeakerGivesThatSpeakersValues) {
    const AnalysisContext context = analysisContext(Settings{}, nullptr);
    const std::string talk = "$ Child, Examiner\n- 0:00\nC I go/ed home.\nE where did you go?\n"
                             "C (um) my house [EW:home].\nE oh.\nC we play/ed.\n- 1:00\n";
    const std::string alone = "$ Child\nC I go/ed home.\nC the dog/s ran.\n";
    for (const std::string* text : {&talk, &alone}) {
        for (int speaker : {0, 1}) {
            AnalysisRequest both, one;
            both.speaker = one.speaker = speaker;
            one.bothSpeakers = false;
            const TranscriptAnalysis a = analyseText(*text, context, both);
            const TranscriptAnalysis b = analyseText(*text, context, one);
            ASSERT_EQ(a.speaker, b.speaker);
            for (size_t id = 0; id < kMeasureCount; ++id)
                EXPECT_EQ(a.measures().formatted(static_cast<MeasureId>(id)),
                          b.measures().formatted(static_cast<MeasureId>(id)))
                    << measureName(static_cast<MeasureId>(id)) << " speaker " << speaker;
        }
    }
}

TEST(AnalysisSession, FilesWithoutByteOrderMarkAreReadInTheChosenEncoding) {
    const fs::path file =
        fs::temp_directory_path() / ("tavi_encoding_" + std::to_string(::getpid()) + ".tvi");
    // "$ Zoë, Examiner" in UTF-8 without a byte order mark: read as UTF-8
    // under the default choice, byte by byte under Windows-1252.
    std::ofstream(file, std::ios::binary) << "$ Zo\xC3\xAB, Examiner\nC hi.\n";
    EXPECT_EQ(loadTranscript(file).lines.at(0).text, "$ Zo\xC3\xAB, Examiner");
    EXPECT_EQ(loadTranscript(file, TextEncoding::Windows1252).lines.at(0).text,
              "$ Zo\xC3\x83\xC2\xAB, Examiner");
    std::string text;
    ASSERT_TRUE(readTranscriptText(file, text, TextEncoding::Windows1252));
    EXPECT_EQ(text.substr(0, 8), "$ Zo\xC3\x83\xC2\xAB");
    fs::remove(file);

    Settings settings;
    EXPECT_EQ(analysisContext(settings, nullptr).encoding, TextEncoding::Utf8);
    settings.language.textEncoding = TextEncoding::Windows1252;
    EXPECT_EQ(analysisContext(settings, nullptr).encoding, TextEncoding::Windows1252);
}

TEST(AnalysisSession, CheckingAloneMeasuresNothingAndFilesThatCannotBeAnalysedSaySo) {
    const AnalysisContext context = analysisContext(Settings{}, nullptr);
    AnalysisRequest checkOnly;
    checkOnly.measure = false;
    const TranscriptAnalysis checked =
        analyseText("$ Child\nC I go/ed home.\n", context, checkOnly);
    EXPECT_TRUE(checked.check.segmented.utterances.empty());
    EXPECT_EQ(checked.check.utteranceCount, 1);

    EXPECT_EQ(analyseFile("/nonexistent/tavi.tvi", context).load, LoadStatus::CannotOpen);
    EXPECT_EQ(analyseFile(fs::temp_directory_path(), context).load, LoadStatus::CannotOpen);

    const fs::path file =
        fs::temp_directory_path() / ("tavi_nul_" + std::to_string(::getpid()) + ".tvi");
    std::ofstream(file, std::ios::binary) << std::string("$ Child\nC hi\0.\n", 15);
    EXPECT_EQ(analyseFile(file, context).load, LoadStatus::Corrupted);
    const TranscriptAnalysis listed = analyseFile(file, context, checkOnly);
    EXPECT_EQ(listed.load, LoadStatus::Ok);
    EXPECT_TRUE(listed.hasErrors());
    fs::remove(file);
}

} // namespace
} // namespace tavi
