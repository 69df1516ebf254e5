// A small parser for the flags of one command: "--name value", "--name=value",
// "-o value", bare switches and positional arguments.
#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavi::cli {

class Args {
public:
    // `valued` names the options that take a value (e.g. "--speaker", "-o");
    // `switches` names those that do not. Anything else starting with "-" is an error.
    Args(const std::vector<std::string>& args, std::initializer_list<const char*> valued,
         std::initializer_list<const char*> switches);

    bool ok() const { return error_.empty(); }
    const std::string& error() const { return error_; }

    bool has(const std::string& name) const { return values_.count(name) != 0; }
    std::optional<std::string> value(const std::string& name) const;
    // Every value given for a repeatable option, in order.
    std::vector<std::string> values(const std::string& name) const;
    const std::vector<std::string>& positional() const { return positional_; }

private:
    std::multimap<std::string, std::string> values_;
    std::vector<std::string> positional_;
    std::string error_;
};

} // namespace tavi::cli
