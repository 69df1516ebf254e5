// Questions answered from flags, printed to stderr.
#include "cli/stream_prompter.h"

namespace tavi::cli {

Answer StreamPrompter::ask(std::string_view text) {
    const char* word = answer_ == Answer::Yes ? "Yes" : answer_ == Answer::No ? "No" : "Cancel";
    err_ << text << " [" << word << "]\n";
    return answer_;
}

bool StreamPrompter::confirm(std::string_view text) {
    err_ << text << " [" << (confirmAnswer_ ? "OK" : "Cancel") << "]\n";
    return confirmAnswer_;
}

} // namespace tavi::cli
