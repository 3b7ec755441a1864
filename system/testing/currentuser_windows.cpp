#include "system/testing/currentuser.h"

#include <windows.h>

QString CurrentUser::name()
{
    return qEnvironmentVariable("USERNAME");
}

bool CurrentUser::isElevated()
{
    HANDLE token = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == 0) {
        qFatal("the process has no token");
    }
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    ::GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
    ::CloseHandle(token);
    return elevation.TokenIsElevated != 0;
}
