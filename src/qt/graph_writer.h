// Normative graphs drawn with QPainter and written as SVG, PNG or PDF (by
// the file's extension). Works without a display.
#pragma once

#include <filesystem>
#include <string>

#include <QtGui/QImage>

#include "reports/normative_graph.h"

namespace tavi::qt {

// The colours the graph is drawn in, so readers of the SVG find its parts.
inline constexpr const char* kGraphSampleColour = "#4a6fa5";
inline constexpr const char* kGraphTargetColour = "#d62728";
inline constexpr double kGraphTargetRadius = 7.0;

// The graph as an image, `scale` pixels per canvas unit.
QImage normativeGraphImage(const NormativeGraph& graph, double scale = 1.0);

// Writes the graph; "" or a message ("unknown graph format .x (use .svg,
// .png or .pdf)", "cannot write to file").
std::string saveNormativeGraph(const NormativeGraph& graph, const std::filesystem::path& path);

} // namespace tavi::qt
