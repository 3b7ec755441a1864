#pragma once

#include "system/platform.h"

#include <optional>

/// A platform whose state a test sets and reads; it behaves like Windows.
class FakePlatform final : public Platform
{
public:
    ExecutableForm executableForm() const override
    {
        return {QStringLiteral("Lumikey.exe"), QLatin1Char('\\')};
    }
    QString autostartValue(const QString &whenMissing) const override
    {
        return autostart.value_or(whenMissing);
    }
    void setAutostartValue(const QString &path) override { autostart = path; }
    void removeAutostartValue() override { autostart.reset(); }
    void lengthenListenQueue(qintptr socketDescriptor) override
    {
        createPlatform()->lengthenListenQueue(socketDescriptor);
    }

    std::optional<QString> autostart;
};
