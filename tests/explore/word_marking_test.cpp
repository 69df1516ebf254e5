// Marking words for review: root identifications chosen from a root
// identification file and grammatical-category codes from the dictionary.
// What is written must pass the checker and be read back as intended.
#include <gtest/gtest.h>

#include "analysis/gc_dictionary.h"
#include "explore/word_marking.h"
#include "support/recording_prompter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

constexpr std::string_view kSample = "$ Child, Examiner\n"       // 1
                                     "+ Language: English\n"     // 2
                                     "C Mom went/ed home.\n"     // 3 "went" with an ending
                                     "E what did you see?\n"     // 4
                                     "C I saw (the) the mice!\n" // 5 two candidates
                                     "C they went|go and *the ran[EW:run].\n" // 6
                                     "C %goed and saw_ _saw.\n";              // 7 none taken

AnalysisContext context() {
    return analysisContext(Settings{}, nullptr);
}

const RifWords& words() {
    static const RifWords w =
        parseRifFile("went:go:\nsaw:see,saw:\nmice:mouse:\nran:run:\ndid:do:\ngoed::went\n").words;
    return w;
}

TEST(RootIdentification, CandidatesAreTheUnidentifiedFormsOfTheFile) {
    TranscriptAnalysis a = analyseText(kSample, context());
    ASSERT_FALSE(a.hasErrors());
    std::vector<RootCandidate> c =
        rootCandidates(a.check.segmented, splitTranscriptLines(kSample), words());
    std::vector<std::pair<int, std::string>> found;
    for (const RootCandidate& r : c)
        found.emplace_back(r.line, r.form);
    // "went|go" is identified already; "%goed" and the linked word are left alone.
    EXPECT_EQ(found, (std::vector<std::pair<int, std::string>>{
                         {3, "went"}, {4, "did"}, {5, "saw"}, {5, "mice"}, {6, "ran"}}));
    EXPECT_EQ(c[0].lineText.substr(c[0].wordStart, c[0].wordEnd - c[0].wordStart), "went/ed");
    EXPECT_EQ(c[2].choices.size(), 2u);
}

TEST(RootIdentification, ChosenRootsPassTheCheckerAndAreReadBack) {
    TranscriptAnalysis a = analyseText(kSample, context());
    std::vector<RootCandidate> c =
        rootCandidates(a.check.segmented, splitTranscriptLines(kSample), words());
    std::vector<LineChange> changes;
    for (const RootCandidate& r : c)
        changes.push_back(rootChange(r, r.choices.back()));
    const std::string text = applyLineChanges(kSample, changes);
    EXPECT_NE(text.find("C Mom went|go/ed home.\n"), std::string::npos) << text;
    EXPECT_NE(text.find("C I saw|saw (the) the mice|mouse!\n"), std::string::npos) << text;
    EXPECT_NE(text.find("*the ran|run[EW:run].\n"), std::string::npos) << text;

    TranscriptAnalysis again = analyseText(text, context());
    EXPECT_FALSE(again.hasErrors()) << text;
    EXPECT_TRUE(rootCandidates(again.check.segmented, splitTranscriptLines(text), words()).empty());
    const Utterance& u = again.check.segmented.utterances[0];
    EXPECT_EQ(u.words[1].rootIdentification(), "go");
    EXPECT_EQ(u.words[1].root(), "went");
}

TEST(RootIdentification, ReplacementStandsInPlaceOfTheFormAndLineEndsStay) {
    const std::string crlf = "$ Child\r\nC he goed/3s.\r\nC %goed.\r\n";
    TranscriptAnalysis a = analyseText(crlf, context());
    std::vector<RootCandidate> c =
        rootCandidates(a.check.segmented, splitTranscriptLines(crlf), words());
    ASSERT_EQ(c.size(), 1u);
    ASSERT_TRUE(c[0].choices[0].replacement);
    EXPECT_EQ(applyLineChanges(crlf, {rootChange(c[0], c[0].choices[0])}),
              "$ Child\r\nC he went/3s.\r\nC %goed.\r\n");
    EXPECT_EQ(applyLineChanges("a\nbc", {{2, 1, 2, "X"}, {2, 0, 0, "<"}, {1, 1, 1, "!"}}),
              "a!\n<bX");
}

TEST(CategoryCodes, EveryMainBodyWordOfTheSpeakerGetsItsCodeAndChecksClean) {
    GcDictionary dictionary(101);
    test::RecordingPrompter p;
    dictionary.load("mom [GC:NOUN]\nhome [GC:NOUN] [GC:AVERB]\ngo [GC:VERB]\nI [GC:PPRON]\n"
                    "see [GC:VERB]\nthe [GC:DET]\n",
                    p);
    const std::string text = "$ Child, Examiner\n"
                             "C Mom go/3s home.\n"
                             "E what did you see?\n"
                             "C I (the) see the[GC:ADJ] home [EU].\n"
                             "C *the go.\n";
    TranscriptAnalysis a = analyseText(text, context());
    ASSERT_FALSE(a.hasErrors());
    CategoryCodeOptions options;
    options.codes = categoryCodesToUse({});
    CodeEdit edit = insertCategoryCodes(text, a, &dictionary, options);
    EXPECT_EQ(edit.changed, 7);
    EXPECT_EQ(edit.text, "$ Child, Examiner\n"
                         "C Mom[GC:NOUN] go/3s[GC:VERB] home[GC:NOUN].\n"
                         "E what did you see?\n"
                         "C I[GC:PPRON] (the) see[GC:VERB] the[GC:ADJ] home[GC:NOUN] [EU].\n"
                         "C *the go[GC:VERB].\n");
    TranscriptAnalysis coded = analyseText(edit.text, context());
    EXPECT_FALSE(coded.hasErrors()) << edit.text;
    // Once coded, a second run finds nothing left to code.
    EXPECT_EQ(insertCategoryCodes(edit.text, coded, &dictionary, options).changed, 0);

    // The examiner alone; only the categories of the list; without skipping.
    options.speaker = 1;
    EXPECT_EQ(insertCategoryCodes(text, a, &dictionary, options).text,
              "$ Child, Examiner\n"
              "C Mom go/3s home.\n"
              "E what[GC:NOUN] did[GC:NOUN] you[GC:NOUN] see[GC:VERB]?\n"
              "C I (the) see the[GC:ADJ] home [EU].\n"
              "C *the go.\n");
    options.speaker = 0;
    options.skipCoded = false;
    options.codes = categoryCodesToUse({{3, ""}, {1, "DT"}});
    EXPECT_EQ(insertCategoryCodes(text, a, &dictionary, options).text,
              "$ Child, Examiner\n"
              "C Mom[GC:NOUN] go/3s home[GC:NOUN].\n"
              "E what did you see?\n"
              "C I (the) see the[DT][GC:ADJ] home[GC:NOUN] [EU].\n"
              "C *the go.\n");
}

} // namespace
} // namespace tavi
