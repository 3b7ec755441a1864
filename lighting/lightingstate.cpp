#include "lighting/lightingstate.h"

#include <array>

QString &LightingState::wordOf(Zone zone)
{
    const std::array<QString *, 4> words{&leftWord, &centreWord, &rightWord, &stripeWord};
    return *words.at(static_cast<std::size_t>(zone));
}

void LightingState::blacken()
{
    for (const Zone zone : {Zone::Left, Zone::Centre, Zone::Right, Zone::Stripe}) {
        wordOf(zone) = wordText(blackWord(zone));
    }
}
