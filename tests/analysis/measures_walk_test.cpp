// The measure record of generated transcripts under many cuts, analysis sets
// and options: every value and table, compared with the record the engine
// gave when each family of measures walked the utterances on its own (kept
// as digests below), and the record of one speaker alone compared with the
// same speaker's record when both are measured.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "analysis/measure_context.h"
#include "analysis/measures.h"
#include "analysis/verb_list.h"
#include "analysis/word_lists.h"
#include "base/file_io.h"
#include "base/format.h"
#include "support/recording_prompter.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace tavi {
namespace {

const std::string kData = TAVI_SOURCE_DATA_DIR;

// Lines of each speaker, mixed at random: words with endings and clitics,
// mazes, omissions, codes on words and utterances, pauses, overlaps,
// remarks, comments, unintelligible marks and every terminator.
const char* const kChild[] = {
    "I went/ed to the park with my mom/z friend.",
    "(um) the (b) big dog/s ran/*ed away!",
    "he+'s X happy : now.",
    "and then we jump/ed [EW:jumped] over *the fence.",
    "I like/ed it {laughs}.",
    "the cat >",
    "because it was raining and we could/n't go outside [SI-2].",
    "<yeah>.",
    "what is that?",
    "we ate ice_cream and %goed home ((laughs)).",
    "(I want) I want the red one ~",
    "yes.",
    "no I did/n't.",
    "tell me more.",
    "did you like it?",
    "XXX.",
    "{nods}.",
    "the dog run/3s [GC:VERB] fast :02 and jump/3s.",
    "she goed [EO:went] [FL] to school [CS].",
    "my brother/s car [SI-1].",
    "um I think so [SI-0?].",
    "really?",
    "and then what happened ^",
    "he is eat/ing the apple/s quick/ly.",
    "(the the) the boy run/3s.",
    "X want/s (um) X.",
    "they have/*3s two ball/s [NM].",
    "I'm go/ing to the store [BEGIN].",
    "we saw a big big elephant [END].",
};
const char* const kAdult[] = {
    "what did you do?",
    "tell me more about that ~",
    "really?",
    "and then what happened ^",
    "oh wow.",
    "did you like it?",
    "yes.",
    "the cat ran away.",
    "he+'s happy now.",
    "I like/ed it.",
    "ok [BEGIN].",
};
const char* const kOther[] = {"hi there.", "what is that?", "look!"};

std::string generatedTranscript(std::mt19937& rng, int utterances) {
    std::string t = "$ Child, Examiner, Mother\n+ Name: Walk\n+ Context: Con\n";
    if (rng() % 4 != 0)
        t += "- 0:00\n";
    int seconds = 0;
    for (int n = 0; n < utterances; ++n) {
        const unsigned pick = rng() % 16;
        if (pick < 9)
            t += std::string("C ") + kChild[rng() % std::size(kChild)] + "\n";
        else if (pick < 14)
            t += std::string("E ") + kAdult[rng() % std::size(kAdult)] + "\n";
        else
            t += std::string("M ") + kOther[rng() % std::size(kOther)] + "\n";
        if (rng() % 12 == 0)
            t += rng() % 2 ? ": 0:02\n" : ":\n";
        if (rng() % 10 == 0) {
            seconds += 1 + static_cast<int>(rng() % 40);
            t += "- " + std::to_string(seconds / 60) + ":" + (seconds % 60 < 10 ? "0" : "") +
                 std::to_string(seconds % 60) + "\n";
        }
    }
    return t;
}

// A cut, analysis set and options chosen at random (case 0: the defaults).
MeasureOptions generatedOptions(std::mt19937& rng, int round) {
    MeasureOptions o;
    if (round == 0)
        return o;
    auto coin = [&] { return rng() % 2 == 0; };
    switch (rng() % 8) {
    case 0:
        break;
    case 1:
        o.cut.startType = TranscriptCut::FromUtterance;
        o.cut.startSpeaker = static_cast<int>(rng() % 2);
        o.cut.startUtterance = 1 + static_cast<int>(rng() % 30);
        o.cut.startBase = coin() ? 1 : 0;
        break;
    case 2:
        o.cut.endType = TranscriptCut::ToUtteranceCount;
        o.cut.endSpeaker = static_cast<int>(rng() % 3);
        o.cut.endValue = 1 + static_cast<int>(rng() % 50);
        break;
    case 3:
        o.cut.startType = TranscriptCut::FromCode;
        o.cut.startCode = "[BEGIN]";
        o.cut.endType = TranscriptCut::ToCode;
        o.cut.endCode = "[END]";
        break;
    case 4:
        o.cut.endType = TranscriptCut::ToWordCount;
        o.cut.endValue = 10 + static_cast<int>(rng() % 200);
        o.cut.wordArea = coin() ? 1 : 0;
        break;
    case 5:
        o.cut.endType = TranscriptCut::ToElapsedTime;
        o.cut.endTime = 10 + static_cast<int>(rng() % 100);
        break;
    case 6:
        o.cut.startType = TranscriptCut::FromUtterance;
        o.cut.startUtterance = 2 + static_cast<int>(rng() % 10);
        o.cut.endType = TranscriptCut::ToUtterance;
        o.cut.endSpeaker = static_cast<int>(rng() % 3);
        o.cut.endValue = 5 + static_cast<int>(rng() % 60);
        break;
    default:
        o.cut.endType = TranscriptCut::ToUtterance;
        o.cut.endValue = 1;
        break;
    }
    AnalysisSet& a = o.analysisSet;
    a.excludeImitations = coin();
    a.excludeYesNoResponses = coin();
    a.excludeOneWord = rng() % 4 == 0;
    a.excludeQuestionResponses = rng() % 4 == 0;
    a.excludePromptResponses = rng() % 4 == 0;
    a.excludeIncomplete = rng() % 4 != 0;
    a.excludeUnintelligible = rng() % 4 != 0;
    a.excludeNonverbal = rng() % 4 != 0;
    if (rng() % 5 == 0)
        a.excludeCodes = "FL";
    o.window = 10 + static_cast<int>(rng() % 20);
    o.subtractStartTime = coin();
    o.wordListsOnAnalysisSet = rng() % 3 != 0;
    o.wordListArea = static_cast<WordArea>(rng() % 3);
    o.distributionInMorphemes = coin();
    o.distributionOnAnalysisSet = coin();
    o.wordBase.excludeParenthetical = coin();
    if (rng() % 6 == 0) {
        o.wordBase.includeMode = coin();
        o.wordBase.excludeCodes = o.wordBase.includeCodes = "EW*";
    }
    return o;
}

void fold(std::uint64_t& h, std::string_view s) {
    for (unsigned char c : s)
        h = (h ^ c) * 0x100000001B3ull;
    h = (h ^ 0xFF) * 0x100000001B3ull; // a separator: "ab" "c" differs from "a" "bc"
}

// Every value, table and note of one speaker's record, as one number.
std::uint64_t digestOf(const SpeakerMeasures& m) {
    std::uint64_t h = 0xCBF29CE484222325ull;
    for (size_t id = 0; id < kMeasureCount; ++id)
        fold(h, m.formatted(static_cast<MeasureId>(id)));
    auto counts = [&](const auto& table) {
        for (const WordCount& c : table) {
            fold(h, std::to_string(c.types) + "/" + std::to_string(c.total));
            for (const std::string& w : c.words)
                fold(h, w);
        }
    };
    counts(m.wordLists);
    counts(m.categories);
    for (const std::vector<int>& list : m.utteranceLists) {
        std::string s;
        for (int i : list)
            s += std::to_string(i) + ",";
        fold(h, s);
    }
    fold(h, std::to_string(m.si.coded) + " " + std::to_string(m.si.awaitingReview) + " " +
                std::to_string(m.si.clauses) + " " + std::to_string(m.si.codedUtterances.size()));
    for (int n : m.si.byClauseCount)
        fold(h, std::to_string(n));
    fold(h, std::string{m.timingMissing ? 'T' : '-', m.pausesUntimed ? 'P' : '-',
                        m.somePausesUntimed ? 'S' : '-'});
    return h;
}

struct Resources {
    GcDictionary dictionary;
    StandardWordLists lists;
    VerbList verbs;
    Resources() {
        test::RecordingPrompter p;
        dictionary.loadFile(kData + "/GC/GCDictionaryFile.txt", p);
        std::string text;
        if (readFile(kData + "/TaviSWL.txt", text))
            lists = StandardWordLists::parse(text);
        if (readFile(kData + "/verbs.txt", text))
            verbs = VerbList::parse(text);
    }
};

constexpr int kRounds = 40;

// Digests of speaker 1 and 2 for each round, recorded from the engine whose
// families walked the utterances one by one.
const std::uint64_t kExpected[kRounds][2] = {
#include "measures_walk_digests.inc"
};

TEST(MeasuresWalk, GeneratedTranscriptsKeepTheirRecords) {
    const Resources r;
    std::mt19937 rng(20261123);
    std::string recorded;
    // What the rounds cover, so that a generator gone dull is noticed.
    int measured = 0, withMazes = 0, withSi = 0, withPauses = 0, withTurns = 0, partCuts = 0;
    for (int round = 0; round < kRounds; ++round) {
        const std::string text = generatedTranscript(rng, 20 + static_cast<int>(rng() % 200));
        const SegmentedTranscript t = segmentTranscript(splitTranscriptLines(text));
        MeasureOptions o = generatedOptions(rng, round);
        if (round % 5 != 4) {
            o.dictionary = &r.dictionary;
            o.wordLists = &r.lists;
            o.verbs = round % 3 ? &r.verbs : nullptr;
            o.wordListSet = round % 7 == 6 ? 1 : 0;
        }
        const MeasureResult both = computeMeasures(t, o);
        const SpeakerMeasures& child = both.speakers[0];
        measured += child[MeasureId::TotNumUt].asCount() > 0 ? 1 : 0;
        withMazes += child[MeasureId::TotNumMz].asCount() > 0 ? 1 : 0;
        withSi += child.si.coded > 0 ? 1 : 0;
        withPauses += child[MeasureId::NumPauseBtUt].asCount() > 0 ? 1 : 0;
        withTurns += child[MeasureId::TurnByTLUtTot].asCount() > 1 ? 1 : 0;
        partCuts += both.selection.utterances.size() < t.utterances.size() ? 1 : 0;
        const std::uint64_t first = digestOf(both.speakers[0]);
        const std::uint64_t second = digestOf(both.speakers[1]);
        recorded += "{0x" + format("%016llx", static_cast<unsigned long long>(first)) + "ull, 0x" +
                    format("%016llx", static_cast<unsigned long long>(second)) + "ull},\n";
        EXPECT_EQ(first, kExpected[round][0]) << "round " << round << "\n" << text;
        EXPECT_EQ(second, kExpected[round][1]) << "round " << round;

        // One speaker measured alone has the record it has beside the other.
        EXPECT_EQ(digestOf(computeMeasures(t, o, MeasuredSpeakers::First).speakers[0]), first)
            << "round " << round;
        EXPECT_EQ(digestOf(computeMeasures(t, o, MeasuredSpeakers::Second).speakers[1]), second)
            << "round " << round;
    }
    EXPECT_GE(measured, 30);
    EXPECT_GE(withMazes, 20);
    EXPECT_GE(withSi, 20);
    EXPECT_GE(withPauses, 20);
    EXPECT_GE(withTurns, 20);
    EXPECT_GE(partCuts, 15);
    if (::testing::Test::HasFailure())
        std::printf("digests now:\n%s", recorded.c_str());
}

// Turn lengths kept as counts of each value: number, sum, the rows of the
// length tables and the median, against the counts kept one by one and
// sorted; some above the bound of the counted values, some zero.
TEST(MeasuresWalk, CountTallyAgreesWithSortedCounts) {
    std::mt19937 rng(5);
    for (int round = 0; round < 300; ++round) {
        CountTally tally;
        std::vector<int> counts;
        const int n = 1 + static_cast<int>(rng() % 60);
        for (int k = 0; k < n; ++k) {
            const unsigned kind = rng() % 10;
            const int x = kind < 6   ? static_cast<int>(rng() % 8)
                          : kind < 8 ? static_cast<int>(rng() % 40)
                          : kind < 9 ? CountTally::kSmall - 1 + static_cast<int>(rng() % 3)
                                     : CountTally::kSmall + 1 + static_cast<int>(rng() % 100000);
            tally.add(x);
            counts.push_back(x);
        }
        std::sort(counts.begin(), counts.end());
        const size_t size = counts.size();
        const double median =
            size % 2 ? counts[size / 2] : (counts[size / 2 - 1] + counts[size / 2]) / 2.0;
        ASSERT_EQ(tally.size(), n);
        EXPECT_EQ(tally.median(), median) << round;
        long sum = 0;
        for (int x : counts)
            sum += x;
        EXPECT_EQ(tally.sum(), sum) << round;
        for (int x : {0, 1, 5, 6, 15, 39, CountTally::kSmall, CountTally::kSmall + 1}) {
            EXPECT_EQ(tally.howMany(x, false), std::count(counts.begin(), counts.end(), x));
            EXPECT_EQ(tally.howMany(x, true),
                      std::count_if(counts.begin(), counts.end(), [&](int c) { return c >= x; }));
        }
    }
}

} // namespace
} // namespace tavi
