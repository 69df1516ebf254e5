// Speed of the whole measure computation per MB of transcript, beside checking
// and segmenting the same text, so the two can be compared. Run from the
// source tree (or set TAVI_DATA_GROUP) to use the real word lists and
// dictionary; otherwise small made-up ones are used.
#include <benchmark/benchmark.h>

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

class SilentPrompter final : public Prompter {
public:
    void inform(std::string_view) override {}
    Answer ask(std::string_view) override { return Answer::No; }
    bool confirm(std::string_view) override { return false; }
};

// About `bytes` of conversation with mazes, codes, pauses, timing lines and
// every terminator, from a fixed seed.
std::string makeTranscript(size_t bytes) {
    static const char* child[] = {"I went/ed to the park with my mom/z friend.",
                                  "(um) the (b) big dog/s ran/*ed away!",
                                  "he+'s X happy : now.",
                                  "and then we jump/ed [EW:jumped] over *the fence.",
                                  "I like/ed it {laughs}.",
                                  "the cat >",
                                  "because it was raining and we could/n't go outside.",
                                  "<yeah>.",
                                  "what is that?",
                                  "(I want) I want the red one ~"};
    static const char* adult[] = {"what did you do?", "tell me more about that ~",
                                  "really?",          "and then what happened ^",
                                  "oh wow.",          "did you like it?"};
    std::mt19937 rng(42);
    std::string t = "$ Child, Examiner\n+ Name: Bench\n+ Context: Con\n- 0:00\n";
    int seconds = 0;
    while (t.size() < bytes) {
        t += "E ";
        t += adult[rng() % std::size(adult)];
        t += "\n";
        for (int k = 0, n = 1 + static_cast<int>(rng() % 3); k < n; ++k) {
            t += "C ";
            t += child[rng() % std::size(child)];
            t += "\n";
        }
        if (rng() % 10 == 0)
            t += ": 0:02\n";
        if (rng() % 20 == 0) {
            seconds += 30;
            t += "- " + std::to_string(seconds / 60) + ":" + (seconds % 60 < 10 ? "0" : "") +
                 std::to_string(seconds % 60) + "\n";
        }
    }
    return t;
}

std::string dataFolder() {
    if (const char* env = std::getenv("TAVI_DATA_GROUP"))
        return std::string(env) + "/";
    for (std::filesystem::path p = std::filesystem::current_path(); !p.empty();
         p = p.parent_path()) {
        if (std::filesystem::exists(p / "data/GC/GCDictionaryFile.txt"))
            return (p / "data/").string();
        if (p == p.root_path())
            break;
    }
    return {};
}

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
