#include "system/testing/sleepnotices.h"

#include <thread>

#include <windows.h>

struct SleepNotices::Private
{
    std::thread asking; ///< waits for the answers
};

SleepNotices::SleepNotices()
    : d(std::make_unique<Private>())
{}

SleepNotices::~SleepNotices()
{
    if (d->asking.joinable()) {
        d->asking.detach(); // a window that has gone never answers
    }
}

void SleepNotices::resume(Delivery delivery)
{
    // A window that has registered for the notice hears it beside the one that is for everybody.
    constexpr int notices = 2;
    switch (delivery) {
    case Delivery::Asked:
        if (d->asking.joinable()) {
            d->asking.join();
        }
        d->asking = std::thread([] {
            for (int notice = 0; notice < notices; ++notice) {
                ::SendMessageW(HWND_BROADCAST, WM_POWERBROADCAST, PBT_APMRESUMESUSPEND, 0);
            }
        });
        break;
    case Delivery::Told:
        for (int notice = 0; notice < notices; ++notice) {
            ::SendNotifyMessageW(HWND_BROADCAST, WM_POWERBROADCAST, PBT_APMRESUMESUSPEND, 0);
        }
        break;
    case Delivery::Queued:
        for (int notice = 0; notice < notices; ++notice) {
            ::PostMessageW(HWND_BROADCAST, WM_POWERBROADCAST, PBT_APMRESUMESUSPEND, 0);
        }
        break;
    }
}

void SleepNotices::suspend()
{
    for (const WPARAM event : {PBT_APMSUSPEND, PBT_APMRESUMEAUTOMATIC, PBT_APMPOWERSTATUSCHANGE}) {
        ::SendNotifyMessageW(HWND_BROADCAST, WM_POWERBROADCAST, event, 0);
    }
    ::SendNotifyMessageW(HWND_BROADCAST, WM_NULL, PBT_APMRESUMESUSPEND, 0);
}
