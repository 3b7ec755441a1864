#include "system/testing/sessionnotices.h"

#include <windows.h>

#include <wtsapi32.h>

namespace {

constexpr UINT answerTimeoutMs = 10'000;

/// The answer; 0 when none comes.
DWORD_PTR ask(quintptr window, UINT message, WPARAM argument)
{
    DWORD_PTR answer = 0;
    ::SendMessageTimeoutW(reinterpret_cast<HWND>(window), message, argument, 0, SMTO_NORMAL,
                          answerTimeoutMs, &answer);
    return answer;
}

void tell(quintptr window, WPARAM event)
{
    ::PostMessageW(reinterpret_cast<HWND>(window), WM_WTSSESSION_CHANGE, event, 1);
}

} // namespace

bool SessionNotices::mayEnd(quintptr window)
{
    return ask(window, WM_QUERYENDSESSION, 0) != 0;
}

void SessionNotices::ends(quintptr window, bool really)
{
    ask(window, WM_ENDSESSION, really ? TRUE : FALSE);
}

void SessionNotices::locked(quintptr window)
{
    tell(window, WTS_SESSION_LOCK);
}

void SessionNotices::unlocked(quintptr window)
{
    tell(window, WTS_SESSION_UNLOCK);
}
