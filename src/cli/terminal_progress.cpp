// Drawing the progress bar: redrawn only when it moves by a tenth of a percent.
#include "cli/terminal_progress.h"

#include <unistd.h>

namespace tavi::cli {

namespace {
constexpr int kBarWidth = 40;
}

void TerminalProgress::start(int total, std::string_view caption) {
    caption_ = caption;
    total_ = total;
    done_ = 0;
    lastPermille_ = -1;
    draw();
}

void TerminalProgress::step() {
    ++done_;
    draw();
}

void TerminalProgress::finish() {
    err_ << "\r\033[K" << std::flush;
}

bool TerminalProgress::stderrIsTerminal() {
    return ::isatty(STDERR_FILENO) == 1;
}

void TerminalProgress::draw() {
    int permille = total_ > 0 ? static_cast<int>(1000LL * done_ / total_) : 1000;
    if (permille == lastPermille_)
        return;
    lastPermille_ = permille;
    int filled = permille * kBarWidth / 1000;
    err_ << '\r' << caption_ << " [" << std::string(static_cast<size_t>(filled), '#')
         << std::string(static_cast<size_t>(kBarWidth - filled), ' ') << "] " << done_ << '/'
         << total_ << std::flush;
}

} // namespace tavi::cli
