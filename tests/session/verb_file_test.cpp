// The verb file: read with the other measure resources from the data folder;
// a verb the dictionary lacks is counted as a verb; a missing file is said
// through the prompter and the verb recognition is off.
#include <gtest/gtest.h>

#include <algorithm>

#include "../settings/temp_folder.h"
#include "../support/recording_prompter.h"
#include "analysis/grammatical_categories.h"
#include "session/analysis_session.h"

namespace tavi {
namespace {

constexpr std::string_view kSample = "$ Child, Examiner\n"
                                     "C I zorp.\n"
                                     "C I blick/ed it.\n";

bool said(const test::RecordingPrompter& p, std::string_view text) {
    return std::ranges::find(p.messages, text) != p.messages.end();
}

struct VerbRun {
    test::RecordingPrompter prompter;
    TranscriptAnalysis analysis;
};

VerbRun analyseWith(const test::TempFolder& data) {
    Settings settings;
    settings.folders.sharedData = data.folder();
    VerbRun run;
    run.analysis = analyseText(kSample, analysisContext(settings, run.prompter));
    return run;
}

TEST(VerbFile, AVerbTheDictionaryLacksIsCountedAsAVerb) {
    test::TempFolder data;
    data.write("GC/GCDictionaryFile.txt", "I [GC:PPRON]\nit [GC:PPRON]\n");
    data.write("verbs.txt", "blick\nblicked\nzorp\nzorps\n");
    const VerbRun run = analyseWith(data);
    EXPECT_FALSE(said(run.prompter, "Unable to open RIF verb file"));
    const SpeakerMeasures& m = run.analysis.measures();
    // "zorp" has no verb ending: only the verb file makes it a verb.
    EXPECT_EQ(m.categories[GcVerb].total, 2);
    EXPECT_EQ(m.categories[GcNoun].total, 0);
    EXPECT_EQ(m.find("VPU")->asReal(), 1.0);
}

TEST(VerbFile, AMissingFileIsSaidAndVerbRecognitionIsOff) {
    test::TempFolder data;
    data.write("GC/GCDictionaryFile.txt", "I [GC:PPRON]\nit [GC:PPRON]\n");
    const VerbRun run = analyseWith(data);
    EXPECT_TRUE(said(run.prompter, "Unable to open RIF verb file"));
    const SpeakerMeasures& m = run.analysis.measures();
    // The form alone decides: "blick/ed" is a verb, "zorp" a noun.
    EXPECT_EQ(m.categories[GcVerb].total, 1);
    EXPECT_EQ(m.categories[GcNoun].total, 1);
    EXPECT_EQ(m.find("VPU")->asReal(), 0.5);
}

} // namespace
} // namespace tavi
