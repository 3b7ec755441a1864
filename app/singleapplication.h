#pragma once

#include "app/primaryrole.h"

#include <QApplication>

/// The application object, and the guard that lets one copy run for each user. The guard is not
/// built yet: every start runs, and instanceStarted() is never emitted.
class SingleApplication : public QApplication, public PrimaryRole
{
    Q_OBJECT

public:
    enum Option { PerUser = 1 };

    /// @param timeoutMs how long a later start tries to reach the running one
    SingleApplication(int &argc, char **argv, bool allowSecondary, int options, int timeoutMs);

    void handOver() override {}
    void takeBack() override {}

signals:
    /// A later start has reached this process.
    void instanceStarted();
    void receivedMessage(quint32 instanceId, const QByteArray &message);
};
