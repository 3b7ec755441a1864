#include "lighting/serviceserver.h"

#include "lighting/commandline.h"
#include "system/platform.h"

#include <QDebug>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace {

/// How long clients wait while the system hands nobody over, for want of handles as a rule.
constexpr int acceptAgainMs = 250;

} // namespace

ServiceServer::ServiceServer(const ServiceEndpoint &itsEndpoint, Platform &system, QObject *parent)
    : QTcpServer(parent)
    , endpoint(itsEndpoint)
    , platform(system)
{
    connect(this, &QTcpServer::acceptError, this, &ServiceServer::acceptAgain);
}

void ServiceServer::start()
{
    if (listen(QHostAddress(QString::fromLatin1(endpoint.address)), endpoint.port)) {
        platform.lengthenListenQueue(socketDescriptor());
        qCritical("The Service Server is running!");
    } else {
        qCritical("Could not start the Service Server");
    }
}

void ServiceServer::incomingConnection(qintptr socketDescriptor)
{
    QTcpServer::incomingConnection(socketDescriptor);
    if (++inARow < mostInARow) {
        return;
    }
    // Qt accepts whoever waits in one go: thousands that come at once would all have a socket
    // before the first is answered, and the window would stand still. No room for more ends that
    // go.
    inARow = 0;
    const int usual = maxPendingConnections();
    setMaxPendingConnections(0);
    QTimer::singleShot(0, this, [this, usual] {
        setMaxPendingConnections(usual);
        resumeAccepting();
    });
}

void ServiceServer::acceptAgain(QAbstractSocket::SocketError error)
{
    // Qt stops accepting at the first failure, be it one client that left too early. From then on
    // it also reports that old failure each time the queue has been emptied, so a report right
    // after a client was accepted is no news: it is neither logged nor waited for.
    const bool isNews = !std::exchange(clientAccepted, false);
    const bool again = isNews && std::exchange(acceptingFailed, true);
    if (isNews && !again) {
        qDebug().noquote() << "Cannot accept a client:" << errorString();
    }
    const bool wait = isNews && (again || error == QAbstractSocket::SocketResourceError);
    QTimer::singleShot(wait ? acceptAgainMs : 0, this, &QTcpServer::resumeAccepting);
}

void ServiceServer::answer(const std::function<QString()> &line)
{
    QTcpSocket *const client = nextPendingConnection();
    if (client == nullptr) {
        return;
    }
    clientAccepted = true;
    acceptingFailed = false;
    connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    client->write(frameOf(line()));
    client->disconnectFromHost();
    if (client->state() == QAbstractSocket::UnconnectedState) {
        client->deleteLater(); // already gone, so disconnected() may have been missed
    }
}

const QByteArray &ServiceServer::frameOf(const QString &line)
{
    if (frame.isEmpty() || line != framedLine) {
        frame = frameLine(line);
        framedLine = line;
    }
    return frame;
}
