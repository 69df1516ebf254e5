// The command line's prompter: messages go to stderr; questions are answered
// by what the command's flags decided beforehand, and the answer is printed
// beside the question so a log shows what happened.
#pragma once

#include <ostream>

#include "base/prompter.h"

namespace tavi::cli {

class StreamPrompter final : public Prompter {
public:
    StreamPrompter(std::ostream& err, Answer answer, bool confirmAnswer)
        : err_(err), answer_(answer), confirmAnswer_(confirmAnswer) {}

    void inform(std::string_view text) override { err_ << text << '\n'; }
    Answer ask(std::string_view text) override;
    bool confirm(std::string_view text) override;

private:
    std::ostream& err_;
    Answer answer_;
    bool confirmAnswer_;
};

} // namespace tavi::cli
