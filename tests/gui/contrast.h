#pragma once

#include <QColor>

#include <algorithm>
#include <cmath>

/// Relative luminance, 0 (black) to 1 (white).
inline double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

/// Contrast of two colours, 1 (none) to 21 (black and white); from 4.5 on, text is readable.
inline double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}
