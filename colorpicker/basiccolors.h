#pragma once

#include <QString>

#include <array>

/// A colour of the quick list.
struct BasicColor
{
    const char *name;    ///< as listed
    const char *chosen;  ///< RGB text that choosing the item sets
    const char *matched; ///< RGB text that selects the item when the picker opens
};

/// The quick list after its first item, which stands for no basic colour. The two texts of Purple
/// differ on purpose.
constexpr std::array<BasicColor, 8> basicColors{{
    {"Red", "255 0 0", "255 0 0"},
    {"White", "255 255 255", "255 255 255"},
    {"Blue", "0 0 255", "0 0 255"},
    {"Cyan", "0 255 255", "0 255 255"},
    {"Purple", "155 0 255", "153 0 255"},
    {"Yellow", "255 255 0", "255 255 0"},
    {"Green", "0 255 0", "0 255 0"},
    {"Orange", "255 85 0", "255 85 0"},
}};

/// The list index whose colour is exactly @p rgbText; 0 when there is none.
inline int basicColorIndex(const QString &rgbText)
{
    for (std::size_t i = 0; i < basicColors.size(); ++i) {
        if (rgbText == QLatin1String(basicColors.at(i).matched)) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

/// Whether either text of a list index is @p rgbText; the first item goes with any.
inline bool isBasicColor(int index, const QString &rgbText)
{
    if (index < 1 || index > static_cast<int>(basicColors.size())) {
        return index == 0;
    }
    const BasicColor &color = basicColors.at(static_cast<std::size_t>(index) - 1);
    return rgbText == QLatin1String(color.chosen) || rgbText == QLatin1String(color.matched);
}

/// The RGB text of a list index; empty for the first item and outside the list.
inline QString basicColorText(int index)
{
    if (index < 1 || index > static_cast<int>(basicColors.size())) {
        return {};
    }
    return QString::fromLatin1(basicColors.at(static_cast<std::size_t>(index) - 1).chosen);
}
