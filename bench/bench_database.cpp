// Database file speed: appending samples by the chain algorithm and walking
// the chain of a database with thousands of records, in memory so the disk
// does not blur the figures. Printed, never asserted.
#include <benchmark/benchmark.h>

#include <string>

#include "database/database_file.h"

namespace {

using namespace tavi::db;

class QuietPrompter final : public tavi::Prompter {
public:
    void inform(std::string_view) override {}
    tavi::Answer ask(std::string_view) override { return tavi::Answer::Yes; }
    bool confirm(std::string_view) override { return true; }
};

const std::string kTranscript = [] {
    std::string text = "$ Child, Examiner\n+ CA: 5;2\n+ Context: Con\n";
    for (int i = 0; i < 200; ++i)
        text += "C I play/ed with my dog and the cat at the park.\nE oh really?\n";
    return text;
}();

Database filledDatabase(int records) {
    DescriptiveHeader info;
    info.context = "Conversation";
    Database db(std::make_unique<tavi::MemoryDbFile>(newDatabaseBytes(info)), "bench.tvidb");
    QuietPrompter prompter;
    for (int i = 0; i < records; ++i) {
        sd2 record;
        record.key = "sample" + std::to_string(i) + ";1";
        db.append(record, kTranscript, prompter);
    }
    return db;
}

void BM_Append(benchmark::State& state) {
    for (auto _ : state) {
        Database db = filledDatabase(static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(db.header());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Append)->Arg(1000);

void BM_WalkAndRead(benchmark::State& state) {
    Database db = filledDatabase(static_cast<int>(state.range(0)));
    QuietPrompter prompter;
    for (auto _ : state) {
        auto records = db.records(prompter);
        std::size_t bytes = 0;
        for (const sd2& record : *records)
            bytes += db.readTranscript(record, prompter)->size();
        benchmark::DoNotOptimize(bytes);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WalkAndRead)->Arg(5000);

} // namespace

BENCHMARK_MAIN();
