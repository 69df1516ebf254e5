// Calls from the desktop program into the transcript core.
#include "app/core_bridge.h"

#include "transcript/checker.h"

namespace tavi::app {

bool checkerAvailable() {
    return true;
}

std::vector<err> checkTranscript(const CTAVIApp&, const TranLines& lines) {
    return tavi::checkTranscript(lines).problems;
}

} // namespace tavi::app
