#pragma once

#include "lighting/lightingstate.h"

#include <QByteArray>
#include <QString>

/// One-shot flags by which two successive answers carry the wake line.
struct WakeSequence
{
    bool wakePending = true; ///< the next suitable answer is the wake line
    bool wakeSent = false;   ///< the first wake line has gone out
    bool wakeRepeat = false; ///< the next suitable answer is the wake line once more
};

/// What decides the line, as the window shows it at the moment of the connection.
struct LineInputs
{
    bool backlightOff;
    int brightness; ///< 0..100 percent
    WakeSequence wake;
};

/// The chosen line and the flags as they stand after it was sent.
struct LineChoice
{
    QString line;
    WakeSequence wake;
};

/// Chooses what the next connection receives: the off line, the zero-brightness line, the wake line
/// or the normal line. While the backlight is off or the brightness 0 a wake waits.
LineChoice chooseLine(const LightingState &state, const LineInputs &inputs);

/// One answer on the wire: 16-bit length of what follows, then the line as a 32-bit byte length and
/// UTF-16 code units, all big-endian.
QByteArray frameLine(const QString &line);
