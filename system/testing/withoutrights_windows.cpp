// Runs a program without administrator rights, as they are for a user who has not yet been asked:
//   withoutrights PROGRAM
// Ends as the program does. The program dies with it, what the program starts does not.

#include <windows.h>

namespace {

/// This process's token with the group of the administrators good for denials only.
HANDLE tokenWithoutRights()
{
    HANDLE token = nullptr;
    ::OpenProcessToken(::GetCurrentProcess(), TOKEN_ALL_ACCESS, &token);
    SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
    PSID administrators = nullptr;
    ::AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS,
                               0, 0, 0, 0, 0, 0, &administrators);
    SID_AND_ATTRIBUTES denied = {administrators, 0};
    HANDLE restricted = nullptr;
    ::CreateRestrictedToken(token, 0, 1, &denied, 0, nullptr, 0, nullptr, &restricted);
    ::FreeSid(administrators);
    return restricted;
}

HANDLE jobThatEndsWithThisProcess()
{
    HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE | JOB_OBJECT_LIMIT_SILENT_BREAKAWAY_OK;
    ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

} // namespace

int wmain(int argc, wchar_t *argv[])
{
    constexpr int failed = 90;
    if (argc != 2) {
        return failed;
    }
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = ::GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = ::GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION process = {};
    if (::CreateProcessAsUserW(tokenWithoutRights(), argv[1], nullptr, nullptr, nullptr, TRUE,
                               CREATE_SUSPENDED, nullptr, nullptr, &startup, &process)
        == 0) {
        return failed;
    }
    ::AssignProcessToJobObject(jobThatEndsWithThisProcess(), process.hProcess);
    ::ResumeThread(process.hThread);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD exitCode = failed;
    ::GetExitCodeProcess(process.hProcess, &exitCode);
    return static_cast<int>(exitCode);
}
