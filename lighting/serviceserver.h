#pragma once

#include "lighting/serviceendpoint.h"

#include <QAbstractSocket>
#include <QTcpServer>

#include <functional>

class Platform;

/// The Service Server: each client that connects receives one line, then its connection is closed.
/// The owner calls answer() at each newConnection(), with the line of that moment.
class ServiceServer : public QTcpServer
{
    Q_OBJECT

public:
    /// @param platform not owned; must live longer than the server
    ServiceServer(const ServiceEndpoint &endpoint, Platform &platform, QObject *parent);

    /// Starts to listen, and logs whether that succeeded. Where it fails, the program runs on
    /// without a server.
    void start();

    /// Sends the frame of a line to the client that has waited longest and closes its connection.
    /// Reads nothing from it and waits for nothing.
    /// @param line called once for the client; not at all where none waits
    void answer(const std::function<QString()> &line);

    /// So many clients in a row are accepted before everything else has its turn.
    static constexpr int mostInARow = 32;

protected:
    void incomingConnection(qintptr socketDescriptor) override;

private:
    /// Goes on accepting clients after the system refused to hand one over.
    void acceptAgain(QAbstractSocket::SocketError error);
    /// Most answers are those of before: a frame is made anew where the line is another.
    const QByteArray &frameOf(const QString &line);

    ServiceEndpoint endpoint;
    Platform &platform;
    QString framedLine;
    QByteArray frame;
    int inARow = 0;
    bool clientAccepted = false;  ///< since accepting last failed
    bool acceptingFailed = false; ///< since the last client; the log has been told
};
