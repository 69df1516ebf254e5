// Runs the checker over a small transcript held in a string and returns the
// problem lines exactly as `tavi check` prints them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transcript/check_listing.h"
#include "transcript/checker.h"
#include "transcript/segmenter.h"
#include "transcript/transcript_file.h"

namespace tavi::test {

inline std::vector<std::string> listing(std::string_view text, const CheckOptions& options = {}) {
    LoadedTranscript t = decodeTranscript(text);
    CheckResult result = checkTranscript(t.lines, options);
    std::vector<std::string> out;
    for (const err& e : result.problems)
        out.push_back(formatProblem(e));
    return out;
}

// The same with a "$ Child, Examiner" line first, so `body` starts at line 2.
inline std::vector<std::string> listingAfterSpeakers(std::string_view body,
                                                     const CheckOptions& options = {}) {
    return listing("$ Child, Examiner\n" + std::string(body), options);
}

using Lines = std::vector<std::string>;

} // namespace tavi::test
