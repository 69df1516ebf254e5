// The core never talks to a person itself: every message and question goes
// through this interface, so the desktop program can show dialogs, the command
// line can print and answer from flags, and tests can record the exact texts.
#pragma once

#include <string_view>

namespace tavi {

enum class Answer { Yes, No, Cancel };

class Prompter {
public:
    virtual ~Prompter() = default;
    // A message the person only has to read ("OK").
    virtual void inform(std::string_view text) = 0;
    // A question with Yes, No and Cancel; only Yes proceeds.
    virtual Answer ask(std::string_view text) = 0;
    // OK or Cancel; true for OK.
    virtual bool confirm(std::string_view text) = 0;
};

} // namespace tavi
