#include "lighting/lightingstate.h"

QString &LightingState::wordOf(Zone zone)
{
    switch (zone) {
    case Zone::Left:
        return leftWord;
    case Zone::Centre:
        return centreWord;
    case Zone::Right:
        return rightWord;
    case Zone::Stripe:
        break;
    }
    return stripeWord;
}

void LightingState::blacken()
{
    for (const Zone zone : {Zone::Left, Zone::Centre, Zone::Right, Zone::Stripe}) {
        wordOf(zone) = wordText(blackWord(zone));
    }
}
