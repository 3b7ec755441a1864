#include "system/platform.h"

#include <QSettings>

#include <winsock2.h>

namespace {

const QString runKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
const QString runValue = QStringLiteral("Lumikey");

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

    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        ::listen(static_cast<SOCKET>(socketDescriptor), SOMAXCONN);
    }
};

} // namespace

std::unique_ptr<Platform> createPlatform()
{
    return std::make_unique<WindowsPlatform>();
}
