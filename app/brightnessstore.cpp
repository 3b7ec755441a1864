#include "app/brightnessstore.h"

#include <utility>

BrightnessStore::BrightnessStore(AppSettings itsSettings)
    : settings(std::move(itsSettings))
{
    pause.setSingleShot(true);
    pause.setInterval(storePeriodMs);
    pause.setTimerType(Qt::PreciseTimer); // the usual kind may be early
    QObject::connect(&pause, &QTimer::timeout, [this] { storeWaiting(); });
}

void BrightnessStore::choose(int brightness, bool handleHeld)
{
    if (handleHeld && pause.isActive()) {
        waiting = brightness;
    } else {
        store(brightness);
    }
}

void BrightnessStore::storeWaiting()
{
    if (waiting) {
        store(*waiting);
    }
}

void BrightnessStore::store(int brightness)
{
    waiting.reset();
    settings.write(SettingKeys::brightLevel, brightness);
    pause.start(); // behind the write, so that the window has its turn also on a slow disk
}
