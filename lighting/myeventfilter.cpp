#include "lighting/myeventfilter.h"

#include "system/platform.h"

#include <QDebug>

namespace {

// The firmware needs this before it takes colours.
constexpr int settlingSteps = 10;
constexpr int settlingStepMs = 1000;
/// Windows may wait for each window's answer before it tells the next. That notice then comes right
/// after the settling, well within this time.
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
    if (settling) { // one that comes while another is worked off is of the same resume
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
    // Started at the end: the event loop takes the messages that came during the sleep before it
    // looks at timers, so all of them find this one running.
    sameResume.start();
}
