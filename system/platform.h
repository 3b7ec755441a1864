#pragma once

#include "system/executableform.h"
#include "system/keypresses.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// The only door to the operating system. One implementation a system, chosen by the build; tests
/// hand in their own. All calls are made on the GUI thread; they return at once but for those that
/// say otherwise.
class Platform
{
public:
    /// How an attempt to start the program again with administrator rights ended.
    enum class Relaunch {
        Launched, ///< the elevated process runs; this one is to end
        NoPath,   ///< the program's own path could not be told
        Declined, ///< the user did not consent
        Failed,   ///< anything else
    };

    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
    virtual ~Platform() = default;

    // Start-up

    /// How this system names the program's executable in an autostart entry.
    virtual ExecutableForm executableForm() const = 0;

    /// The path that starts with the user's log-in, in the system's own notation, without quotes;
    /// @p whenMissing when there is no entry or it cannot be read.
    virtual QString autostartValue(const QString &whenMissing) const = 0;

    /// Makes @p path start with the user's log-in. A failed write is silent.
    virtual void setAutostartValue(const QString &path) = 0;

    /// Ends that. A failed write is silent.
    virtual void removeAutostartValue() = 0;

    /// The folder that the program lies in, and beside it what its installation has put there;
    /// absolute.
    virtual QString programFolder() const = 0;

    /// Takes back that the user has switched the entry off elsewhere, where the system lets them:
    /// it would outlive the entry. A failed write is silent.
    virtual void removeAutostartVeto() = 0;

    /// The log-in name of the user whose process this is; nothing when it cannot be told.
    virtual std::optional<QString> userName() const = 0;

    /// Waits until no other process holds the lock of that name, at most for @p timeoutMs, and
    /// then holds it until the result is destroyed or the process ends, however it ends.
    /// @param name letters that may stand in a file name
    /// @return nothing when the lock cannot be had
    virtual std::shared_ptr<void> acquireLock(const QString &name, int timeoutMs) = 0;

    /// Stands for every process in letComeToFront().
    static constexpr qint64 anyProcess = -1;

    /// Lets another process put its window in front of all others, as this one, which the user has
    /// just started, may. Without effect where every process may.
    virtual void letComeToFront(qint64 processId) = 0;

    /// Lets as many connections wait on a listening socket as the system allows, where Qt asks for
    /// 50: one that finds the queue full may never be answered. Windows itself may keep the length
    /// with which listening started; it refuses what does not fit, and clients try again.
    virtual void lengthenListenQueue(qintptr socketDescriptor) = 0;

    /// Gives a frameless window what the system gives only to those that ask: a click on the task
    /// bar minimises it, its corners are those of the other windows, and the notices of a resume
    /// and of the session's unlocking reach it on machines that send them to nobody else.
    /// @param window a native top-level window of this process, just made
    virtual void prepareWindow(quintptr window) = 0;

    /// The family of the font that the system writes its messages in; nothing where it names none.
    virtual std::optional<QString> messageFontFamily() const = 0;

    // Input and sleep

    /// The codes pressed since the last call, in whatever window; none where the system does not
    /// tell. The first call may report presses from before it.
    virtual KeyPresses keysPressedSinceLastPoll() = 0;

    /// Whether a native event is the system's notice that it has resumed from sleep.
    /// @param eventType, message as a QAbstractNativeEventFilter receives them
    virtual bool isResumeMessage(const QByteArray &eventType, const void *message) const = 0;

    /// Whether a native event is the system's notice that the user has unlocked the session, of
    /// whose keys no program hears.
    /// @param eventType, message as a QAbstractNativeEventFilter receives them
    virtual bool isUnlockMessage(const QByteArray &eventType, const void *message) const = 0;

    /// From now on calls @p resumed each time the machine has resumed from sleep, where the system
    /// tells it otherwise than by a native event. A later call replaces the function; an empty one
    /// ends the notices.
    virtual void notifyOfResume(std::function<void()> resumed) = 0;

    /// Blocks the thread for @p milliseconds.
    virtual void sleep(int milliseconds) = 0;

    // Rights

    /// Whether the process has administrator rights.
    /// @throws quint32 the system's error code, when that cannot be told
    virtual bool isElevated() const = 0;

    /// Starts the program again, without arguments, with administrator rights. Blocks while the
    /// system asks the user for consent.
    virtual Relaunch relaunchElevated() = 0;

    /// Ends the process at once: no destructors, nothing saved. Returns in tests only.
    virtual void endProcess(int exitCode) = 0;

    // Others' places

    /// Runs @p action while holding the lock of a QSharedMemory segment. QSharedMemory itself waits
    /// for a lock that another process holds, for ever if need be; this never waits.
    /// @param nativeKey as QSharedMemory::nativeKey() tells it
    /// @return false, with the action not run, when another process holds the lock or it is not
    ///         this user's; a lock that does not exist is held by nobody
    virtual bool tryWithSegmentLock(const QString &nativeKey,
                                    const std::function<void()> &action) = 0;

    /// Starts a program with a window of its own and does not wait; a failure goes unnoticed.
    /// @param commandLine as Windows writes it, relative to the current directory
    virtual void launch(const QString &commandLine) = 0;

    /// Tells the driver behind the firmware interface which library describes that interface. A
    /// failed write is silent.
    /// @param libraryPath relative to the system's folder
    virtual void setFirmwareInterfaceLibrary(const QString &libraryPath) = 0;
};

/// The running system's implementation.
std::unique_ptr<Platform> createPlatform();
