#pragma once

#include <QSize>

#include <array>
#include <limits>

/// What the window changes for one range of the desktop's logical DPI. Lengths in pixels; zero or
/// an invalid size leaves what the form says.
struct DpiBand
{
    int highestDpi; ///< inclusive
    QSize windowMinimum = {};
    int controlSize = {}; ///< edge of the title buttons, least height of buttons, lists and fields
    QSize fullPicture = {}; ///< least sizes of the preview pictures
    QSize stripePicture = {};
    QSize zonePicture = {};
    int colourButton = {}; ///< least edge; deliberately above the form's greatest
    int barHeight = {};
    int frameHeight = {}; ///< least; deliberately above the form's greatest
    /// Heights of the blanks on the zone pages and on those of the settings. They never shrink from
    /// band to band, and leave the least window room for fonts taller than most.
    int pageSpacer = {};
    int settingsSpacer = {};

    /// The lowest bands change but a few of the widgets.
    constexpr bool changesEverything() const { return barHeight != 0; }
};

constexpr int anyDpi = std::numeric_limits<int>::max();

/// The first band that reaches the DPI applies. The steps are irregular on purpose.
constexpr std::array dpiBands{
    DpiBand{96, {600, 630}},
    DpiBand{120, {620, 680}, 30},
    DpiBand{144, {720, 780}, 34, {330, 115}, {330, 115}, {165, 115}, 0, 70, 110, 20, 1},
    DpiBand{168, {800, 890}, 38, {340, 125}, {340, 125}, {175, 125}, 0, 75, 140, 25, 2},
    DpiBand{192, {900, 960}, 42, {360, 145}, {360, 145}, {195, 145}, 50, 75, 140, 30, 2},
    DpiBand{216, {920, 1010}, 48, {360, 145}, {370, 155}, {205, 155}, 50, 75, 150, 30, 2},
    DpiBand{240, {980, 1050}, 48, {420, 155}, {380, 155}, {225, 155}, 50, 75, 160, 30, 3},
    DpiBand{287}, // a gap, kept on purpose: the form keeps its sizes
    DpiBand{335, {1200, 1250}, 52, {440, 165}, {400, 165}, {245, 165}, 60, 75, 180, 45, 3},
    DpiBand{anyDpi, {1200, 1250}, 56, {440, 165}, {400, 165}, {245, 165}, 60, 75, 180, 45, 3},
};

/// The band of a desktop's logical DPI.
constexpr const DpiBand &dpiBand(int logicalDpi)
{
    std::size_t i = 0;
    while (logicalDpi > dpiBands.at(i).highestDpi) {
        ++i;
    }
    return dpiBands.at(i);
}
