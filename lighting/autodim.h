#pragma once

#include "system/keypresses.h"

#include <QtGlobal>

#include <optional>

// The three below are filled by the names of their members alone: an explicit constructor keeps a
// row of numbers in braces, of which two could change places, from compiling.

/// What auto-dim knows from one poll to the next. Times are the low 32 bits of a clock in
/// milliseconds.
struct DimState
{
    explicit DimState() = default;

    quint32 lastActivity = 0;  ///< the last input that counts, or the start of the polls
    qint32 idleTime = 0;       ///< milliseconds without input until dimming starts
    qint32 userBrightness = 0; ///< what waking returns to, 0..100 percent
    bool active = false;       ///< the slider has been lowered, so its moves are not the user's
};

/// What one poll finds.
struct DimPoll
{
    explicit DimPoll() = default;

    quint32 now = 0;
    int brightness = 0; ///< the slider, 0..100 percent
    bool effectChosen = false;
};

/// What the user is told of auto-dim.
enum class DimPhase {
    Watching, ///< waits for the idle time to pass
    Dimming,
    Dimmed, ///< as far as it goes
};

/// What one poll does.
struct DimStep
{
    explicit DimStep() = default;

    DimState state;                    ///< for the next poll
    int brightness = 0;                ///< the slider afterwards
    bool wake = false;                 ///< the agent is to re-initialise the keyboard
    bool leftOff = false;              ///< the left word becomes the one for lighting off
    std::optional<bool> sliderEnabled; ///< nothing: stays as it is
    std::optional<DimPhase> told;      ///< beside the brightness; nothing: stays as it is
};

/// Whether any of the presses counts as input.
/// @param mouseWakes whether codes 1 to 6, the mouse buttons and cancel, count too
bool countsAsInput(const KeyPresses &presses, bool mouseWakes);

/// One poll: lowers the brightness by 2 points when the idle time has passed, brings the user's
/// back when it has not, and otherwise changes nothing. A brightness of 1 or 2 is never dimmed.
DimStep dimStep(const DimState &state, const DimPoll &poll);
