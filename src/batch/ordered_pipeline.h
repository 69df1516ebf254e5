// Many independent jobs on all cores, with their results handed over in job
// order on the calling thread. At most `window` jobs are running or waiting to
// be handed over at any time, so memory stays bounded however many jobs there
// are, and the results come out the same whatever the number of threads.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace tavi {

// The number of threads to use for `requested` (0: one per core).
inline unsigned threadCount(unsigned requested) {
    if (requested > 0)
        return requested;
    unsigned cores = std::thread::hardware_concurrency();
    return cores > 0 ? cores : 1;
}

// Runs `work(i)` for every i below `count` on `threads` threads and hands each
// result to `commit(i, result)` on the calling thread, in order of i. When
// `commit` returns false no further results are handed over and the remaining
// jobs are not started. An exception thrown by a job is rethrown here, in its
// place in the order.
template <class Result>
void runInOrder(std::size_t count, unsigned threads, std::size_t window,
                const std::function<Result(std::size_t)>& work,
                const std::function<bool(std::size_t, Result&)>& commit) {
    if (threads <= 1 || count <= 1) {
        for (std::size_t i = 0; i < count; ++i) {
            Result r = work(i);
            if (!commit(i, r))
                return;
        }
        return;
    }
    if (window < threads)
        window = threads;

    struct Slot {
        std::optional<Result> value;
        std::exception_ptr error;
        bool ready = false;
    };
    std::vector<Slot> slots(window);
    std::mutex mutex;
    std::condition_variable canStart; // a job may start: the window moved or the run stopped
    std::condition_variable isReady;  // a result arrived
    std::size_t next = 0;             // the next job to start
    std::size_t handedOver = 0;       // results already given to `commit`
    bool stop = false;

    auto worker = [&] {
        for (;;) {
            std::size_t i;
            {
                std::unique_lock lock(mutex);
                canStart.wait(lock,
                              [&] { return stop || next >= count || next < handedOver + window; });
                if (stop || next >= count)
                    return;
                i = next++;
            }
            Slot done;
            try {
                done.value.emplace(work(i));
            } catch (...) {
                done.error = std::current_exception();
            }
            done.ready = true;
            {
                std::lock_guard lock(mutex);
                slots[i % window] = std::move(done);
            }
            isReady.notify_one();
        }
    };

    std::vector<std::jthread> pool;
    auto stopPool = [&] {
        {
            std::lock_guard lock(mutex);
            stop = true;
        }
        canStart.notify_all();
        pool.clear(); // joins
    };
    for (unsigned t = 0; t < threads; ++t)
        pool.emplace_back(worker);

    try {
        for (std::size_t i = 0; i < count; ++i) {
            Slot taken;
            {
                std::unique_lock lock(mutex);
                isReady.wait(lock, [&] { return slots[i % window].ready; });
                taken = std::move(slots[i % window]);
                slots[i % window] = Slot{};
            }
            if (taken.error)
                std::rethrow_exception(taken.error);
            bool more = commit(i, *taken.value);
            taken = Slot{}; // the result is released before the window moves on
            {
                std::lock_guard lock(mutex);
                ++handedOver;
            }
            canStart.notify_all();
            if (!more)
                break;
        }
    } catch (...) {
        stopPool();
        throw;
    }
    stopPool();
}

} // namespace tavi
