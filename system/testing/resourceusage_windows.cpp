#include "system/testing/resourceusage.h"

#include <windows.h>

#include <psapi.h>

ResourceUsage resourceUsage()
{
    ResourceUsage usage;
    DWORD handles = 0;
    if (::GetProcessHandleCount(::GetCurrentProcess(), &handles) != 0) {
        usage.handles = static_cast<int>(handles);
    }
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    if (::GetProcessMemoryInfo(::GetCurrentProcess(),
                               reinterpret_cast<PROCESS_MEMORY_COUNTERS *>(&counters),
                               sizeof counters)
        != 0) {
        usage.memory = static_cast<qint64>(counters.PrivateUsage);
    }
    return usage;
}
