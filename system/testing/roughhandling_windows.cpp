#include "system/testing/roughhandling.h"

#include <QDir>

#include <winsock2.h>

#include <windows.h>

void RoughHandling::raiseHandleLimit() {}

bool RoughHandling::setMoreHandlesAllowed(qint64 /*processId*/, bool /*allowed*/)
{
    return false;
}

void RoughHandling::comeAndGo(const char *address, quint16 port, int clients)
{
    sockaddr_in server = {};
    server.sin_family = AF_INET;
    server.sin_port = htons(port);
    server.sin_addr.s_addr = ::inet_addr(address);
    for (int client = 0; client < clients; ++client) {
        const SOCKET socket = ::socket(AF_INET, SOCK_STREAM, 0);
        u_long unblocked = 1;
        ::ioctlsocket(socket, FIONBIO, &unblocked);
        ::connect(socket, reinterpret_cast<const sockaddr *>(&server), sizeof server);
        ::closesocket(socket);
    }
}

void RoughHandling::shutDownWriting(qintptr socketDescriptor)
{
    ::shutdown(static_cast<SOCKET>(socketDescriptor), SD_SEND);
}

std::shared_ptr<void> RoughHandling::holdAlone(const QString &path)
{
    const HANDLE file =
        ::CreateFileW(reinterpret_cast<LPCWSTR>(QDir::toNativeSeparators(path).utf16()),
                      GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        qFatal("cannot hold %s", qPrintable(path));
    }
    return {file, ::CloseHandle};
}

bool RoughHandling::setDiskWritable(const QString & /*mountPoint*/, bool /*writable*/)
{
    return false;
}
