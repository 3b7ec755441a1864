#include "system/segmentlock.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>

#include <sys/ipc.h>
#include <sys/sem.h>

namespace {

/// Tells Qt's keys from others made of the same file.
constexpr int qtProject = 'Q';

} // namespace

bool SegmentLock::tryRun(const QString &nativeKey, const std::function<void()> &action)
{
    const key_t key = ::ftok(QFile::encodeName(semaphoreName(nativeKey)).constData(), qtProject);
    const int semaphore = key == -1 ? -1 : ::semget(key, 1, 0600);
    if (semaphore == -1) {
        if (errno != ENOENT) {
            return false;
        }
        action();
        return true;
    }
    // Undone by the system should this process end in between.
    sembuf take = {0, -1, IPC_NOWAIT | SEM_UNDO};
    if (::semop(semaphore, &take, 1) != 0) {
        return false;
    }
    action();
    sembuf give = {0, 1, SEM_UNDO};
    ::semop(semaphore, &give, 1);
    return true;
}
