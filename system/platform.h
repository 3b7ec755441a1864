#pragma once

#include "app/startup.h"

#include <QString>

#include <memory>

/// The only door to the operating system. One implementation a system, chosen by the build; tests
/// hand in their own. All calls are made on the GUI thread and return at once.
class Platform
{
public:
    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
    virtual ~Platform() = default;

    /// How this system names the program's executable in an autostart entry.
    virtual ExecutableForm executableForm() const = 0;

    /// The path that starts with the user's log-in, in the system's own notation, without quotes;
    /// @p whenMissing when there is no entry or it cannot be read.
    virtual QString autostartValue(const QString &whenMissing) const = 0;

    /// Makes @p path start with the user's log-in. A failed write is silent.
    virtual void setAutostartValue(const QString &path) = 0;

    /// Ends that. A failed write is silent.
    virtual void removeAutostartValue() = 0;

    /// Lets as many connections wait on a listening socket as the system allows, where Qt asks for
    /// 50: one that finds the queue full may never be answered. Windows itself may keep the length
    /// with which listening started; it refuses what does not fit, and clients try again.
    virtual void lengthenListenQueue(qintptr socketDescriptor) = 0;
};

/// The running system's implementation.
std::unique_ptr<Platform> createPlatform();
