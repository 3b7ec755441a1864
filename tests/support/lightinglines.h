#pragma once

#include <QString>

/// The lines that hold no colour.
namespace LightingLines {

/// Of a backlight that is off, or dimmed to nothing without an effect.
const QString off = QStringLiteral("3758108672,3758108672,3758108672,3758108672,0");
/// Has the agent initialise the keyboard.
const QString wake = QStringLiteral("3758616583,3758616583,3758616583,3758616583,0");

} // namespace LightingLines
