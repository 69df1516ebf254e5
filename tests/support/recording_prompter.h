// A prompter for tests: records every text it is shown and answers from a
// script, so tests can assert the exact messages and questions.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "base/prompter.h"

namespace tavi::test {

class RecordingPrompter final : public Prompter {
public:
    std::vector<std::string> messages; // every text, in order, as shown
    std::deque<Answer> answers;        // answers to `ask`, in order; Yes when empty
    std::deque<bool> confirmations;    // answers to `confirm`; true when empty

    void inform(std::string_view text) override { messages.emplace_back(text); }
    Answer ask(std::string_view text) override {
        messages.emplace_back(text);
        if (answers.empty())
            return Answer::Yes;
        Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    bool confirm(std::string_view text) override {
        messages.emplace_back(text);
        if (confirmations.empty())
            return true;
        bool c = confirmations.front();
        confirmations.pop_front();
        return c;
    }
};

} // namespace tavi::test
