// Flag parsing for the commands.
#include "cli/args.h"

#include <algorithm>

namespace tavi::cli {

Args::Args(const std::vector<std::string>& args, std::initializer_list<const char*> valued,
           std::initializer_list<const char*> switches) {
    auto in = [](std::initializer_list<const char*> list, const std::string& name) {
        return std::any_of(list.begin(), list.end(), [&](const char* n) { return name == n; });
    };
    bool onlyPositional = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (onlyPositional || arg.size() < 2 || arg[0] != '-') {
            positional_.push_back(arg);
            continue;
        }
        if (arg == "--") {
            onlyPositional = true;
            continue;
        }
        std::string name = arg;
        std::optional<std::string> inlineValue;
        if (auto eq = arg.find('='); arg.starts_with("--") && eq != std::string::npos) {
            name = arg.substr(0, eq);
            inlineValue = arg.substr(eq + 1);
        }
        if (in(switches, name) && !inlineValue) {
            values_.emplace(name, "");
        } else if (in(valued, name)) {
            if (inlineValue) {
                values_.emplace(name, *inlineValue);
            } else if (i + 1 < args.size()) {
                values_.emplace(name, args[++i]);
            } else {
                error_ = "option " + name + " needs a value";
                return;
            }
        } else {
            error_ = "unknown option " + arg;
            return;
        }
    }
}

std::optional<std::string> Args::value(const std::string& name) const {
    auto range = values_.equal_range(name);
    if (range.first == range.second)
        return std::nullopt;
    return std::prev(range.second)->second; // the last one given wins
}

std::vector<std::string> Args::values(const std::string& name) const {
    std::vector<std::string> out;
    auto range = values_.equal_range(name);
    for (auto it = range.first; it != range.second; ++it)
        out.push_back(it->second);
    return out;
}

} // namespace tavi::cli
