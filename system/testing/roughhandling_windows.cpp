#include "system/testing/roughhandling.h"

#include <QDir>

#include <winsock2.h>

#include <windows.h>

void RoughHandling::raiseHandleLimit() {}

bool RoughHandling::setMoreHandlesAllowed(qint64 /*processId*/, bool /*allowed*/)
{
    return false;
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
