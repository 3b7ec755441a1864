#include "lighting/unlockfilter.h"

#include "system/platform.h"

UnlockFilter::UnlockFilter(const Platform &system)
    : platform(system)
{}

bool UnlockFilter::nativeEventFilter(const QByteArray &eventType, void *message, long * /*result*/)
{
    if (platform.isUnlockMessage(eventType, message)) {
        emit unlocked();
    }
    return false;
}
