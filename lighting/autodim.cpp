#include "lighting/autodim.h"

namespace {

constexpr int pointsPerPoll = 2;
/// Codes 1 to 6, which the mouse has.
const KeyPresses mouseCodes(0b111'1110);

/// Milliseconds since the last activity: correct also where the 32 bits have wrapped in between,
/// and negative where input was noted after the poll had looked at the clock.
qint32 elapsed(const DimState &state, const DimPoll &poll)
{
    return static_cast<qint32>(poll.now - state.lastActivity);
}

DimStep unchanged(const DimState &state, const DimPoll &poll)
{
    DimStep step;
    step.state = state;
    step.brightness = poll.brightness;
    return step;
}

DimStep darker(const DimState &state, const DimPoll &poll)
{
    DimStep step = unchanged(state, poll);
    if (poll.brightness == 0) {
        step.told = DimPhase::Dimmed;
        return step;
    }
    if (poll.brightness <= pointsPerPoll) {
        return step; // a user's brightness of 1 or 2 stays, on purpose
    }
    step.state.active = true;
    step.brightness -= pointsPerPoll;
    step.told = DimPhase::Dimming;
    if (step.brightness <= pointsPerPoll) {
        step.brightness = 0;
        step.sliderEnabled = false;
        step.leftOff = true;
        step.told = DimPhase::Dimmed;
    }
    return step;
}

DimStep awake(const DimState &state, const DimPoll &poll)
{
    DimStep step = unchanged(state, poll);
    step.brightness = state.userBrightness;
    step.state.active = false;
    step.wake = true;
    step.sliderEnabled = true;
    step.told = DimPhase::Watching;
    return step;
}

} // namespace

bool countsAsInput(const KeyPresses &presses, bool mouseWakes)
{
    return (mouseWakes ? presses : presses & ~mouseCodes).any();
}

DimStep dimStep(const DimState &state, const DimPoll &poll)
{
    if (poll.effectChosen) {
        return unchanged(state, poll);
    }
    if (elapsed(state, poll) >= state.idleTime) {
        return darker(state, poll);
    }
    return poll.brightness < state.userBrightness ? awake(state, poll) : unchanged(state, poll);
}
