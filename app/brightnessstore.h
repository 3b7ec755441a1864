#pragma once

#include "app/appsettings.h"

#include <QTimer>

#include <optional>

/// Stores the brightness that the user chooses. Each write waits for the disk, so while the
/// slider's handle is held not every step is stored: the first at once, then the last of each
/// tenth of a second. Whatever is chosen otherwise is on the disk when choose() returns.
class BrightnessStore
{
public:
    explicit BrightnessStore(AppSettings settings);

    /// @param brightness in percent
    /// @param handleHeld by the pointer, so that the next step may follow at once
    void choose(int brightness, bool handleHeld);

    /// Stores what still waits for its turn, if anything: the handle was let go, or the program
    /// ends.
    void storeWaiting();

    /// The least time between two writes while the handle is held.
    static constexpr int storePeriodMs = 100;

private:
    void store(int brightness);

    AppSettings settings;
    QTimer pause;               ///< runs for storePeriodMs from the end of each write
    std::optional<int> waiting; ///< chosen and not yet stored
};
