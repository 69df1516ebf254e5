// Batch speed: thousands of generated transcripts (about 20 KB each) analysed
// with one thread and with every core; transcripts/s, MB/s and the peak
// memory of the process are printed. TAVI_BENCH_TRANSCRIPTS sets how many
// transcripts are generated (10,000 by default, about 200 MB).
#include <benchmark/benchmark.h>

#include "bench_support.h"

#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "base/file_io.h"
#include "base/progress.h"
#include "base/prompter.h"
#include "batch/batch_run.h"
#include "batch/variable_catalogue.h"
#include "settings/keyword_file.h"
#include "settings/measure_settings.h"

namespace {

namespace fs = std::filesystem;
using namespace tavi;
using namespace tavi::bench;

constexpr const char* kWords[] = {
    "the",      "a",      "dog",     "cat",  "went",   "run/ing", "big",  "house",   "my",
    "mom",      "said",   "play/ed", "ball", "and",    "then",    "we",   "they",    "look/ed",
    "at",       "tree/s", "jump/ed", "over", "little", "boy/s",   "girl", "because", "was",
    "is",       "happy",  "she",     "he",   "it",     "park",    "fast", "eat/ing", "pizza",
    "friend/s", "school", "car",     "red",  "blue",   "go",
};
constexpr size_t kWordCount = sizeof(kWords) / sizeof(kWords[0]);

std::string utterance(std::mt19937& rng, char speaker) {
    std::string u(1, speaker);
    int length = 2 + static_cast<int>(rng() % 9);
    for (int w = 0; w < length; ++w) {
        u += ' ';
        if (rng() % 23 == 0)
            u += "(um) ";
        u += kWords[rng() % kWordCount];
        if (rng() % 41 == 0)
            u += "[EW:goed]";
    }
    const char* ends[] = {".", ".", ".", "?", "!", ".", ">"};
    u += ends[rng() % 7];
    return u;
}

// One transcript of about `bytes` bytes: header lines, timing lines, both speakers.
std::string transcript(unsigned seed, size_t bytes) {
    std::mt19937 rng(seed);
    std::string t = "$ Child, Examiner\n+ Name: Child " + std::to_string(seed) +
                    "\n+ Gender: F\n+ CA: 7;4\n+ Context: Con\n- 0:00\n";
    int minute = 0;
    while (t.size() < bytes) {
        t += utterance(rng, rng() % 3 ? 'C' : 'E');
        t += '\n';
        if (rng() % 60 == 0)
            t += "- " + std::to_string(++minute) + ":00\n";
    }
    t += "- " + std::to_string(minute + 1) + ":00\n";
    return t;
}

struct Corpus {
    fs::path folder;
    std::vector<fs::path> files;
    double megabytes = 0;

    Corpus() {
        const char* env = std::getenv("TAVI_BENCH_TRANSCRIPTS");
        int count = env ? std::atoi(env) : 10000;
        folder = fs::temp_directory_path() / ("tavi_bench_batch_" + std::to_string(count));
        fs::create_directories(folder);
        size_t total = 0;
        for (int i = 0; i < count; ++i) {
            fs::path file = folder / ("t" + std::to_string(i) + ".tvi");
            std::error_code ec;
            if (!fs::exists(file, ec)) {
                std::ofstream(file, std::ios::binary)
                    << transcript(static_cast<unsigned>(i), 20000);
            }
            total += static_cast<size_t>(fs::file_size(file));
            files.push_back(file);
        }
        megabytes = static_cast<double>(total) / 1e6;
    }
    ~Corpus() {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
};

const Corpus& corpus() {
    static const Corpus c;
    return c;
}

// The word lists and dictionary of the source tree's data folder, as a run
// with the installed data would load them.
const MeasureResources& resources() {
    static const MeasureResources r = [] {
        Settings settings;
        settings.folders.sharedData = std::string(TAVI_SOURCE_DATA_DIR) + "/";
        std::string bytes;
        settings.standardWordListFound =
            readFile(settings.folders.sharedData + "TaviSWL.txt", bytes);
        settings.standardWordListLines = keywordTextLines(bytes);
        SilentPrompter prompter(Answer::Yes);
        return loadMeasureResources(settings, prompter);
    }();
    return r;
}

// Arg: threads (0: every core). The selection is the general columns and the
// Standard Measures Report group, a typical batch.
void BM_Batch(benchmark::State& state) {
    const Corpus& c = corpus();
    BatchRunOptions options;
    resources().attach(options.analysis.measures);
    options.threads = static_cast<unsigned>(state.range(0));
    const VariableCatalogue& catalogue = VariableCatalogue::standard();
    const VariableGroup& smr = catalogue.groups()[2];
    for (int i = 0; i < smr.count; ++i)
        chooseVariable(options.selections, catalogue, smr.first + i);
    SilentPrompter prompter(Answer::Yes);
    NoProgress progress;
    size_t rows = 0;
    for (auto _ : state) {
        std::optional<BatchResult> result = runBatch(c.files, options, prompter, progress);
        rows = result ? result->data.rows.size() : 0;
        benchmark::DoNotOptimize(result);
    }
    double n = static_cast<double>(c.files.size());
    state.counters["threads"] = static_cast<double>(
        options.threads ? options.threads : std::thread::hardware_concurrency());
    state.counters["transcripts/s"] =
        benchmark::Counter(n, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["MB/s"] =
        benchmark::Counter(c.megabytes, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["corpus_MB"] = c.megabytes;
    state.counters["rows"] = static_cast<double>(rows);
    state.counters["peak_RSS_MB"] = peakMegabytes();
}
BENCHMARK(BM_Batch)->Arg(1)->Arg(0)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

} // namespace

BENCHMARK_MAIN();
