// `tavi`: every analysis of the desktop program, for scripts and pipelines.
#include <algorithm>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "cli/command.h"

namespace tavi::cli {

namespace {

std::vector<CommandInfo>& registry() {
    static std::vector<CommandInfo> list;
    return list;
}

void printUsage(std::ostream& out) {
    out << "Usage: tavi [--settings-dir DIR] COMMAND [OPTIONS] [FILE...]\n\n"
           "Language sample analysis: checks transcripts, computes measures, writes reports.\n\n"
           "Commands:\n";
    std::vector<CommandInfo> sorted = commands();
    std::sort(sorted.begin(), sorted.end(), [](const CommandInfo& a, const CommandInfo& b) {
        return std::string_view(a.name) < b.name;
    });
    for (const CommandInfo& c : sorted) {
        std::string name = c.name;
        name.resize(std::max<size_t>(name.size() + 2, 14), ' ');
        out << "  " << name << c.summary << '\n';
    }
    out << "\nRun 'tavi COMMAND --help' for a command's options.\n";
}

} // namespace

const std::vector<CommandInfo>& commands() {
    return registry();
}

CommandRegistrar::CommandRegistrar(const CommandInfo& info) {
    registry().push_back(info);
}

int runMain(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    std::optional<std::filesystem::path> settingsDir;
    size_t i = 0;
    while (i < args.size() && args[i].starts_with("-")) {
        if (args[i] == "--help" || args[i] == "-h") {
            printUsage(std::cout);
            return kExitOk;
        }
        if (args[i] == "--version") {
            std::cout << "tavi " << TAVI_VERSION << '\n';
            return kExitOk;
        }
        if (args[i] == "--settings-dir" && i + 1 < args.size()) {
            settingsDir = args[i + 1];
            i += 2;
            continue;
        }
        std::cerr << "tavi: unknown option " << args[i] << "\n";
        return kExitUsage;
    }
    if (i == args.size()) {
        printUsage(std::cerr);
        return kExitUsage;
    }
    const std::string& name = args[i];
    for (const CommandInfo& c : commands()) {
        if (name != c.name)
            continue;
        std::vector<std::string> rest(args.begin() + static_cast<long>(i) + 1, args.end());
        for (size_t k = 0; k < rest.size(); ++k) {
            if (rest[k] == "--help" || rest[k] == "-h") {
                std::cout << c.help << (c.helpTail ? c.helpTail() : std::string());
                return kExitOk;
            }
            if (rest[k] == "--settings-dir" && k + 1 < rest.size()) {
                settingsDir = rest[k + 1];
                rest.erase(rest.begin() + static_cast<long>(k),
                           rest.begin() + static_cast<long>(k) + 2);
                --k;
            }
        }
        CommandContext context{std::move(rest), std::cout, std::cerr, settingsDir};
        try {
            return c.run(context);
        } catch (const std::bad_alloc&) {
            std::cerr << "tavi " << name
                      << ": not enough memory for this work; nothing was written. Close other "
                         "programs or split the transcript, and try again\n";
            return kExitFailed;
        } catch (const std::exception& e) {
            std::cerr << "tavi " << name << ": " << e.what() << '\n';
            return kExitFailed;
        }
    }
    std::cerr << "tavi: unknown command '" << name << "'\n";
    printUsage(std::cerr);
    return kExitUsage;
}

} // namespace tavi::cli

int main(int argc, char** argv) {
    return tavi::cli::runMain(argc, argv);
}
