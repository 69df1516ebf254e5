// A font of the settings ("DISPTRANFONT HEIGHT ..." lines) as a QFont and back,
// for the font commands of the user-level and the network setup.
#pragma once

#include <QFont>

#include "settings/settings.h"

namespace tavi::app {

// The setting's face, size, weight and slant over `fallback`, with the style
// name of the family that matches them.
QFont toQFont(const FontSetting& setting, const QFont& fallback);
// The chosen font into the setting; fields a QFont does not hold are kept.
FontSetting fromQFont(const QFont& font, FontSetting setting);

} // namespace tavi::app
