#pragma once

#include "system/platform.h"

#include <QDir>
#include <QStringList>
#include <QVector>

#include <optional>

/// A platform whose state a test sets and whose calls it reads; it behaves like Windows.
class FakePlatform final : public Platform
{
public:
    ExecutableForm executableForm() const override
    {
        return {QStringLiteral("Lumikey.exe"), QLatin1Char('\\')};
    }
    QString autostartValue(const QString &whenMissing) const override
    {
        return autostart.value_or(whenMissing);
    }
    void setAutostartValue(const QString &path) override { autostart = path; }
    void removeAutostartValue() override { autostart.reset(); }
    QString programFolder() const override { return installation.value_or(QDir::currentPath()); }
    void removeAutostartVeto() override { ++vetoesRemoved; }
    std::optional<QString> userName() const override { return user; }
    std::shared_ptr<void> acquireLock(const QString &name, int timeoutMs) override
    {
        ++locks;
        lockTimeout = timeoutMs;
        return createPlatform()->acquireLock(name, timeoutMs);
    }
    void letComeToFront(qint64 processId) override { letToFront.append(processId); }
    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        createPlatform()->lengthenListenQueue(socketDescriptor);
    }
    void prepareWindow(quintptr window) override
    {
        prepared.append(window);
        createPlatform()->prepareWindow(window);
    }
    std::optional<QString> messageFontFamily() const override { return messageFont; }
    KeyPresses keysPressedSinceLastPoll() override
    {
        ++polls;
        if (whilePolled) {
            whilePolled();
        }
        return std::exchange(presses, KeyPresses());
    }
    bool isResumeMessage(const QByteArray &eventType, const void * /*message*/) const override
    {
        return eventType == "resumed";
    }
    bool isUnlockMessage(const QByteArray &eventType, const void * /*message*/) const override
    {
        return eventType == "unlocked";
    }
    void notifyOfResume(std::function<void()> resumed) override
    {
        resumeNotice = std::move(resumed);
    }
    void sleep(int milliseconds) override
    {
        sleeps.append(milliseconds);
        if (whileAsleep) {
            whileAsleep();
        }
    }
    bool isElevated() const override
    {
        if (elevationError) {
            throw *elevationError;
        }
        return elevated;
    }
    Relaunch relaunchElevated() override
    {
        ++relaunches;
        if (whenRelaunching) {
            whenRelaunching();
        }
        return relaunch;
    }
    void endProcess(int exitCode) override { ended = exitCode; }
    bool tryWithSegmentLock(const QString &nativeKey, const std::function<void()> &action) override
    {
        return !segmentLocked && createPlatform()->tryWithSegmentLock(nativeKey, action);
    }
    void launch(const QString &commandLine) override { launched.append(commandLine); }
    void setFirmwareInterfaceLibrary(const QString &libraryPath) override
    {
        firmwareLibrary = libraryPath;
        if (whenLibraryIsSet) {
            whenLibraryIsSet();
        }
    }

    // What the system is like
    std::optional<QString> autostart;
    std::optional<QString> installation; ///< the program's folder, if not the current directory
    std::optional<QString> user = QStringLiteral("somebody");
    std::optional<QString> messageFont;
    KeyPresses presses;                ///< seen by one poll
    std::function<void()> whilePolled; ///< happens during each poll, before it has its answer
    std::function<void()> whileAsleep; ///< happens during each sleep
    bool segmentLocked = false;        ///< somebody else keeps the companion's segment locked
    bool elevated = false;
    std::optional<quint32> elevationError;
    Relaunch relaunch = Relaunch::Launched;

    // To look around at the moment of a call
    std::function<void()> whenRelaunching;
    std::function<void()> whenLibraryIsSet;

    // What was asked of it
    int locks = 0;
    int lockTimeout = 0; ///< milliseconds, of the last one
    int polls = 0;
    std::function<void()> resumeNotice;
    QVector<int> sleeps;        ///< milliseconds
    QVector<qint64> letToFront; ///< process ids
    QVector<quintptr> prepared; ///< windows
    int vetoesRemoved = 0;
    int relaunches = 0;
    std::optional<int> ended;
    QStringList launched;
    std::optional<QString> firmwareLibrary;
};
