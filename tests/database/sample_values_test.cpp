// The values stored with a database sample are analysed under the settings'
// analysis set, like every other analysis of the transcript.
#include <gtest/gtest.h>

#include "database/sample_values.h"
#include "transcript/transcript_file.h"

namespace tavi::db {
namespace {

TEST(SampleValues, FollowTheSettingsAnalysisSet) {
    const TranLines lines = splitTranscriptLines("$ Child, Examiner\nC I go/ed home.\n"
                                                 "C (um) the dog/s ran away.\nC XX.\nE ok.\n");
    Settings settings;
    sd2 standard{};
    analysisValues(analysisContext(settings, nullptr))(lines, 1, standard);
    EXPECT_EQ(standard.sets[0].setUtterances, 2);
    EXPECT_EQ(standard.sets[0].totalWords, 7);

    settings.analysisSet.excludeUnintelligible = 0;
    sd2 withUnintelligible{};
    analysisValues(analysisContext(settings, nullptr))(lines, 1, withUnintelligible);
    EXPECT_EQ(withUnintelligible.sets[0].setUtterances, 3);
    EXPECT_EQ(withUnintelligible.transcriptValue, 4);
}

} // namespace
} // namespace tavi::db
