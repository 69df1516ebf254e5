// Contrast and readable colours.
#include "app/palette_colours.h"

#include <algorithm>
#include <cmath>

namespace tavi::app {
namespace {

double channel(double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& c) {
    const QColor rgb = c.toRgb();
    return 0.2126 * channel(rgb.redF()) + 0.7152 * channel(rgb.greenF()) +
           0.0722 * channel(rgb.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b) {
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor readableOn(const QColor& colour, const QColor& background, double ratio) {
    if (contrastRatio(colour, background) >= ratio)
        return colour;
    const bool lighten = luminance(background) < 0.18;
    const QColor hsl = colour.toHsl();
    QColor best = colour;
    for (int step = 1; step <= 20; ++step) {
        const double l = std::clamp(hsl.lightnessF() + (lighten ? 0.05 : -0.05) * step, 0.0, 1.0);
        best = QColor::fromHslF(hsl.hslHueF(), hsl.hslSaturationF(), static_cast<float>(l));
        if (contrastRatio(best, background) >= ratio)
            break;
    }
    return best.toRgb();
}

bool isDarkPalette(const QPalette& palette) {
    return luminance(palette.color(QPalette::Base)) < 0.18;
}

QColor tintedBase(const QPalette& palette, const QColor& tint, double strength) {
    const QColor base = palette.color(QPalette::Base).toRgb();
    const QColor t = tint.toRgb();
    auto mix = [strength](double a, double b) { return a + (b - a) * strength; };
    return QColor::fromRgbF(static_cast<float>(mix(base.redF(), t.redF())),
                            static_cast<float>(mix(base.greenF(), t.greenF())),
                            static_cast<float>(mix(base.blueF(), t.blueF())));
}

} // namespace tavi::app
