#include "system/testing/resourceusage.h"

#include <windows.h>

#include <psapi.h>

namespace {

ResourceUsage usageBehind(HANDLE process)
{
    ResourceUsage usage;
    DWORD handles = 0;
    if (::GetProcessHandleCount(process, &handles) != 0) {
        usage.handles = static_cast<int>(handles);
    }
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    if (::GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS *>(&counters),
                               sizeof counters)
        != 0) {
        usage.memory = static_cast<qint64>(counters.PrivateUsage);
    }
    return usage;
}

} // namespace

ResourceUsage resourceUsage()
{
    return usageBehind(::GetCurrentProcess());
}

ResourceUsage resourceUsageOf(qint64 processId)
{
    ResourceUsage usage;
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE,
                                         static_cast<DWORD>(processId));
    if (process != nullptr) {
        usage = usageBehind(process);
        ::CloseHandle(process);
    }
    return usage;
}
