#pragma once

#include <QPoint>

#include <algorithm>

/// Sizes of the picker widgets in widget pixels, and the way between marker positions and values.
namespace PickerGeometry {

constexpr int hueRange = 360; ///< largest hue position; 360 is red again
constexpr int svRange = 255;  ///< largest saturation and value
constexpr double hueStep = 1.0 / hueRange;
constexpr int margin = 2; ///< inset of every drawing from the widget's edge
constexpr int cornerRadius = 10;
constexpr int frameWidth = 2;
constexpr QPoint pixmapOrigin{margin, margin};

constexpr int stripWidth = 40;
constexpr int hueTop = margin;
constexpr int hueBottom = margin + hueRange;
constexpr int arrowLength = 10;
constexpr int arrowTipHalfHeight = 1;  ///< at the inner end
constexpr int arrowBaseHalfHeight = 5; ///< at the widget's edge

constexpr int squareSize = svRange + 1;
constexpr int svLow = margin;
constexpr int svHigh = margin + svRange;
constexpr int ringRadius = 5;
constexpr int ringWidth = 2;

constexpr int slowWheelStep = 1;
constexpr int fastWheelStep = 10; ///< with shift held

/// Hue 0..360 of a marker at @p y, which may lie outside the strip.
constexpr int hueAt(int y)
{
    return std::clamp(y - margin, 0, hueRange);
}

/// Marker of a hue; grey (-1) stands at the top.
constexpr int markerOfHue(int hue)
{
    return std::clamp(hue + hueTop, hueTop, hueBottom);
}

/// Saturation 0..255 of a marker at @p x, which may lie outside the square.
constexpr int saturationAt(int x)
{
    return std::clamp(x - margin, 0, svRange);
}

/// Value 0..255 of a marker at @p y, which may lie outside the square.
constexpr int valueAt(int y)
{
    return std::clamp(svRange - y + margin, 0, svRange);
}

/// Marker of a saturation and value, forced into the square.
constexpr QPoint markerOf(int saturation, int value)
{
    return {std::clamp(margin + saturation, svLow, svHigh),
            std::clamp(svHigh - value, svLow, svHigh)};
}

/// Whether @p position is on a pixel of the square.
constexpr bool isInSquare(const QPoint &position)
{
    return position.x() >= svLow && position.x() <= svHigh && position.y() >= svLow
           && position.y() <= svHigh;
}

} // namespace PickerGeometry
