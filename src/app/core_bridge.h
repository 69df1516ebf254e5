// Where the desktop program calls into the core for transcript work, so the
// windows do not depend on how each core function is spelled.
#pragma once

#include <string>
#include <vector>

#include "transcript/err.h"
#include "transcript/tran_line.h"

namespace tavi::app {

class CTAVIApp;

// True once the transcript checker is part of the program.
bool checkerAvailable();
// Every problem of a transcript, in line order.
std::vector<err> checkTranscript(const CTAVIApp& app, const TranLines& lines);

} // namespace tavi::app
