#include "system/testing/taskbar.h"

#include <windows.h>

namespace {

struct Search
{
    DWORD processId;
    HWND found;
};

bool hasButton(HWND window)
{
    return ::IsWindowVisible(window) != FALSE && ::GetWindow(window, GW_OWNER) == nullptr
           && (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) == 0;
}

BOOL CALLBACK look(HWND window, LPARAM argument)
{
    auto *const search = reinterpret_cast<Search *>(argument);
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    if (processId != search->processId || !hasButton(window)) {
        return TRUE;
    }
    search->found = window;
    return FALSE;
}

HWND handle(quintptr window)
{
    return reinterpret_cast<HWND>(window);
}

} // namespace

quintptr TaskBar::windowOf(qint64 processId)
{
    Search search = {static_cast<DWORD>(processId), nullptr};
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return reinterpret_cast<quintptr>(search.found);
}

bool TaskBar::offersMinimising(quintptr window)
{
    return (::GetWindowLongPtrW(handle(window), GWL_STYLE) & WS_MINIMIZEBOX) != 0;
}

bool TaskBar::isMinimised(quintptr window)
{
    return ::IsIconic(handle(window)) != FALSE;
}

void TaskBar::click(quintptr window)
{
    if (isMinimised(window)) {
        ::PostMessageW(handle(window), WM_SYSCOMMAND, SC_RESTORE, 0);
    } else if (offersMinimising(window)) {
        ::PostMessageW(handle(window), WM_SYSCOMMAND, SC_MINIMIZE, 0);
    }
}
