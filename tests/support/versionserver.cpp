#include "tests/support/versionserver.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

VersionServer::VersionServer()
{
    if (!server.listen(QHostAddress::LocalHost)) {
        qFatal("no free port");
    }
    connect(&server, SIGNAL(newConnection()), this, SLOT(welcome()));
}

QString VersionServer::address() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(server.serverPort());
}

void VersionServer::answerWith(const QByteArray &body, const QByteArray &status,
                               const QByteArray &headers)
{
    answer = "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
             + "\r\n" + headers + "\r\n" + body;
}

void VersionServer::welcome()
{
    QTcpSocket *const client = server.nextPendingConnection();
    connect(client, SIGNAL(disconnected()), client, SLOT(deleteLater()));
    const auto head = std::make_shared<QByteArray>();
    connect(client, &QTcpSocket::readyRead, this, [this, client, head] { read(client, *head); });
}

void VersionServer::read(QTcpSocket *client, QByteArray &head)
{
    const bool complete = head.contains("\r\n\r\n");
    head += client->readAll();
    if (!complete && head.contains("\r\n\r\n")) {
        requests.append(head);
        write(client, 0);
    }
}

void VersionServer::write(QTcpSocket *client, int from)
{
    const int size = pieceBytes > 0 ? pieceBytes : answer.size();
    client->write(answer.mid(from, size));
    if (from + size < answer.size()) {
        QTimer::singleShot(pauseMs, client,
                           [this, client, next = from + size] { write(client, next); });
    } else if (then == Then::Close) {
        client->disconnectFromHost();
    }
}
