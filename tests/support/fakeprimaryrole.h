#pragma once

#include "app/primaryrole.h"

#include <QStringList>

/// Keeps what was asked of it, in order.
class FakePrimaryRole final : public PrimaryRole
{
public:
    void handOver() override { calls.append(QStringLiteral("handOver")); }
    void takeBack() override { calls.append(QStringLiteral("takeBack")); }

    QStringList calls;
};
