#include "system/platform.h"

#include "system/desktopentry.h"
#include "system/filelock.h"
#include "system/logindwatch.h"
#include "system/polkit.h"
#include "system/segmentlock.h"
#include "system/x11keypresses.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QThread>

#include <cstdlib>
#include <utility>

#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/autostart");
}

QString autostartFile()
{
    return autostartFolder() + QStringLiteral("/Lumikey.desktop");
}

class LinuxPlatform final : public Platform
{
public:
    ExecutableForm executableForm() const override
    {
        return {QStringLiteral("Lumikey"), QLatin1Char('/'), true};
    }

    QString autostartValue(const QString &whenMissing) const override
    {
        QFile file(autostartFile());
        if (!file.open(QIODevice::ReadOnly)) {
            return whenMissing;
        }
        return DesktopEntry::execPath(file.readAll());
    }

    void setAutostartValue(const QString &path) override
    {
        QDir().mkpath(autostartFolder());
        QSaveFile file(autostartFile());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(DesktopEntry::write(QStringLiteral("Lumikey"), path));
            file.commit();
        }
    }

    void removeAutostartValue() override { QFile::remove(autostartFile()); }

    QString programFolder() const override { return QCoreApplication::applicationDirPath(); }

    /// It would be in the entry itself, which is written anew.
    void removeAutostartVeto() override {}

    std::optional<QString> userName() const override
    {
        const passwd *const user = ::getpwuid(::geteuid());
        if (user == nullptr) {
            return std::nullopt;
        }
        return QFile::decodeName(user->pw_name);
    }

    std::shared_ptr<void> acquireLock(const QString &name, int timeoutMs) override
    {
        return FileLock::acquire(QDir::temp().filePath(name + QStringLiteral(".lock")), timeoutMs);
    }

    /// Every process may put its windows in front here.
    void letComeToFront(qint64 /*processId*/) override {}

    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        ::listen(static_cast<int>(socketDescriptor), SOMAXCONN);
    }

    /// The window managers of this system minimise any window and treat all alike.
    void prepareWindow(quintptr /*window*/) override {}

    std::optional<QString> messageFontFamily() const override { return std::nullopt; }

    KeyPresses keysPressedSinceLastPoll() override
    {
        if (!keyPresses) {
            keyPresses = std::make_unique<X11KeyPresses>();
        }
        return keyPresses->takePresses();
    }

    /// logind tells of it over D-Bus, see notifyOfResume().
    bool isResumeMessage(const QByteArray & /*eventType*/, const void * /*message*/) const override
    {
        return false;
    }

    /// The display tells of keys in a locked session, too.
    bool isUnlockMessage(const QByteArray & /*eventType*/, const void * /*message*/) const override
    {
        return false;
    }

    void notifyOfResume(std::function<void()> resumed) override
    {
        logindWatch.reset();
        if (resumed) {
            logindWatch = std::make_unique<LogindWatch>(std::move(resumed));
        }
    }

    void sleep(int milliseconds) override
    {
        QThread::msleep(static_cast<unsigned long>(milliseconds));
    }

    bool isElevated() const override { return ::geteuid() == 0; }

    Relaunch relaunchElevated() override
    {
        const QString path = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
        return QFile::exists(path) ? Polkit::relaunch(path) : Relaunch::NoPath;
    }

    void endProcess(int exitCode) override { std::_Exit(exitCode); }

    bool tryWithSegmentLock(const QString &nativeKey, const std::function<void()> &action) override
    {
        return SegmentLock::tryRun(nativeKey, action);
    }

    void launch(const QString &commandLine) override
    {
        // Command lines come as Windows writes them.
        QStringList words = QProcess::splitCommand(
            QString(commandLine).replace(QLatin1Char('\\'), QLatin1Char('/')));
        if (!words.isEmpty()) {
            const QString program = words.takeFirst();
            QProcess::startDetached(program, words);
        }
    }

    /// There is no such driver here.
    void setFirmwareInterfaceLibrary(const QString &libraryPath) override
    {
        qDebug() << "No firmware interface to register a library with:" << libraryPath;
    }

private:
    std::unique_ptr<X11KeyPresses> keyPresses;
    std::unique_ptr<LogindWatch> logindWatch;
};

} // namespace

std::unique_ptr<Platform> createPlatform()
{
    return std::make_unique<LinuxPlatform>();
}
