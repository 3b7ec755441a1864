#include "system/testing/sleepnotices.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const QString connectionName = QStringLiteral("sleep notices");
const QString service = QStringLiteral("org.freedesktop.login1");

} // namespace

/// A system bus of its own, with this process as logind on it.
struct SleepNotices::Private
{
    QTemporaryDir folder;
    QProcess bus;
    QByteArray outerAddress = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");

    static void prepareForSleep(bool start)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << start;
        if (!QDBusConnection(connectionName).send(signal)) {
            qFatal("cannot send a notice of sleep");
        }
    }
};

SleepNotices::SleepNotices()
    : d(std::make_unique<Private>())
{
    const QString address =
        QStringLiteral("unix:path=") + d->folder.filePath(QStringLiteral("bus"));
    d->bus.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"),
                  QStringLiteral("--print-address"), QStringLiteral("--address=") + address});
    if (!d->bus.waitForReadyRead()) {
        qFatal("dbus-daemon does not start");
    }
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toUtf8());
    QDBusConnection connection = QDBusConnection::connectToBus(address, connectionName);
    if (!connection.registerService(service)) {
        qFatal("no logind on the test's own bus");
    }
}

SleepNotices::~SleepNotices()
{
    QDBusConnection::disconnectFromBus(connectionName);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", d->outerAddress);
    d->bus.kill();
    d->bus.waitForFinished();
}

void SleepNotices::resume(Delivery /*delivery*/)
{
    for (int repetition = 0; repetition < 5; ++repetition) {
        Private::prepareForSleep(false);
    }
}

void SleepNotices::suspend()
{
    Private::prepareForSleep(true);
}
