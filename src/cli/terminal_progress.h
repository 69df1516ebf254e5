// A progress bar for long `tavi` commands, drawn on stderr, on one line that
// is redrawn in place. Commands use it only when stderr is a terminal.
#pragma once

#include <ostream>
#include <string>

#include "base/progress.h"

namespace tavi::cli {

class TerminalProgress final : public Progress {
public:
    explicit TerminalProgress(std::ostream& err) : err_(err) {}
    void start(int total, std::string_view caption) override;
    void step() override;
    void finish() override;

    // Whether standard error is a terminal (where a bar can be drawn).
    static bool stderrIsTerminal();

private:
    void draw();
    std::ostream& err_;
    std::string caption_;
    int total_ = 0;
    int done_ = 0;
    int lastPermille_ = -1;
};

} // namespace tavi::cli
