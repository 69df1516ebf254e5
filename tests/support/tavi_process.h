// Runs the `tavi` program as a user would, with a settings folder of the
// test's own: stdout captured, stderr kept in a file beside it.
#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>

namespace tavi::test {

struct TaviRun {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs one shell command line: its standard output and exit status (-1 when
// it could not be started or did not exit normally).
inline TaviRun runShell(const std::string& command) {
    TaviRun run;
    FILE* pipe = ::popen(command.c_str(), "r");
    if (!pipe)
        return run;
    std::array<char, 4096> buffer{};
    size_t n;
    while ((n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0)
        run.out.append(buffer.data(), n);
    const int status = ::pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

inline TaviRun runTavi(const std::filesystem::path& settingsDir, const std::string& arguments) {
    const std::filesystem::path errFile = settingsDir / "stderr.txt";
    TaviRun run =
        runShell(std::string("'") + TAVI_BINARY + "' --settings-dir '" + settingsDir.string() +
                 "' " + arguments + " 2>'" + errFile.string() + "'");
    std::ifstream err(errFile, std::ios::binary);
    run.err.assign(std::istreambuf_iterator<char>(err), {});
    return run;
}

} // namespace tavi::test
