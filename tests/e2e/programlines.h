#pragma once

#include "tests/support/lightinglines.h"

#include <QString>

/// Saved settings and the lines that the program sends for them.
namespace Lines {

using LightingLines::off;
using LightingLines::wake;

constexpr const char *threeZonesSettings =
    "backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
    "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=1 2 3\n";
const QString threeZones = QStringLiteral("4026597120,4043309311,4076797952,4077060354,0");

/// The same after off and on, which leaves the stripe dark.
const QString threeZonesAgain = QStringLiteral("4026597120,4043309311,4076797952,4076863488,0");

/// Settings are applied a second after the window was made.
constexpr int appliedAfterMs = 2000;

} // namespace Lines
