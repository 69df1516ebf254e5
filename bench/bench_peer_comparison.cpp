// Comparing a transcript with a reference database of 10,000 samples:
// selecting the samples and recalculating every measure of each through the
// analysis session, then the statistics. Wall time is what a clinician
// waits; it is printed for one and two threads, never asserted.
#include <benchmark/benchmark.h>

#include "bench_support.h"

#include <filesystem>

#include "base/file_io.h"
#include "database/peer_selection.h"
#include "settings/keyword_file.h"
#include "transcript/transcript_file.h"

namespace {

using namespace tavi;
using namespace tavi::bench;
using namespace tavi::db;

constexpr int kSamples = 10000;

// A sample of 25 child utterances with timing lines, varied by its number.
std::string sampleText(int i) {
    static const char* kUtterances[] = {"C I went to the park with my mom.",
                                        "C (um) we saw a big dog/s.",
                                        "C he was run/ing really fast.",
                                        "C and then he jump/ed in the water.",
                                        "C my brother like/s to swim.",
                                        "C we eat/*ed sandwich/s.",
                                        "C it was fun.",
                                        "C I want to go again tomorrow."};
    std::string text = "$ Child, Examiner\n+ CA: " + std::to_string(4 + i % 8) + ";" +
                       std::to_string(i % 12) + "\n+ Gender: " + (i % 2 ? "F" : "M") +
                       "\n+ Context: Con\n- 0:00\n";
    for (int u = 0; u < 25; ++u) {
        text += kUtterances[(u + i) % 8];
        text += "\nE oh really?\n";
        if (u % 10 == 9)
            text += "- " + std::to_string(u / 10 + 1) + ":" + std::to_string(10 + i % 40) + "\n";
    }
    return text + "- 3:00\n";
}

// The database file, written once.
const std::filesystem::path& databasePath() {
    static const std::filesystem::path path = [] {
        std::filesystem::path p = std::filesystem::temp_directory_path() / "tavi-bench-peers.tvidb";
        std::filesystem::remove(p);
        SilentPrompter prompter(Answer::Yes);
        DescriptiveHeader info;
        info.context = "Conversation";
        createDatabase(p, info, prompter);
        auto db = openDatabase(p, OpenFor::Writing, prompter);
        for (int i = 0; i < kSamples; ++i) {
            sd2 record;
            record.key = "s" + std::to_string(i) + ";1";
            record.buildOption1 = 1;
            record.ageMonths = static_cast<std::int16_t>((4 + i % 8) * 12 + i % 12);
            record.gender = i % 2 ? kGenderFemale : kGenderMale;
            record.flags = kFlagTimed;
            db->append(record, sampleText(i), prompter);
        }
        return p;
    }();
    return path;
}

AnalysisContext context() {
    Settings settings;
    settings.folders.sharedData = std::string(TAVI_SOURCE_DATA_DIR) + "/";
    std::string bytes;
    settings.standardWordListFound = readFile(settings.folders.sharedData + "TaviSWL.txt", bytes);
    settings.standardWordListLines = keywordTextLines(bytes);
    SilentPrompter prompter(Answer::Yes);
    return analysisContext(settings, prompter);
}

// Every record selected (an age range over all of them), equated by total
// words, on 1 or 2 threads; the database opened and read each time.
void BM_CompareWith10000Samples(benchmark::State& state) {
    const AnalysisContext ctx = context();
    const std::string transcript = sampleText(3);
    const TranLines lines = splitTranscriptLines(transcript);
    const TranscriptAnalysis analysis = analyseTranscript(lines, ctx);
    const PeerTarget target = peerTarget("t.tvi", lines, analysis, ctx);
    SilentPrompter prompter(Answer::Yes);
    NoProgress progress;
    const auto& path = databasePath();
    for (auto _ : state) {
        auto database = PeerDatabase::open(path, prompter);
        PeerSelection selection;
        selection.database = path;
        selection.age = AgeCriterion::Range;
        selection.ageFrom = "0;0";
        selection.ageTo = "20;0";
        auto match = matchSamples(*database, selection, target, {}, prompter, progress);
        auto values =
            peerSampleValues(*database, *match, ctx, EquatingMethod::TotalWords, target.amount,
                             false, prompter, progress, static_cast<int>(state.range(0)));
        auto stats = peerStatistics(*values);
        benchmark::DoNotOptimize(stats);
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
    state.counters["samples"] = kSamples;
}
BENCHMARK(BM_CompareWith10000Samples)
    ->Arg(1)
    ->Arg(2)
    ->ArgName("threads")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

// The same comparison again on an open database: the samples' values come
// from its cache (same settings, same equating), as when a second report
// compares with the same selection.
void BM_CompareAgainCached(benchmark::State& state) {
    const AnalysisContext ctx = context();
    const std::string transcript = sampleText(3);
    const TranLines lines = splitTranscriptLines(transcript);
    const TranscriptAnalysis analysis = analyseTranscript(lines, ctx);
    const PeerTarget target = peerTarget("t.tvi", lines, analysis, ctx);
    SilentPrompter prompter(Answer::Yes);
    NoProgress progress;
    auto database = PeerDatabase::open(databasePath(), prompter);
    PeerSelection selection;
    selection.database = databasePath();
    selection.age = AgeCriterion::Range;
    selection.ageFrom = "0;0";
    selection.ageTo = "20;0";
    comparePeers(*database, selection, target, ctx, {}, prompter, progress); // fills the cache
    for (auto _ : state) {
        auto snapshot = comparePeers(*database, selection, target, ctx, {}, prompter, progress);
        benchmark::DoNotOptimize(snapshot);
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}
BENCHMARK(BM_CompareAgainCached)->Unit(benchmark::kMillisecond)->UseRealTime();

// Selection alone: the record test over 10,000 records.
void BM_SelectOnly(benchmark::State& state) {
    SilentPrompter prompter(Answer::Yes);
    NoProgress progress;
    auto database = PeerDatabase::open(databasePath(), prompter);
    PeerTarget target;
    target.ageMonths = 84;
    PeerSelection selection;
    selection.database = databasePath();
    selection.useGender = true;
    selection.gender = "F";
    for (auto _ : state) {
        auto match = matchSamples(*database, selection, target, {}, prompter, progress);
        benchmark::DoNotOptimize(match);
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}
BENCHMARK(BM_SelectOnly)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
