#include "system/logindwatch.h"

#include <QDBusConnection>

#include <utility>

LogindWatch::LogindWatch(std::function<void()> whenResumed)
    : resumed(std::move(whenResumed))
{
    QDBusConnection::systemBus().connect(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(prepareForSleep(bool)));
}

void LogindWatch::prepareForSleep(bool start)
{
    if (!start) {
        resumed();
    }
}
