// What the benchmarks share: a prompter that stays silent, a generated
// transcript of any size, the source tree's data folder and the peak memory.
#pragma once

#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "base/prompter.h"

namespace tavi::bench {

// Says nothing and answers every question with `answer`.
class SilentPrompter final : public Prompter {
public:
    explicit SilentPrompter(Answer answer = Answer::No) : answer_(answer) {}
    void inform(std::string_view) override {}
    Answer ask(std::string_view) override { return answer_; }
    bool confirm(std::string_view) override { return answer_ == Answer::Yes; }

private:
    Answer answer_;
};

// About `bytes` of conversation with mazes, codes, pauses, bound morphemes,
// clitics, linked words, overlaps, comments, timing lines and every terminator.
inline std::string makeTranscript(size_t bytes) {
    static const char* child[] = {"I went/ed to the park with my mom/z friend.",
                                  "(um) the (b) big dog/s ran/*ed away!",
                                  "he+'s X happy : now.",
                                  "and then we jump/ed [EW:jumped] over *the fence.",
                                  "I like/ed it {laughs}.",
                                  "the cat >",
                                  "because it was raining and we could/n't go outside.",
                                  "<yeah>.",
                                  "what is that?",
                                  "we ate ice_ _cream and %goed home ((laughs)).",
                                  "(I want) I want the red one ~"};
    static const char* adult[] = {"what did you do?", "tell me more about that ~",
                                  "really?",          "and then what happened ^",
                                  "oh wow.",          "did you like it?"};
    std::mt19937 rng(42);
    std::string t = "$ Child, Examiner\n+ Name: Bench\n+ Context: Con\n- 0:00\n";
    t.reserve(bytes + 256);
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

// The data folder: $TAVI_DATA_GROUP, else the nearest data/ above the
// working folder.
inline std::string dataFolder() {
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

// The process's peak resident memory in megabytes.
inline double peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0; // kilobytes on Linux
}

} // namespace tavi::bench
