// Speed of the CHAT import on the shared ENNI corpus (about 15 MB of CHAT in
// 361 files), read into memory first: the import alone, and the import with
// the check of every imported transcript. Prints nothing when the corpora
// beside the project are missing.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "analysis/gc_dictionary.h"
#include "base/file_io.h"
#include "base/prompter.h"
#include "import/chat_import.h"
#include "transcript/checker.h"

namespace {

namespace fs = std::filesystem;

struct Corpus {
    std::vector<std::string> files;
    size_t bytes = 0;
};

const Corpus& enni() {
    static const Corpus corpus = [] {
        Corpus c;
        fs::path root = fs::path(TAVI_SOURCE_DATA_DIR) / "../../shared/corpora/enni";
        if (!fs::is_directory(root))
            return c;
        for (const auto& e : fs::recursive_directory_iterator(root)) {
            if (e.path().extension() != ".cha")
                continue;
            std::string text;
            if (tavi::readFile(e.path(), text)) {
                c.bytes += text.size();
                c.files.push_back(std::move(text));
            }
        }
        return c;
    }();
    return corpus;
}

class Quiet final : public tavi::Prompter {
public:
    void inform(std::string_view) override {}
    tavi::Answer ask(std::string_view) override { return tavi::Answer::No; }
    bool confirm(std::string_view) override { return false; }
};

void run(benchmark::State& state, bool check) {
    const Corpus& corpus = enni();
    if (corpus.files.empty()) {
        state.SkipWithError("the shared ENNI corpus is not beside the project");
        return;
    }
    Quiet quiet;
    tavi::GcDictionary dictionary;
    dictionary.loadFile(std::string(TAVI_SOURCE_DATA_DIR) + "/GC/GCDictionaryFile.txt", quiet);
    tavi::ChatImportOptions options;
    options.dictionary = &dictionary;
    for (auto _ : state) {
        int errors = 0;
        for (const std::string& chat : corpus.files) {
            tavi::ChatImport imported = tavi::importChat(chat, options);
            if (check)
                errors += tavi::checkText(imported.text).errorCount();
            benchmark::DoNotOptimize(imported.text.data());
        }
        benchmark::DoNotOptimize(errors);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * corpus.bytes));
    state.counters["files"] = static_cast<double>(corpus.files.size());
}

void BM_ImportEnni(benchmark::State& state) {
    run(state, false);
}
void BM_ImportAndCheckEnni(benchmark::State& state) {
    run(state, true);
}
BENCHMARK(BM_ImportEnni)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImportAndCheckEnni)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
