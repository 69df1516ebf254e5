// Speed of the whole measure computation per MB of transcript, beside checking
// and segmenting the same text, so the two can be compared. Run from the
// source tree (or set TAVI_DATA_GROUP) to use the real word lists and
// dictionary; otherwise small made-up ones are used.
#include <benchmark/benchmark.h>

#include "bench_support.h"

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "analysis/measures.h"
#include "analysis/word_lists.h"
#include "base/file_io.h"
#include "base/prompter.h"
#include "transcript/checker.h"
#include "transcript/transcript_file.h"

namespace {

using namespace tavi;
using namespace tavi::bench;

struct Resources {
    GcDictionary dictionary;
    StandardWordLists lists;
    Resources() {
        SilentPrompter p;
        std::string folder = dataFolder(), text;
        if (folder.empty() || !dictionary.loadFile(folder + "GC/GCDictionaryFile.txt", p))
            for (const char* line :
                 {"go [GC:VERB]", "the [GC:DET]", "dog [GC:NOUN]", "I [GC:PPRON]"})
                dictionary.insert(line);
        if (!folder.empty() && readFile(folder + "TaviSWL.txt", text))
            lists = StandardWordLists::parse(text);
        else
            lists = StandardWordLists::parse(
                "P_PERS i\nP_NEG not\nP_YESNO yeah\nP_FPAUSE um\nP_QUES wh*\n");
    }
};

const Resources& resources() {
    static const Resources r;
    return r;
}

SegmentedTranscript segment(const std::string& text) {
    CheckOptions o;
    o.keepSegmentation = true;
    return checkTranscript(splitTranscriptLines(text), o).segmented;
}

void BM_CheckAndSegment(benchmark::State& state) {
    const std::string text = makeTranscript(static_cast<size_t>(state.range(0)));
    for (auto _ : state) {
        CheckOptions o;
        o.keepSegmentation = true;
        benchmark::DoNotOptimize(checkTranscript(splitTranscriptLines(text), o));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void BM_Measures(benchmark::State& state) {
    const std::string text = makeTranscript(static_cast<size_t>(state.range(0)));
    const SegmentedTranscript t = segment(text);
    MeasureOptions o;
    o.dictionary = &resources().dictionary;
    o.wordLists = &resources().lists;
    for (auto _ : state)
        benchmark::DoNotOptimize(computeMeasures(t, o));
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

BENCHMARK(BM_CheckAndSegment)->Arg(64 << 10)->Arg(1 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Measures)->Arg(64 << 10)->Arg(1 << 20)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
