#include "system/platform.h"

#include "system/segmentlock.h"

#include <QCoreApplication>
#include <QSettings>

#include <array>
#include <cstdlib>

#include <winsock2.h>

#include <windows.h>

#include <lmcons.h>
#include <shellapi.h>
#include <wtsapi32.h>

namespace {

const QString runKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("Lumikey");
// Where Task Manager and Settings note which entries of the key above do not start.
const QString vetoKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                       "CurrentVersion\\Explorer\\StartupApproved\\Run");
const QString firmwareDriverKey =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\WmiAcpi");
const QString firmwareLibraryValue = QStringLiteral("MofImagePath");

/// The system's error code of the call before, as the interface throws it.
quint32 lastError()
{
    return ::GetLastError();
}

void closeHandle(HANDLE handle)
{
    if (handle != nullptr) {
        ::CloseHandle(handle);
    }
}

/// A function that not every version of Windows has, from a library that is loaded by then; null
/// where it is missing.
template<class Function> Function *resolve(const wchar_t *library, const char *name)
{
    const FARPROC address = ::GetProcAddress(::GetModuleHandleW(library), name);
    return reinterpret_cast<Function *>(reinterpret_cast<void (*)()>(address));
}

/// Has a window told of resumes. Machines that never sleep deeply tell only those who ask.
void registerForResume(HWND window)
{
    // The system drops the registration with the window.
    if (auto *const call = resolve<HPOWERNOTIFY WINAPI(HANDLE, DWORD)>(
            L"user32", "RegisterSuspendResumeNotification")) {
        call(window, DEVICE_NOTIFY_WINDOW_HANDLE);
    }
}

/// Windows 11 rounds the corners of windows with a frame, and of others that ask.
void roundCorners(HWND window)
{
    constexpr DWORD cornerPreference = 33;
    constexpr DWORD roundedCorners = 2;
    if (auto *const call = resolve<HRESULT WINAPI(HWND, DWORD, const void *, DWORD)>(
            L"dwmapi", "DwmSetWindowAttribute")) {
        call(window, cornerPreference, &roundedCorners, sizeof roundedCorners);
    }
}

class WindowsPlatform final : public Platform
{
public:
    ExecutableForm executableForm() const override
    {
        return {QStringLiteral("Lumikey.exe"), QLatin1Char('\\')};
    }

    QString autostartValue(const QString &whenMissing) const override
    {
        return QSettings(runKey, QSettings::NativeFormat).value(runValue, whenMissing).toString();
    }

    void setAutostartValue(const QString &path) override
    {
        QSettings(runKey, QSettings::NativeFormat).setValue(runValue, path);
    }

    void removeAutostartValue() override
    {
        QSettings(runKey, QSettings::NativeFormat).remove(runValue);
    }

    QString programFolder() const override { return QCoreApplication::applicationDirPath(); }

    void removeAutostartVeto() override
    {
        QSettings(vetoKey, QSettings::NativeFormat).remove(runValue);
    }

    std::optional<QString> userName() const override
    {
        std::array<wchar_t, UNLEN + 1> name = {};
        auto size = static_cast<DWORD>(name.size());
        if (::GetUserNameW(name.data(), &size) == 0) {
            return std::nullopt;
        }
        return QString::fromWCharArray(name.data());
    }

    std::shared_ptr<void> acquireLock(const QString &name, int timeoutMs) override
    {
        const std::shared_ptr<void> mutex(
            ::CreateMutexW(nullptr, FALSE, (name + QStringLiteral(".lock")).toStdWString().c_str()),
            closeHandle);
        if (!mutex) {
            return nullptr;
        }
        // Abandoned: its holder was killed, and it is ours.
        const DWORD result = ::WaitForSingleObject(mutex.get(), static_cast<DWORD>(timeoutMs));
        if (result != WAIT_OBJECT_0 && result != WAIT_ABANDONED) {
            return nullptr;
        }
        return {mutex.get(), [mutex](HANDLE handle) {
                    ::ReleaseMutex(handle);
                }};
    }

