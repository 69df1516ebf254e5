// Looking up, running and cross-checking command handlers.
#include "app/command_registry.h"

#include <algorithm>

namespace tavi::app {

void CommandRegistry::add(CommandId id, std::function<void()> run, std::function<bool()> enabled) {
    std::optional<Handler>& slot = handlers_[index(id)];
    if (slot) {
        duplicates_.push_back(id);
        return;
    }
    slot = Handler{std::move(run), std::move(enabled)};
}

bool CommandRegistry::enabled(CommandId id) const {
    const std::optional<Handler>& h = handlers_[index(id)];
    return h && (!h->enabled || h->enabled());
}

bool CommandRegistry::run(CommandId id) const {
    if (!enabled(id))
        return false;
    handlers_[index(id)]->run();
    return true;
}

std::vector<CommandId> CommandRegistry::registered() const {
    std::vector<CommandId> ids;
    for (CommandId id : allCommands())
        if (has(id))
            ids.push_back(id);
    return ids;
}

std::vector<std::string> CommandRegistry::mismatches() const {
    std::vector<CommandId> inMenu;
    for (const MenuEntry& e : mainMenuTable())
        if (e.kind == EntryKind::Item)
            inMenu.push_back(e.command);
    std::vector<std::string> found;
    for (CommandId id : allCommands()) {
        const std::string name = commandName(id);
        const bool working = commandStatus(id) == CommandStatus::Working;
        if (working && !has(id))
            found.push_back(name + " is marked working but has no handler");
        if (!working && has(id))
            found.push_back(name + " has a handler but is marked unavailable");
        if (has(id) && std::find(inMenu.begin(), inMenu.end(), id) == inMenu.end())
            found.push_back(name + " has a handler but is not in the main menu");
    }
    for (CommandId id : duplicates_)
        found.push_back(std::string(commandName(id)) + " has more than one handler");
    return found;
}

} // namespace tavi::app
