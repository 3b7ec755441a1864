#pragma once

#include "app/primaryrole.h"

#include <QApplication>

#include <memory>

class Platform;
class SingleApplicationPrivate;

/// The application object, and the guard that lets one copy run for each user. Its constructor
/// returns in the primary copy, and in secondary ones where they are allowed; any other process
/// tells the primary copy that it was started, and ends inside the constructor with exit code 0.
class SingleApplication : public QApplication, public PrimaryRole
{
    Q_OBJECT

public:
    enum Option {
        PerUser = 1,           ///< one primary copy for each user, whom alone it listens to
        NotifyOnSecondary = 4, ///< secondary copies announce themselves as well
        OmitVersion = 8,       ///< copies of all versions count as one program
        OmitPath = 16,         ///< copies in all folders count as one program
    };

    /// @param allowSecondary whether a later start may run beside the primary copy
    /// @param options bits of Option
    /// @param timeoutMs how long a later start tries to reach the primary copy
    /// @param platform not owned; must live longer than the application
    SingleApplication(int &argc, char **argv, bool allowSecondary, int options, int timeoutMs,
                      Platform &platform);
    ~SingleApplication() override;

    void handOver() override;
    void takeBack() override;

signals:
    /// A later start has reached this process.
    void instanceStarted();
    /// What a connected copy has sent beyond its announcement. Of one connection 64 KiB are passed
    /// on; the rest is dropped, and the connection with it.
    void receivedMessage(quint32 instanceId, QByteArray message);

private:
    friend class SingleApplicationPrivate;
    std::unique_ptr<SingleApplicationPrivate> d;
};
