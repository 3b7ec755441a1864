#pragma once

#include <QProcess>

class Platform;

/// The library that describes the firmware's interface, and its way into the system.
class FirmwareLibrary
{
public:
    /// @param platform not owned; must live longer than this
    explicit FirmwareLibrary(Platform &platform);

    /// Stops the service that reads the library, copies it out of the program's folder where the
    /// system has none, registers it, names it to the driver and starts the service. No step's
    /// outcome is looked at. Blocks for up to a minute and a half; call it once.
    void install();

private:
    Platform &platform;
    // A process ends with its object. These end together, so that one which goes on after its half
    // minute has until the last step to finish.
    QProcess stopService;
    QProcess registration;
    QProcess startService;
};
