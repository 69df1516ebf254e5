// Calls from the desktop program into the transcript core.
#include "app/core_bridge.h"

#include "app/tavi_app.h"

namespace tavi::app {

bool checkerAvailable() {
    return true;
}

std::vector<err> checkTranscript(const CTAVIApp& app, const TranLines& lines) {
    AnalysisRequest checkOnly;
    checkOnly.measure = false;
    return analyseTranscript(lines, analysisContext(app.settings(), nullptr), checkOnly)
        .check.problems;
}

} // namespace tavi::app
