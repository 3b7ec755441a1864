#include "system/platform.h"

#include "system/desktopentry.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <sys/socket.h>

namespace {

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/autostart");
}

QString autostartFile()
{
    return autostartFolder() + QStringLiteral("/Lumikey.desktop");
}

class LinuxPlatform final : public Platform
{
public:
    ExecutableForm executableForm() const override
    {
        return {QStringLiteral("Lumikey"), QLatin1Char('/')};
    }

    QString autostartValue(const QString &whenMissing) const override
    {
        QFile file(autostartFile());
        if (!file.open(QIODevice::ReadOnly)) {
            return whenMissing;
        }
        return DesktopEntry::execPath(file.readAll());
    }

    void setAutostartValue(const QString &path) override
    {
        QDir().mkpath(autostartFolder());
        QSaveFile file(autostartFile());
        if (file.open(QIODevice::WriteOnly)) {
            file.write(DesktopEntry::write(QStringLiteral("Lumikey"), path));
            file.commit();
        }
    }

    void removeAutostartValue() override { QFile::remove(autostartFile()); }

    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        ::listen(static_cast<int>(socketDescriptor), SOMAXCONN);
    }
};

} // namespace

std::unique_ptr<Platform> createPlatform()
{
    return std::make_unique<LinuxPlatform>();
}
