#include "colorpicker/svpicture.h"

#include "colorpicker/pickergeometry.h"

#include <QColor>

#include <array>
#include <numeric>

namespace {

using PickerGeometry::squareSize;
using PickerGeometry::svRange;

// With value v, saturation s and the hue's place f within its sixth of the circle (0..59), the
// channels of a pixel are v itself and, for the weights w = 60 and w = f or 60 - f,
//     v * (1 - s/255 * w/60) = v * (15300 - s * w) / 15300, rounded to the nearest integer.
constexpr int sixth = 60;
constexpr int unit = svRange * sixth;

// Up a column a channel grows by the same amount from row to row, so 8.24 fixed point needs only
// additions. The amount is rounded down; the sum of the errors stays below 2^-16, less than the
// 1/15300 that separates a result from the next rounding edge below it.
constexpr int fractionBits = 24;
constexpr quint32 roundingHalf = 1U << (fractionBits - 1);

using Columns = std::array<quint32, squareSize>;

Columns risePerRow(int weight)
{
    Columns rise{};
    for (int s = 0; s < squareSize; ++s) {
        const auto share = static_cast<quint64>(unit - s * weight) << fractionBits;
        rise.at(static_cast<std::size_t>(s)) = static_cast<quint32>(share / unit);
    }
    return rise;
}

/// Bit positions in a pixel of the channel equal to the value, the smallest one, and the third.
struct Shifts
{
    int highest;
    int lowest;
    int between;
};

constexpr int red = 16;
constexpr int green = 8;
constexpr int blue = 0;

constexpr std::array shiftsOfSixths{
    Shifts{red, blue, green}, Shifts{green, blue, red}, Shifts{green, red, blue},
    Shifts{blue, red, green}, Shifts{blue, green, red}, Shifts{red, green, blue},
};

// Where the exact result lies on a rounding edge, v * s * w / 15300 = n + 1/2, QColor's floating
// point falls to either side. Only QColor itself knows, so these few pixels are asked of it. The
// weight 60 has no edges, so the one weight suffices.
void settleEdges(QRgb *row, int value, int hue, int weight)
{
    const int product = value * weight;
    if (product == 0) {
        return;
    }
    constexpr int oddPart = unit / 4; // divides v * s * w on every edge
    const int stride = oddPart / std::gcd(oddPart, product);
    for (int s = stride; s < squareSize; s += stride) {
        if (product * s % unit == unit / 2) {
            QColor color;
            color.setHsv(hue, s, value);
            row[s] = color.rgb();
        }
    }
}

} // namespace

QImage svPicture(int hue)
{
    const bool grey = hue < 0;
    const int degrees = hue % PickerGeometry::hueRange; // that of a grey is in the first sixth
    const int sector = degrees / sixth;
    const int place = degrees % sixth;
    const int falling = grey ? 0 : sixth;
    const int varying = grey ? 0 : (sector % 2 == 1 ? place : sixth - place);

    const Columns lowestRise = risePerRow(falling);
    const Columns betweenRise = risePerRow(varying);
    Columns lowest{};
    Columns between{};
    lowest.fill(roundingHalf);
    between.fill(roundingHalf);
    const Shifts shifts = shiftsOfSixths[static_cast<std::size_t>(sector)];

    QImage picture(squareSize, squareSize, QImage::Format_RGB32);
    for (int value = 0; value < squareSize; ++value) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(svRange - value));
        const QRgb base = 0xff000000U | (static_cast<QRgb>(value) << shifts.highest);
        for (std::size_t s = 0; s < squareSize; ++s) {
            row[s] = base | ((lowest[s] >> fractionBits) << shifts.lowest)
                     | ((between[s] >> fractionBits) << shifts.between);
            lowest[s] += lowestRise[s];
            between[s] += betweenRise[s];
        }
        settleEdges(row, value, degrees, varying);
    }
    return picture;
}
