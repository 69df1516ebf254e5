// Colours that stay readable whatever the desktop's colour scheme: a colour
// chosen for a light background is made lighter on a dark one (or darker on
// a light one) until it stands out enough from the background.
#pragma once

#include <QColor>
#include <QPalette>

namespace tavi::app {

// The contrast ratio of two colours, from 1 (the same) to 21 (black on
// white), by the usual relative-luminance formula of accessibility guides.
double contrastRatio(const QColor& a, const QColor& b);

// `colour`, with its lightness moved away from `background` just enough for
// a contrast ratio of at least `ratio` (as near as the hue allows).
QColor readableOn(const QColor& colour, const QColor& background, double ratio = 4.5);

// True when the palette's text background is dark.
bool isDarkPalette(const QPalette& palette);

// `tint` laid thinly over the palette's text background: a marker that
// keeps the text on it readable.
QColor tintedBase(const QPalette& palette, const QColor& tint, double strength = 0.2);

} // namespace tavi::app
