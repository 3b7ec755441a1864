#pragma once

#include "tests/gui/dpitest.h"

#include <QSize>

#include <array>

namespace DpiSizes {

/// What the window must come to on one side or the other of a band's border; -1 where the form
/// keeps its own. Written out apart from the program's table.
struct Expected
{
    int lowest;
    int highest;
    QSize window;
    int title;
    int firstControls;
    int secondControls;
    QSize full;
    QSize stripe;
    QSize zone;
    int colourButton;
    int bar;
    int frame;
    int pageSpacer;
    int settingsSpacer;
};

inline constexpr QSize formZone{145, 95};
inline constexpr QSize formPicture{310, 95};
inline constexpr std::array table{
    Expected{1, 96, {600, 630}, 25, 0, 30, formPicture, formPicture, formZone, 40, 50, 90, 8, 2},
    Expected{97, 120, {620, 680}, 30, 30, 30, formPicture, formPicture, formZone, 40, 50, 90, 8, 2},
    Expected{
        121, 144, {720, 780}, 34, 34, 34, {330, 115}, {330, 115}, {165, 115}, 40, 70, 110, 20, 1},
    Expected{
        145, 168, {800, 890}, 38, 38, 38, {340, 125}, {340, 125}, {175, 125}, 40, 75, 140, 25, 2},
    Expected{
        169, 192, {900, 960}, 42, 42, 42, {360, 145}, {360, 145}, {195, 145}, 50, 75, 140, 30, 2},
    Expected{
        193, 216, {920, 1010}, 48, 48, 48, {360, 145}, {370, 155}, {205, 155}, 50, 75, 150, 30, 2},
    Expected{
        217, 240, {980, 1050}, 48, 48, 48, {420, 155}, {380, 155}, {225, 155}, 50, 75, 160, 30, 3},
    Expected{241, 287, {630, 630}, 25, 0, 30, formPicture, formPicture, formZone, 40, 50, 90, 8, 2},
    Expected{
        288, 335, {1200, 1250}, 52, 52, 52, {440, 165}, {400, 165}, {245, 165}, 60, 75, 180, 45, 3},
    Expected{
        336, 999, {1200, 1250}, 56, 56, 56, {440, 165}, {400, 165}, {245, 165}, 60, 75, 180, 45, 3},
};

/// The row of the DPI that this test runs at.
inline const Expected &expected()
{
    for (const Expected &row : table) {
        if (DpiTest::dpi() <= row.highest) {
            return row;
        }
    }
    qFatal("no row for this DPI");
}

} // namespace DpiSizes
