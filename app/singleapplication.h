#pragma once

#include <QApplication>

/// The application object, and the guard that lets one copy run for each user. The guard is not
/// built yet: every start runs, and instanceStarted() is never emitted.
class SingleApplication : public QApplication
{
    Q_OBJECT

public:
    enum Option { PerUser = 1 };

    /// @param timeoutMs how long a later start tries to reach the running one
    SingleApplication(int &argc, char **argv, bool allowSecondary, int options, int timeoutMs);

signals:
    /// A later start has reached this process.
    void instanceStarted();
    void receivedMessage(quint32 instanceId, const QByteArray &message);
};
