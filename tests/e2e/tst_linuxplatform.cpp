#include "system/platform.h"
#include "system/testing/sleepnotices.h"
#include "tests/support/guitest.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString logindPath = QStringLiteral("/org/freedesktop/login1");
const QString logindInterface = QStringLiteral("org.freedesktop.login1.Manager");
const QString notice = QStringLiteral("PrepareForSleep");

} // namespace

/// What the door to Linux alone has.
class TestLinuxPlatform : public QObject
{
    Q_OBJECT

private slots:
    void executable();
    void autostartFile();
    void askingMakesNoAutostartFile();
    void userWithoutAName();
    void lockFile();
    void nativeEventsSayNothing();
    void firmwareInterfaceIsMissing();
    void emptyCommandLine();
    void noticesOfAResume();

private:
    std::unique_ptr<Platform> platform = createPlatform();
};

void TestLinuxPlatform::executable()
{
    const ExecutableForm form = platform->executableForm();
    QCOMPARE(form.fileName, QStringLiteral("Lumikey"));
    QCOMPARE(form.separator, QLatin1Char('/'));
    QVERIFY(form.foldersMayShareIt);
    QCOMPARE(platform->programFolder(),
             QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path());
}

/// Where desktops look for it, and under the program's name.
void TestLinuxPlatform::autostartFile()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                         + QStringLiteral("/autostart/Lumikey.desktop");
    platform->setAutostartValue(QStringLiteral("/opt/lights/Lumikey"));
    const QByteArray entry = readFile(path);
    QVERIFY2(entry.contains("\nName=Lumikey\n"), entry.constData());
    QVERIFY2(entry.contains("\nExec=\"/opt/lights/Lumikey\"\n"), entry.constData());
    platform->removeAutostartValue();
    QVERIFY(!QFileInfo::exists(path));
}

void TestLinuxPlatform::askingMakesNoAutostartFile()
{
    platform->setAutostartValue(QStringLiteral("/opt/lights/Lumikey"));
    platform->removeAutostartValue();
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(platform->autostartValue(QStringLiteral("none")), QStringLiteral("none"));
    }
}

void TestLinuxPlatform::userWithoutAName()
{
    constexpr uid_t nobodysNumber = 54'321;
    enum { Named, Nameless, Impossible };
    const pid_t child = ::fork();
    if (child == 0) {
        if (::seteuid(nobodysNumber) != 0) {
            ::_exit(Impossible);
        }
        ::_exit(platform->userName() ? Named : Nameless);
    }
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY(WIFEXITED(status));
    if (WEXITSTATUS(status) == Impossible) {
        QSKIP("only the superuser may become somebody else");
    }
    QCOMPARE(WEXITSTATUS(status), int(Nameless));
}

void TestLinuxPlatform::lockFile()
{
    const QString path = QDir::temp().filePath(QStringLiteral("some name.lock"));
    const auto lock = platform->acquireLock(QStringLiteral("some name"), 0);
    QVERIFY(lock);
    QVERIFY(QFileInfo::exists(path));
    QVERIFY(!platform->acquireLock(QStringLiteral("some name"), 0));
    QVERIFY(platform->acquireLock(QStringLiteral("another"), 0));
}

void TestLinuxPlatform::nativeEventsSayNothing()
{
    const int message = 0;
    QVERIFY(!platform->isResumeMessage("xcb_generic_event_t", &message));
    QVERIFY(!platform->isUnlockMessage("xcb_generic_event_t", &message));
}

void TestLinuxPlatform::firmwareInterfaceIsMissing()
{
    QTest::ignoreMessage(QtDebugMsg,
                         "No firmware interface to register a library with: \"some.dll\"");
    platform->setFirmwareInterfaceLibrary(QStringLiteral("some.dll"));
}

void TestLinuxPlatform::emptyCommandLine()
{
    platform->launch(QString());
    platform->launch(QStringLiteral("  "));
}

/// Told by logind alone, to the one who has asked last.
void TestLinuxPlatform::noticesOfAResume()
{
    SleepNotices sleep;
    const auto settle = [](const QDBusConnection &connection) {
        // The answer comes behind all that was said before.
        connection.interface()->isServiceRegistered(QStringLiteral("org.example"));
        QTest::qWait(20);
    };
    QDBusConnection logind(QStringLiteral("sleep notices"));
    int former = 0;
    int present = 0;
    platform->notifyOfResume([&former] { ++former; });
    sleep.resume(SleepNotices::Delivery::Told);
    QTRY_VERIFY(former > 0);
    QTRY_COMPARE(former, 5); // this system's notices are repeated
    platform->notifyOfResume({});
    settle(QDBusConnection::systemBus());
    sleep.resume(SleepNotices::Delivery::Told);
    settle(logind);
    platform->notifyOfResume([&present] { ++present; });
    settle(QDBusConnection::systemBus());

    const QString name = QStringLiteral("somebody else");
    QDBusConnection stranger =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), name);
    const auto tell = [](const QDBusConnection &sender, const QString &path,
                         const QString &interface, const QString &signal) {
        QDBusMessage message = QDBusMessage::createSignal(path, interface, signal);
        message << false;
        QVERIFY(sender.send(message));
    };
    tell(stranger, logindPath, logindInterface, notice);
    tell(logind, QStringLiteral("/elsewhere"), logindInterface, notice);
    tell(logind, logindPath, QStringLiteral("org.example.Other"), notice);
    tell(logind, logindPath, logindInterface, QStringLiteral("PrepareForShutdown"));
    settle(stranger);
    settle(logind);
    settle(QDBusConnection::systemBus());
    QCOMPARE(present, 0);
    sleep.suspend();
    sleep.resume(SleepNotices::Delivery::Told);
    QTRY_COMPARE(present, 5);
    QCOMPARE(former, 5);
    platform->notifyOfResume({});
    QDBusConnection::disconnectFromBus(name);
}

QTEST_GUILESS_MAIN(TestLinuxPlatform)
#include "tst_linuxplatform.moc"
