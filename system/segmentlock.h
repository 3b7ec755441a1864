#pragma once

#include <QString>

#include <functional>

/// The lock that QSharedMemory keeps beside each segment it names: a system semaphore of one.
namespace SegmentLock {

/// The semaphore's name beside that of its segment.
inline QString semaphoreName(QString nativeKey)
{
    return nativeKey.replace(QStringLiteral("qipc_sharedmemory_"),
                             QStringLiteral("qipc_systemsem_"));
}

/// As Platform::tryWithSegmentLock().
bool tryRun(const QString &nativeKey, const std::function<void()> &action);

} // namespace SegmentLock
