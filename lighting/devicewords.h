#pragma once

#include <QString>

/// A part of the keyboard that takes a colour of its own. The value is the low digit of the zone
/// code.
enum class Zone : quint8 { Left = 0, Centre = 1, Right = 2, Stripe = 3 };

/// Words with a fixed meaning to the firmware.
namespace DeviceWords {
constexpr quint32 lightingOff = 0xE0003000;
/// Wakes and re-initialises the keyboard controller; all zone words start as this.
constexpr quint32 wake = 0xE007F007;
/// Stand in the centre word between the reading of the settings and their application, and after
/// it until the first colour; the values and their place are deliberate.
constexpr quint32 loading = 0xF40000F7;
constexpr quint32 applying = 0xF40000FF;
} // namespace DeviceWords

/// A colour as three decimal components before masking; a component may be out of 0..255.
struct ColourComponents
{
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// The layout of a device word: bits 31..24 zone code (0xF0 + zone), 23..16 blue, 15..8 red,
/// 7..0 green.
constexpr quint32 packWord(quint8 red, quint8 green, quint8 blue, Zone zone)
{
    return (static_cast<quint32>(0xF0 + static_cast<quint8>(zone)) << 24)
           | (static_cast<quint32>(blue) << 16) | (static_cast<quint32>(red) << 8) | green;
}

/// What a word does to the light of its zone.
constexpr ColourComponents wordColour(quint32 word)
{
    return {static_cast<int>(word >> 8 & 0xFF), static_cast<int>(word & 0xFF),
            static_cast<int>(word >> 16 & 0xFF)};
}

/// The zone with its light off.
constexpr quint32 blackWord(Zone zone)
{
    return packWord(0, 0, 0, zone);
}

/// Device word of one zone.
/// @param colour red, green and blue as decimal numbers separated by single blanks; a part that is
///        missing or not an unsigned number counts as 0
/// @param brightness 0..100 percent; each channel is scaled, truncated and masked to 8 bits
quint32 deviceWord(Zone zone, const QString &colour, int brightness);

/// The same colour for the keyboard pictures: scaled and truncated toward zero, but not masked.
ColourComponents scaledComponents(const QString &colour, int brightness);

/// A word as it stands in the command line: unsigned decimal, no padding.
QString wordText(quint32 word);
