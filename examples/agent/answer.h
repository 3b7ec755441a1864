#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>
#include <variant>

namespace agent {

constexpr int zoneCount = 4;

/// Names of the zones, in the order of their words on the wire and of their codes.
constexpr std::array<const char *, zoneCount> zoneNames{"left", "centre", "right", "stripe"};

/// The word that fills all four zones of the off line (and of the line for brightness zero).
constexpr quint32 offWord = 0xE0003000U;

/// The word that fills all four zones of the wake line.
constexpr quint32 wakeWord = 0xE007F007U;

struct Effect
{
    quint32 word;
    const char *name;
};

constexpr std::array<Effect, 8> effects{{
    {0x00000000U, "None"},
    {0x1002A000U, "Breath"},
    {0x33010000U, "Cycle"},
    {0x80000000U, "Dance"},
    {0xA0000000U, "Flash"},
    {0x70000000U, "Random Color"},
    {0x90000000U, "Tempo"},
    {0xB0000000U, "Wave"},
}};

/// No answer can be longer, in bytes: its first 16-bit length reaches no further.
constexpr int largestAnswer = 2 + 0xFFFF;

/// The five words of one answer, as they stood on the wire.
struct Answer
{
    std::array<quint32, zoneCount> zoneWords{};
    quint32 effectWord = 0;
};

/// An answer that broke the wire format; `why` is one printable line for a person, never empty.
struct Malformed
{
    QString why;
};

using Decoded = std::variant<Answer, Malformed>;

/// Decodes everything one connection delivered, from its first byte to the server's close: a 16-bit
/// length, a 32-bit length, UTF-16 text (all big-endian), nothing more. The text must be five
/// unsigned decimal 32-bit numbers without sign, blanks or padding, joined by commas. Pure; takes
/// any bytes at all.
Decoded decode(const QByteArray &bytes);

enum class LineKind {
    Off,    ///< four off words; the effect word may be any
    Wake,   ///< four wake words and no effect
    Normal, ///< everything else
};

LineKind lineKind(const Answer &answer);

/// "off", "wake" or "normal".
QString lineKindName(LineKind kind);

/// A colour as the device takes it, each channel 0..255, brightness already applied.
struct Rgb
{
    int red;
    int green;
    int blue;
};

/// The colour in `word` at place `zone` (0..3). Nothing when the word carries another zone's code
/// or none at all, as the off and wake words do: such a word is legal but has no colour to show.
std::optional<Rgb> zoneColour(int zone, quint32 word);

/// The name of the effect, empty for a word that is in no table.
QString effectName(quint32 word);

} // namespace agent
