#include "tests/support/instancesocket.h"

#include "app/instancename.h"
#include "system/platform.h"
#include "tests/support/programprocess.h"

#include <QLocalSocket>

namespace {

QString nameFor(const QString &version)
{
    return instanceName({QStringLiteral("Lumikey"), QString(), QString(), version,
                         ProgramProcess::executable(), createPlatform()->userName(), QStringList()},
                        InstanceOptions::perUser);
}

/// Null when nobody listens.
std::unique_ptr<QLocalSocket> connectTo(const QString &name)
{
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(name);
    return socket->waitForConnected(5000) ? std::move(socket) : nullptr;
}

} // namespace

QString InstanceSocket::name()
{
    static QString found;
    // The toolkit takes the version from the executable where executables have one.
    for (const char *version : {"", "1.0.4.0"}) {
        const QString candidate = nameFor(QString::fromLatin1(version));
        if (found.isEmpty() && connectTo(candidate)) {
            found = candidate;
        }
    }
    if (found.isEmpty()) {
        qFatal("nobody listens under the program's name");
    }
    return found;
}

std::unique_ptr<QLocalSocket> InstanceSocket::connect()
{
    auto socket = connectTo(name());
    if (!socket) {
        qFatal("nobody listens under the program's name");
    }
    return socket;
}
