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

namespace {

const QString runKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("Lumikey");
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
        ::AllowSetForegroundWindow(static_cast<DWORD>(processId));
    }

    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        ::listen(static_cast<SOCKET>(socketDescriptor), SOMAXCONN);
    }

    void letTaskBarMinimise(quintptr window) override
    {
        const auto handle = reinterpret_cast<HWND>(window);
        ::SetWindowLongPtrW(handle, GWL_STYLE,
                            ::GetWindowLongPtrW(handle, GWL_STYLE) | WS_MINIMIZEBOX);
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
