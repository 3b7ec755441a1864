#include "lighting/myeventfilter.h"

#include "system/platform.h"

#include <QDebug>

namespace {

// The firmware needs this before it takes colours.
constexpr int settlingSteps = 10;
constexpr int settlingStepMs = 1000;
/// A sender that waits for each window's answer tells the next one only then.
constexpr int sameResumeMs = 500;

} // namespace

MyEventFilter::MyEventFilter(Platform &system)
    : platform(system)
{
    sameResume.setSingleShot(true);
    sameResume.setInterval(sameResumeMs);
    platform.notifyOfResume([this] { resumed(); });
}

MyEventFilter::~MyEventFilter()
{
    platform.notifyOfResume({});
}

bool MyEventFilter::nativeEventFilter(const QByteArray &eventType, void *message, long * /*result*/)
{
    if (!platform.isResumeMessage(eventType, message)) {
        return false;
    }
    resumed();
    return true;
}

void MyEventFilter::resumed()
{
    if (settling) { // delivered from within
        return;
    }
    if (!sameResume.isActive()) {
        settling = true;
        qDebug("PING PBT_APMRESUMESUSPEND");
        for (int step = 0; step < settlingSteps; ++step) {
            platform.sleep(settlingStepMs);
        }
        emit emitawake();
        settling = false;
    }
    // The loop looks at waiting messages before it looks at timers.
    sameResume.start();
}
