#include "system/testing/loadedlibraries.h"

#include <windows.h>

#include <psapi.h>

#include <array>

QStringList loadedLibraries(qint64 processId)
{
    QStringList files;
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE,
                                         static_cast<DWORD>(processId));
    if (process == nullptr) {
        return files;
    }
    std::array<HMODULE, 1024> modules = {};
    DWORD bytes = 0;
    if (::EnumProcessModules(process, modules.data(), sizeof modules, &bytes) != 0) {
        const size_t count = qMin(size_t{bytes / sizeof(HMODULE)}, modules.size());
        for (size_t i = 0; i < count; ++i) {
            std::array<wchar_t, MAX_PATH> name = {};
            const DWORD length =
                ::GetModuleBaseNameW(process, modules.at(i), name.data(), MAX_PATH);
            files += QString::fromWCharArray(name.data(), static_cast<int>(length));
        }
    }
    ::CloseHandle(process);
    return files;
}
