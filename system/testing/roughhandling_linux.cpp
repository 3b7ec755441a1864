#include "system/testing/roughhandling.h"

#include <QDir>
#include <QProcess>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

void RoughHandling::raiseHandleLimit()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
}

bool RoughHandling::setMoreHandlesAllowed(qint64 processId, bool allowed)
{
    const auto process = static_cast<pid_t>(processId);
    rlimit limit = {};
    if (::prlimit(process, RLIMIT_NOFILE, nullptr, &limit) != 0) {
        return false;
    }
    // The limit is on the numbers, and a new handle takes the lowest free one.
    const QStringList used = QDir(QStringLiteral("/proc/%1/fd").arg(processId))
                                 .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    rlim_t lowestFree = 0;
    while (used.contains(QString::number(lowestFree))) {
        ++lowestFree;
    }
    limit.rlim_cur = allowed ? limit.rlim_max : lowestFree;
    return ::prlimit(process, RLIMIT_NOFILE, &limit, nullptr) == 0;
}

void RoughHandling::comeAndGo(const char *address, quint16 port, int clients)
{
    sockaddr_in server = {};
    server.sin_family = AF_INET;
    server.sin_port = htons(port);
    server.sin_addr.s_addr = ::inet_addr(address);
    for (int client = 0; client < clients; ++client) {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        // Has hardly begun when it returns, and is not waited for.
        static_cast<void>(
            ::connect(socket, reinterpret_cast<const sockaddr *>(&server), sizeof server));
        ::close(socket);
    }
}

void RoughHandling::shutDownWriting(qintptr socketDescriptor)
{
    ::shutdown(static_cast<int>(socketDescriptor), SHUT_WR);
}

std::shared_ptr<void> RoughHandling::holdAlone(const QString & /*path*/)
{
    return nullptr;
}

bool RoughHandling::setDiskWritable(const QString &mountPoint, bool writable)
{
    return QProcess::execute(QStringLiteral("mount"),
                             {QStringLiteral("-o"),
                              QStringLiteral("remount,") + QLatin1String(writable ? "rw" : "ro"),
                              mountPoint})
           == 0;
}
