// The handlers of the menu commands by identifier: what each command runs and
// when it can be chosen. The frame fills one registry at start-up; the
// desktop tests hold it to the command list.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/command_table.h"

namespace tavi::app {

class CommandRegistry {
public:
    struct Handler {
        std::function<void()> run;
        std::function<bool()> enabled; // empty: always
    };

    // Registers the handler of a command. A second handler for one command
    // replaces nothing: it is kept out and reported by `mismatches()`.
    void add(CommandId id, std::function<void()> run, std::function<bool()> enabled = {});

    bool has(CommandId id) const { return handlers_[index(id)].has_value(); }
    // True when the command has a handler and its condition holds now.
    bool enabled(CommandId id) const;
    // Runs the command when it is enabled; false when it was not run.
    bool run(CommandId id) const;
    std::vector<CommandId> registered() const;

    // What does not agree between the handlers, the command list and the main
    // menu, one sentence each: a working command without a handler, a handler
    // for an unavailable command or for a command the main menu lacks, a
    // command registered twice. Empty when all agree.
    std::vector<std::string> mismatches() const;

private:
    static std::size_t index(CommandId id) { return static_cast<std::size_t>(id); }

    std::array<std::optional<Handler>, kCommandCount> handlers_;
    std::vector<CommandId> duplicates_;
};

} // namespace tavi::app
