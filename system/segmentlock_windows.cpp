#include "system/segmentlock.h"

#include <memory>

#include <windows.h>

namespace {

struct CloseHandleOf
{
    void operator()(void *handle) const { ::CloseHandle(handle); }
};

} // namespace

bool SegmentLock::tryRun(const QString &nativeKey, const std::function<void()> &action)
{
    const QString name = semaphoreName(nativeKey);
    const std::unique_ptr<void, CloseHandleOf> semaphore(
        ::OpenSemaphoreW(SEMAPHORE_MODIFY_STATE | SYNCHRONIZE, FALSE,
                         reinterpret_cast<const wchar_t *>(name.utf16())));
    if (!semaphore) {
        if (::GetLastError() != ERROR_FILE_NOT_FOUND) {
            return false;
        }
        action();
        return true;
    }
    if (::WaitForSingleObject(semaphore.get(), 0) != WAIT_OBJECT_0) {
        return false;
    }
    action();
    ::ReleaseSemaphore(semaphore.get(), 1, nullptr);
    return true;
}
