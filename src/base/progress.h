// Long work (batches, database values) reports its progress through this
// interface; the front ends draw a bar, tests and pipes ignore it.
#pragma once

#include <string_view>

namespace tavi {

class Progress {
public:
    virtual ~Progress() = default;
    virtual void start(int total, std::string_view caption) = 0;
    virtual void step() = 0;
    virtual void finish() = 0;
    // True once the user asked to stop; long work looks between its steps.
    virtual bool cancelled() { return false; }
};

// Progress that shows nothing.
class NoProgress final : public Progress {
public:
    void start(int, std::string_view) override {}
    void step() override {}
    void finish() override {}
};

} // namespace tavi