    void letComeToFront(qint64 processId) override
    {
        static_assert(static_cast<DWORD>(anyProcess) == ASFW_ANY);
        ::AllowSetForegroundWindow(static_cast<DWORD>(processId));
    }

    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        ::listen(static_cast<SOCKET>(socketDescriptor), SOMAXCONN);
    }

    void prepareWindow(quintptr window) override
    {
        const auto handle = reinterpret_cast<HWND>(window);
        ::SetWindowLongPtrW(handle, GWL_STYLE,
                            ::GetWindowLongPtrW(handle, GWL_STYLE) | WS_MINIMIZEBOX);
        ::WTSRegisterSessionNotification(handle, NOTIFY_FOR_THIS_SESSION);
        registerForResume(handle);
        roundCorners(handle);
    }

    std::optional<QString> messageFontFamily() const override
    {
        NONCLIENTMETRICSW metrics = {};
        metrics.cbSize = sizeof metrics;
        if (::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) == 0) {
            return std::nullopt;
        }
        return QString::fromWCharArray(
            static_cast<const wchar_t *>(metrics.lfMessageFont.lfFaceName));
    }

    KeyPresses keysPressedSinceLastPoll() override
    {
        KeyPresses presses;
        for (std::size_t code = 0; code < presses.size(); ++code) {
            const auto state = static_cast<quint16>(::GetAsyncKeyState(static_cast<int>(code)));
            presses.set(code, (state & 0xFFU) == 1);
        }
        return presses;
    }

    bool isResumeMessage(const QByteArray & /*eventType*/, const void *message) const override
    {
        const auto *const msg = static_cast<const MSG *>(message);
        return msg->message == WM_POWERBROADCAST && msg->wParam == PBT_APMRESUMESUSPEND;
    }

    bool isUnlockMessage(const QByteArray & /*eventType*/, const void *message) const override
    {
        const auto *const msg = static_cast<const MSG *>(message);
        return msg->message == WM_WTSSESSION_CHANGE && msg->wParam == WTS_SESSION_UNLOCK;
    }

    /// Windows tells of it by a message, see isResumeMessage().
    void notifyOfResume(std::function<void()> /*resumed*/) override {}

    void sleep(int milliseconds) override { ::Sleep(static_cast<DWORD>(milliseconds)); }

    bool isElevated() const override
    {
        SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
        PSID administrators = nullptr;
        if (::AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID,
                                       DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &administrators)
            == 0) {
            throw lastError();
        }
        BOOL isMember = FALSE;
        const BOOL told = ::CheckTokenMembership(nullptr, administrators, &isMember);
        const quint32 error = lastError(); // before freeing may change it
        ::FreeSid(administrators);
        if (told == 0) {
            throw error;
        }
        return isMember != FALSE;
    }

    Relaunch relaunchElevated() override
    {
        std::array<wchar_t, MAX_PATH> path = {};
        const DWORD length =
            ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length == 0 || length == path.size()) { // the latter: cut short
            return Relaunch::NoPath;
        }
        SHELLEXECUTEINFOW info = {};
        info.cbSize = sizeof info;
        info.lpVerb = L"runas";
        info.lpFile = path.data();
        info.nShow = SW_SHOWNORMAL;
        if (::ShellExecuteExW(&info) != 0) {
            return Relaunch::Launched;
        }
        return ::GetLastError() == ERROR_CANCELLED ? Relaunch::Declined : Relaunch::Failed;
    }

    void endProcess(int exitCode) override { std::_Exit(exitCode); }

    bool tryWithSegmentLock(const QString &nativeKey, const std::function<void()> &action) override
    {
        return SegmentLock::tryRun(nativeKey, action);
    }

    void launch(const QString &commandLine) override
    {
        ::WinExec(commandLine.toLocal8Bit().constData(), SW_SHOW);
    }

    void setFirmwareInterfaceLibrary(const QString &libraryPath) override
    {
        QSettings(firmwareDriverKey, QSettings::NativeFormat)
            .setValue(firmwareLibraryValue, libraryPath);
    }
};

} // namespace

std::unique_ptr<Platform> createPlatform()
{
    return std::make_unique<WindowsPlatform>();
}
