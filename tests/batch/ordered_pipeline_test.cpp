// The batch's rows must come out in the transcripts' order whatever the number
// of threads, with a bounded number of transcripts in memory at once.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "batch/ordered_pipeline.h"

namespace tavi {
namespace {

// Jobs of uneven length, so later jobs often finish before earlier ones.
int slowSquare(size_t i) {
    std::this_thread::sleep_for(std::chrono::microseconds((i * 7919) % 300));
    return static_cast<int>(i * i);
}

TEST(OrderedPipeline, ResultsInOrderWithAnyThreadCount) {
    for (unsigned threads : {1u, 2u, 3u, 8u}) {
        std::vector<size_t> order;
        std::vector<int> values;
        runInOrder<int>(200, threads, 2 * threads, slowSquare, [&](size_t i, int& v) {
            order.push_back(i);
            values.push_back(v);
            return true;
        });
        ASSERT_EQ(order.size(), 200u) << threads;
        for (size_t i = 0; i < order.size(); ++i) {
            EXPECT_EQ(order[i], i);
            EXPECT_EQ(values[i], static_cast<int>(i * i));
        }
    }
}

TEST(OrderedPipeline, NoMoreThanTheWindowAtOnce) {
    std::atomic<int> held{0};
    std::atomic<int> most{0};
    const size_t window = 5;
    runInOrder<int>(
        300, 4, window,
        [&](size_t i) {
            int now = ++held;
            int seen = most.load();
            while (now > seen && !most.compare_exchange_weak(seen, now)) {
            }
            return slowSquare(i);
        },
        [&](size_t, int&) {
            --held;
            return true;
        });
    EXPECT_LE(most.load(), static_cast<int>(window));
    EXPECT_EQ(held.load(), 0);
}

TEST(OrderedPipeline, StopsWhenCommitDeclinesAndRethrowsInOrder) {
    std::atomic<int> started{0};
    std::vector<size_t> committed;
    runInOrder<int>(
        1000, 4, 8,
        [&](size_t i) {
            ++started;
            return slowSquare(i);
        },
        [&](size_t i, int&) {
            committed.push_back(i);
            return i < 9;
        });
    EXPECT_EQ(committed.size(), 10u);
    EXPECT_LE(started.load(), 10 + 8);

    std::vector<size_t> before;
    EXPECT_THROW(runInOrder<int>(
                     50, 3, 6,
                     [](size_t i) {
                         if (i == 20)
                             throw std::runtime_error("disk");
                         return slowSquare(i);
                     },
                     [&](size_t i, int&) {
                         before.push_back(i);
                         return true;
                     }),
                 std::runtime_error);
    EXPECT_EQ(before.size(), 20u);
}

} // namespace
} // namespace tavi
