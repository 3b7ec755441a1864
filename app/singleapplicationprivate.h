#pragma once

#include "app/connectionmessage.h"

#include <QHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QSharedMemory>
#include <QString>

#include <memory>

class Platform;
class SingleApplication;

/// The guard's own part: the block that all copies share, and the way from later copies to the
/// primary one. Lives on the GUI thread.
class SingleApplicationPrivate : public QObject
{
    Q_OBJECT

public:
    /// @param options bits of SingleApplication::Option
    SingleApplicationPrivate(SingleApplication &application, Platform &platform, int options);
    /// Releases the role: the next start becomes the primary copy.
    ~SingleApplicationPrivate() override;
    Q_DISABLE_COPY(SingleApplicationPrivate)

    /// Takes the role that is left. False when the process is to leave: the primary copy has then
    /// been told, if it could be reached.
    bool start(bool allowSecondary, int timeoutMs);

    void handOver();
    void takeBack();

public slots:
    /// One later copy has connected. Blocks until it has said something, 100 ms at most.
    void slotConnectionEstablished();
    void slotDataAvailable(QLocalSocket *socket, quint32 instanceId);
    void slotClientConnectionClosed(QLocalSocket *socket, quint32 instanceId);

private:
    enum class Role { Primary, Secondary, Leaving };

    Role takeRole(bool allowSecondary);
    /// From here on no copy has the role, until the next start or takeBack() takes it.
    void releaseRole();
    void becomePrimary();
    void connectToPrimary(int timeoutMs, ConnectionMessage::Type type);
    void listenTo(QLocalSocket *client, quint32 instanceId);
    void passOn(QLocalSocket *client, quint32 instanceId);

    SingleApplication &application;
    Platform &platform;
    const int options;
    const QString serverName; ///< of the block and of the local server
    std::unique_ptr<QSharedMemory> block;
    std::unique_ptr<QLocalSocket> socket; ///< to the primary copy
    std::unique_ptr<QLocalServer> server; ///< the primary copy's alone
    quint32 instanceNumber = 0;           ///< 0 in the primary copy
    bool handedOver = false;
    QHash<const QLocalSocket *, qint64> passedOn; ///< bytes, of each connection
};
