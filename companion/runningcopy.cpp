#include "companion/runningcopy.h"

#include "app/instancename.h"
#include "system/platform.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>

namespace companion {

namespace {

constexpr int connectTimeoutMs = 2000;

} // namespace

bool isLumikeyRunning(const Platform &platform)
{
    const QString fileName = platform.executableForm().fileName;
    // As the guard of the program sees itself: with no more than Qt finds by itself. The version is
    // that of the executable, which both are given alike where executables have one.
    const InstanceIdentity lumikey{
        QFileInfo(fileName).completeBaseName(),
        QString(),
        QString(),
        QCoreApplication::applicationVersion(),
        platform.programFolder() + QLatin1Char('/') + fileName,
        platform.userName(),
        QStandardPaths::standardLocations(QStandardPaths::HomeLocation),
    };
    QLocalSocket socket;
    socket.connectToServer(instanceName(lumikey, InstanceOptions::perUser));
    if (socket.waitForConnected(connectTimeoutMs)) {
        return true;
    }
    // One with an administrator's rights is there for this program to see, not to reach.
    return socket.error() == QLocalSocket::SocketAccessError;
}

} // namespace companion
