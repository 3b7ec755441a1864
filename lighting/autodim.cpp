#include "lighting/autodim.h"

namespace {

constexpr int pointsPerPoll = 2;
/// Codes 1 to 6.
const KeyPresses mouseCodes(0b111'1110);

/// Right across the wrap of the 32 bits, and negative for input noted after the time was taken.
qint32 elapsed(const DimInputs &inputs)
{
    return static_cast<qint32>(inputs.now - inputs.lastActivity);
}

DimStep unchanged(const DimInputs &inputs)
{
    DimStep step;
    step.brightness = inputs.brightness;
    step.active = inputs.active;
    return step;
}

DimStep darker(const DimInputs &inputs)
{
    DimStep step = unchanged(inputs);
    if (inputs.brightness == 0) {
        step.told = DimPhase::Dimmed;
        return step;
    }
    if (inputs.brightness <= pointsPerPoll) {
        return step; // a user's brightness of 1 or 2 stays, on purpose
    }
    step.active = true;
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

DimStep awake(const DimInputs &inputs)
{
    DimStep step = unchanged(inputs);
    step.brightness = inputs.userBrightness;
    step.active = false;
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

DimStep dimStep(const DimInputs &inputs)
{
    if (inputs.effectChosen) {
        return unchanged(inputs);
    }
    if (elapsed(inputs) >= inputs.idleTime) {
        return darker(inputs);
    }
    return inputs.brightness < inputs.userBrightness ? awake(inputs) : unchanged(inputs);
}
