#pragma once

#include <QString>

#include <memory>

/// A lock between processes that the kernel gives back when its holder ends, however it ends.
namespace FileLock {

/// Waits at most @p timeoutMs; holds the lock until the result is destroyed, which removes the
/// file. Nothing when the lock cannot be had.
std::shared_ptr<void> acquire(const QString &path, int timeoutMs);

} // namespace FileLock
